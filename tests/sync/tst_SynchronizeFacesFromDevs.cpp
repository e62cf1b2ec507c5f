#include "DeviceFaces.h"
#include "SyncRun.h"
#include "TestStore.h"

#include <qarn_data/PersonData.h>

using qarn_data::PersonData;
using qarn_data::PersonInfo;
using Channels = QList<QPair<QString, int>>;

/// The way from the devices.
class tst_SynchronizeFacesFromDevs : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void makesNewPersons();
    void keepsTheNameOfAKnownPerson();
    void madeUpSerialNumber();
    void fieldsAreCarriedOverWithinAChannel();
    void sameSerialNumberOnTwoChannelsUpdates();
    void refusedPersonIsSkipped();
    void importsWhatArrivedBeforeAFailure();
    void failedReadStopsTheWatchdog();

private:
    bool import(const FilledDevice& device, int channels = 1);
    PersonInfo stored(const QString& serialNum) const;

    TestStore m_store;
    QString m_organization;
    QStringList m_failures;
};

void tst_SynchronizeFacesFromDevs::init()
{
    m_store.reopen();
    PersonData& data = PersonData::instance();
    QStringList ids;
    const auto all = data.getAllPersons(true);
    for (const PersonInfo& info : all)
        ids.append(info.id);
    data.deletePersons(ids);
    m_organization = data.createOrganization({"Import"});
}

bool tst_SynchronizeFacesFromDevs::import(const FilledDevice& device, int channels)
{
    Channels chosen;
    for (int channel = 1; channel <= channels; ++channel)
        chosen.append({device.sim.id(), channel});
    SyncRun sync(QStringList{m_organization, "another"}, chosen);
    const bool ended = sync.run();
    m_failures = sync.failures;
    return ended && sync.finished.count() == 1;
}

PersonInfo tst_SynchronizeFacesFromDevs::stored(const QString& serialNum) const
{
    return PersonData::instance().getPersonBySerialNum(serialNum, false);
}

void tst_SynchronizeFacesFromDevs::makesNewPersons()
{
    const QByteArray photo = testPhoto();
    FilledDevice device(faceLine(1, "A", "Ann",
                                 ",\"sex\":2,\"validFrom\":\"2024-01-01T00:00:00Z\",\"validTo\":"
                                 "\"2030-06-01T12:00:00+02:00\",\"photo\":\"" +
                                     photo.toBase64() + "\"") +
                        faceLine(1, "B", "", ",\"sex\":1"));
    QVERIFY(import(device));
    QCOMPARE(m_failures, QStringList());
    const PersonInfo ann = stored("A");
    QVERIFY(!ann.id.isEmpty());
    QCOMPARE(ann.name, QString("Ann"));
    QCOMPARE(ann.sex, 2);
    QCOMPARE(ann.organizationId, m_organization);
    QCOMPARE(ann.faceImage1, photo);
    QCOMPARE(ann.validStartTime.toUTC(), QDateTime(QDate(2024, 1, 1), QTime(0, 0), Qt::UTC));
    QCOMPARE(ann.validEndTime.toUTC(), QDateTime(QDate(2030, 6, 1), QTime(10, 0), Qt::UTC));
    QVERIFY(!stored("B").id.isEmpty());
    QCOMPARE(stored("B").name, QString());
}

void tst_SynchronizeFacesFromDevs::keepsTheNameOfAKnownPerson()
{
    PersonInfo known = person("K", "Known");
    known.sex = 1;
    known.remarks = "keep";
    QVERIFY(PersonData::instance().addPerson(known));
    FilledDevice device(faceLine(1, "K", "", ",\"sex\":2"));
    QVERIFY(import(device));
    const PersonInfo updated = stored("K");
    QCOMPARE(updated.id, known.id);
    QCOMPARE(updated.name, QString("Known"));
    QCOMPARE(updated.sex, 2);
    QCOMPARE(updated.remarks, QString("keep"));
    QCOMPARE(updated.faceImage1, known.faceImage1);
    QCOMPARE(PersonData::instance().getAllPersons(true).count(), 1);
}

void tst_SynchronizeFacesFromDevs::madeUpSerialNumber()
{
    FilledDevice device(faceLine(1, "", "Nobody"));
    QVERIFY(import(device));
    const PersonInfo made = PersonData::instance().getPersonByName("Nobody", true);
    QCOMPARE(made.serialNum.size(), 10);
    QVERIFY(made.serialNum.startsWith('{'));
}

void tst_SynchronizeFacesFromDevs::fieldsAreCarriedOverWithinAChannel()
{
    PersonInfo known = person("K", "Known", 7);
    known.job = "Guard";
    QVERIFY(PersonData::instance().addPerson(known));
    FilledDevice device(faceLine(1, "K", "Known") + faceLine(1, "N", "New") +
                            faceLine(2, "M", "Next channel"),
                        {"--channels", "2"});
    QVERIFY(import(device, 2));
    QCOMPARE(stored("N").job, QString("Guard"));
    QCOMPARE(stored("N").faceImage1, known.faceImage1);
    QCOMPARE(stored("M").job, QString());
    QCOMPARE(stored("M").faceImage1, QByteArray());
}

void tst_SynchronizeFacesFromDevs::sameSerialNumberOnTwoChannelsUpdates()
{
    FilledDevice device(faceLine(1, "A", "First") + faceLine(2, "A", "Second"), {"--channels", "2"});
    QVERIFY(import(device, 2));
    QCOMPARE(PersonData::instance().getAllPersons(true).count(), 1);
    QCOMPARE(stored("A").name, QString("Second"));
}

void tst_SynchronizeFacesFromDevs::refusedPersonIsSkipped()
{
    FilledDevice device(faceLine(1, "A", "Ann") + faceLine(1, "B", "Ben"));
    m_organization = "no such organization";
    QVERIFY(import(device));
    QCOMPARE(m_failures, QStringList());
    QCOMPARE(PersonData::instance().getAllPersons(true).count(), 0);
}

void tst_SynchronizeFacesFromDevs::importsWhatArrivedBeforeAFailure()
{
    FilledDevice device(faceLine(1, "A", "Ann") + faceLine(1, "B", "Ben") + faceLine(1, "C", "Cem"),
                        {"--fail", "rubbish,on=list,after=2"});
    QVERIFY(import(device));
    QCOMPARE(m_failures, QStringList{"get Gate-Channel 1 faces failed"});
    QVERIFY(!stored("A").id.isEmpty());
    QVERIFY(!stored("B").id.isEmpty());
    QVERIFY(stored("C").id.isEmpty());
}

void tst_SynchronizeFacesFromDevs::failedReadStopsTheWatchdog()
{
    FilledDevice device({}, {"--fail", "refuse,on=list"});
    SyncRun sync(QStringList{m_organization}, Channels{{device.sim.id(), 1}});
    QVERIFY(sync.watchdog()->isActive());
    QVERIFY(sync.run());
    QVERIFY(!sync.watchdog()->isActive());
    QCOMPARE(sync.finished.count(), 1);
}

QTEST_GUILESS_MAIN(tst_SynchronizeFacesFromDevs)
#include "tst_SynchronizeFacesFromDevs.moc"
