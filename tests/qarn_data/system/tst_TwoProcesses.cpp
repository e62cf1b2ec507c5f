#include "TestStore.h"
#include "WriterPersons.h"
#include "WriterProcess.h"

#include <qarn_data/DataSignals.h>
#include <qarn_data/PersonData.h>

#include <QElapsedTimer>
#include <QJsonArray>
#include <QSignalSpy>
#include <QtTest>

#include <algorithm>

using qarn_data::DataSignals;
using qarn_data::OrganizationInfo;
using qarn_data::PersonData;
using qarn_data::PersonInfo;
using qarn_data::PersonList;

namespace
{

QJsonArray json(const QStringList& texts)
{
    return QJsonArray::fromStringList(texts);
}

} // namespace

/// Two programs on one store: what one changes, the other announces.
class tst_TwoProcesses : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void announcesAnAddition();
    void announcesAnUpdate();
    void announcesAMove();
    void announcesAFurtherRecord();
    void announcesADeletion();
    void announcesOrganizationChanges();
    void announcesCustomFields();
    void announcesTheOtherWayRound();
    void announcesWithinASecond();
    void keepsOwnChangesToItself();
    void refusesASerialNumberThatTheOtherTook();

private:
    bool otherAdds(const QStringList& ids, const QString& organizationId = {})
    {
        return m_other->does({{"do", "addPersons"}, {"ids", json(ids)}, {"organizationId", organizationId}});
    }
    PersonInfo stored(const QString& id)
    {
        return PersonData::instance().getPersonBySerialNum(QStringLiteral("SERIAL-") + id, false);
    }
    PersonList twoPersons()
    {
        return personsToAdd({{"ids", json({QStringLiteral("x"), QStringLiteral("y")})}});
    }

    std::unique_ptr<TestStore> m_store;
    std::unique_ptr<WriterProcess> m_other;
    QString m_root;
};

void tst_TwoProcesses::init()
{
    m_store = std::make_unique<TestStore>();
    m_other = std::make_unique<WriterProcess>(m_store->filePath());
    m_root = PersonData::instance().getRootOrganizationId();
}

void tst_TwoProcesses::cleanup()
{
    m_other.reset();
    m_store.reset();
}

void tst_TwoProcesses::announcesAnAddition()
{
    QSignalSpy added(&DataSignals::instance(), &DataSignals::signalAddPersonsToLocalDB);
    QVERIFY(otherAdds({"a", "b"}, m_root));
    QTRY_COMPARE(added.count(), 1);
    const PersonList persons = added.first().at(0).value<PersonList>();
    QCOMPARE(idsOf(persons), QStringList({"a", "b"}));
    QCOMPARE(persons.first().name, QStringLiteral("Name of a"));
    QCOMPARE(persons.first().organizationId, m_root);
    QCOMPARE(added.first().at(1).toBool(), true);
    QCOMPARE(idsOf(PersonData::instance().getPersons({m_root}, false)), QStringList({"a", "b"}));
}

void tst_TwoProcesses::announcesAnUpdate()
{
    QVERIFY(otherAdds({"a"}));
    QTRY_COMPARE(stored("a").id, QStringLiteral("a"));
    QSignalSpy updated(&DataSignals::instance(), &DataSignals::signalUpdatePersonInLocalDB);
    QVERIFY(m_other->does({{"do", "updatePersons"}, {"ids", json({"a"})}, {"name", "Änne"}}));
    QTRY_COMPARE(updated.count(), 1);
    QCOMPARE(updated.first().at(0).value<PersonInfo>().name, QStringLiteral("Änne"));
    QCOMPARE(updated.first().at(1).toStringList(), QStringList({"a"}));
    QCOMPARE(updated.first().at(2).toBool(), true);
    QCOMPARE(stored("a").name, QStringLiteral("Änne"));
}

void tst_TwoProcesses::announcesAMove()
{
    const QString office = PersonData::instance().createOrganization({QStringLiteral("Office")});
    QVERIFY(otherAdds({"a"}, m_root));
    QTRY_COMPARE(stored("a").organizationId, m_root);
    QSignalSpy moved(&DataSignals::instance(), &DataSignals::signalAddPersonsToLocalDB);
    QVERIFY(m_other->does({{"do", "movePersons"}, {"ids", json({"a"})}, {"organizationId", office}}));
    QTRY_COMPARE(moved.count(), 1);
    const PersonList persons = moved.first().at(0).value<PersonList>();
    QCOMPARE(idsOf(persons), QStringList({"a"}));
    QCOMPARE(persons.first().organizationId, office);
    QVERIFY(PersonData::instance().getPersons({m_root}, false).isEmpty());
    QCOMPARE(idsOf(PersonData::instance().getPersons({office}, false)), QStringList({"a"}));
}

void tst_TwoProcesses::announcesAFurtherRecord()
{
    const QString office = PersonData::instance().createOrganization({QStringLiteral("Office")});
    QVERIFY(otherAdds({"a"}, m_root));
    QTRY_COMPARE(stored("a").organizationId, m_root);
    QVERIFY(m_other->does(
        {{"do", "movePersons"}, {"ids", json({"a"})}, {"organizationId", office}, {"retain", true}}));
    QTRY_COMPARE(PersonData::instance().getPersons({office}, false).count(), 1);
    QCOMPARE(idsOf(PersonData::instance().getPersons({m_root}, false)), QStringList({"a"}));
    const PersonInfo further = PersonData::instance().getPersons({office}, false).first();
    QVERIFY(further.id != QStringLiteral("a"));
    QCOMPARE(further.serialNum, QStringLiteral("SERIAL-a"));
}

void tst_TwoProcesses::announcesADeletion()
{
    QVERIFY(otherAdds({"a", "b"}));
    QTRY_COMPARE(stored("b").id, QStringLiteral("b"));
    QSignalSpy deleted(&DataSignals::instance(), &DataSignals::signalDeletePersonsFromLocalDB);
    QVERIFY(m_other->does({{"do", "deletePersons"}, {"ids", json({"a"})}}));
    QTRY_COMPARE(deleted.count(), 1);
    QCOMPARE(deleted.first().at(0).toStringList(), QStringList({"a"}));
    QCOMPARE(deleted.first().at(1).toBool(), true);
    QVERIFY(stored("a").id.isEmpty());
    QCOMPARE(stored("b").id, QStringLiteral("b"));
}

void tst_TwoProcesses::announcesOrganizationChanges()
{
    const DataSignals* source = &DataSignals::instance();
    QSignalSpy added(source, &DataSignals::signalAddOrganizationToLocalDB);
    QSignalSpy updated(source, &DataSignals::signalUpdateOrganizationInLocalDB);
    QSignalSpy deleted(source, &DataSignals::signalDeleteOrganizationsFromLocalDB);

    QVERIFY(m_other->does({{"do", "addOrganization"}, {"id", "o"}, {"parentId", m_root}, {"name", "Yard"}}));
    QTRY_COMPARE(added.count(), 1);
    QCOMPARE(added.first().at(0).value<OrganizationInfo>().name, QStringLiteral("Yard"));
    QCOMPARE(PersonData::instance().getOrganizationName("o"), QStringLiteral("Yard"));

    QVERIFY(
        m_other->does({{"do", "updateOrganization"}, {"id", "o"}, {"parentId", m_root}, {"name", "Gate"}}));
    QTRY_COMPARE(updated.count(), 1);
    QCOMPARE(updated.first().at(0).value<OrganizationInfo>().name, QStringLiteral("Gate"));
    QCOMPARE(PersonData::instance().getOrganizationName("o"), QStringLiteral("Gate"));

    QVERIFY(m_other->does({{"do", "deleteOrganizations"}, {"ids", json({"o"})}}));
    QTRY_COMPARE(deleted.count(), 1);
    QCOMPARE(deleted.first().at(0).toStringList(), QStringList({"o"}));
    QCOMPARE(PersonData::instance().getOrganizationName("o"), QString());
}

void tst_TwoProcesses::announcesCustomFields()
{
    QSignalSpy reset(&DataSignals::instance(), &DataSignals::signalResetCustomFields);
    QVERIFY(m_other->does({{"do", "resetCustomFields"}, {"ids", json({"Locker", "Badge"})}}));
    QTRY_COMPARE(reset.count(), 1);
    QCOMPARE(reset.first().at(0).toStringList(), QStringList({"Locker", "Badge"}));
    QCOMPARE(PersonData::instance().getCustomFields(), QStringList({"Locker", "Badge"}));
}

void tst_TwoProcesses::announcesTheOtherWayRound()
{
    QVERIFY(PersonData::instance().addPersons(twoPersons()));
    QTRY_COMPARE(m_other->eventCount("addPersons"), 1);
    PersonInfo person = stored("x");
    person.name = QStringLiteral("Xenia");
    QVERIFY(PersonData::instance().updatePerson(person));
    QTRY_COMPARE(m_other->eventCount("updatePerson"), 1);
    QCOMPARE(m_other->events().last()["text"].toString(), QStringLiteral("Xenia"));
    QVERIFY(PersonData::instance().deletePersons({"y"}));
    QTRY_COMPARE(m_other->eventCount("deletePersons"), 1);
    QCOMPARE(m_other->ask({{"do", "count"}})["answer"].toInt(), 1);
    QCOMPARE(m_other->eventCount("addPersons"), 1);
}

void tst_TwoProcesses::announcesWithinASecond()
{
    QSignalSpy added(&DataSignals::instance(), &DataSignals::signalAddPersonsToLocalDB);
    QVector<qint64> latencies;
    for (int i = 0; i < 7; ++i) {
        QVERIFY(otherAdds({QString::number(i)}));
        QElapsedTimer timer;
        timer.start();
        QTRY_COMPARE(added.count(), i + 1);
        latencies.append(timer.elapsed());
    }
    std::sort(latencies.begin(), latencies.end());
    QVERIFY2(latencies.at(3) < 1000,
             qPrintable(QString::number(latencies.at(3)))); // the median: others use the CPU too
}

void tst_TwoProcesses::keepsOwnChangesToItself()
{
    QSignalSpy added(&DataSignals::instance(), &DataSignals::signalAddPersonsToLocalDB);
    QVERIFY(PersonData::instance().addPersons(twoPersons()));
    QCOMPARE(added.count(), 1);
    QVERIFY(otherAdds({"a"})); // when this one has come, an echo of ours would have come before it
    QTRY_COMPARE(stored("a").id, QStringLiteral("a"));
    QTRY_COMPARE(added.count(), 2);
    QCOMPARE(idsOf(added.last().at(0).value<PersonList>()), QStringList({"a"}));
}

void tst_TwoProcesses::refusesASerialNumberThatTheOtherTook()
{
    QVERIFY(otherAdds({"a"}));
    PersonList persons = personsToAdd({{"ids", json({"a"})}}); // perhaps before the news has come
    persons.first().id = QStringLiteral("elsewhere");
    QSignalSpy failed(&qarn_data::DataService::instance(), &qarn_data::DataService::signalFailed);
    QVERIFY(!PersonData::instance().addPersons(persons));
    QCOMPARE(failed.count(), 1);
    QVERIFY(failed.first().at(0).toString().contains(QStringLiteral("SERIAL-a")));
    QTRY_COMPARE(stored("a").id, QStringLiteral("a"));
}

QTEST_GUILESS_MAIN(tst_TwoProcesses)
#include "tst_TwoProcesses.moc"
