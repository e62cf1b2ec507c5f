#include "ChangeLog.h"
#include "CustomFieldTable.h"
#include "DeviceTable.h"
#include "OrganizationTable.h"
#include "PersonTable.h"
#include "Samples.h"
#include "SqlStore.h"
#include "SqliteDialect.h"
#include "TestStore.h"

#include <qarn_data/DeviceRegistry.h>

#include <QtTest>

#include <functional>

using namespace qarn_data;
using samples::fullPerson;
using samples::person;
using samples::root;

namespace
{

PersonData& data()
{
    return PersonData::instance();
}

/// Writes like another process would: through a connection of its own, logging what it does.
class OtherProcess
{
public:
    explicit OtherProcess(const QString& filePath)
    {
        QString reason;
        if (!m_sql.openBeside(filePath, &reason))
            qFatal("%s", qPrintable(reason));
        OrganizationTable(m_sql).readAll(
            [this](const StoredOrganization& each) { m_organizations.put(each); });
    }

    bool write(ChangeKind kind, const QString& subject, const std::function<bool()>& action)
    {
        qint64 last = 0;
        ChangeLog log(m_sql);
        return m_sql.beginWrite() && action() && log.lastNumber(&last) &&
               log.append({last + 1, kind, subject}) && m_sql.commit();
    }
    bool add(qint64 number, const PersonInfo& info)
    {
        return write(ChangeKind::PersonsAdded, QString::number(number), [&] {
            return m_table.insertPerson(number, info) && m_table.insertRecord({number, number, info});
        });
    }
    bool update(qint64 number, const PersonInfo& old, const PersonInfo& info)
    {
        return write(ChangeKind::PersonUpdated, QString::number(number),
                     [&] { return m_table.updatePerson(number, old, info); });
    }
    bool remove(qint64 number)
    {
        return write(ChangeKind::PersonsDeleted, QString::number(number),
                     [&] { return m_table.deleteRecord(number); });
    }
    bool move(qint64 number, const QString& organizationId)
    {
        return write(ChangeKind::PersonsMoved, QString::number(number) + ';',
                     [&] { return m_table.moveRecord(number, organizationId); });
    }
    SqlStore& sql() { return m_sql; }

private:
    SqlStore m_sql{std::make_unique<SqliteDialect>()};
    OrganizationIndex m_organizations;
    PersonTable m_table{m_sql, m_organizations};
};

} // namespace

/// What another process writes arrives as the same notifications, with the index current.
class tst_ChangeFeed : public QObject
{
    Q_OBJECT
private slots:
    void additions();
    void updates();
    void deletions();
    void moves();
    void organizations();
    void customFields();
    void devices();
    void whatCameAndWentIsNotAnnounced();
    void swappedSerialNumbers();
    void ownWritesSeeForeignOnesFirst();
    void aCheckTellsOfForeignChanges();
    void changesOfUnknownKind();
    void longAbsence();
    void ownChangesAreNotAnnouncedAgain();
};

void tst_ChangeFeed::additions()
{
    TestStore store;
    OtherProcess other(store.filePath());
    samples::Watch watch;
    QVERIFY(other.add(1, fullPerson("a", root())));
    QTRY_COMPARE_WITH_TIMEOUT(watch.added.count(), 1, 1000);
    const auto added = watch.added.first().at(0).value<PersonList>();
    QCOMPARE(samples::ids(added), QStringList({"a"}));
    QCOMPARE(added.first().faceImage2, fullPerson("a", root()).faceImage2);
    QCOMPARE(added.first().customFields, fullPerson("a", root()).customFields);
    QVERIFY(data().isPersonSerialNumExist("SN-a"));
    QCOMPARE(watch.changes(), 1);
    QCOMPARE(samples::inconsistency(), QString());
}

void tst_ChangeFeed::updates()
{
    TestStore store;
    QVERIFY(data().addPersons({person("a", "A"), person("b", "B")}));
    QVERIFY(data().changePersonsOrganization({person("a")}, root(), true));
    OtherProcess other(store.filePath());
    samples::Watch watch;
    PersonInfo changed = person("a", "A2", "Renamed");
    changed.faceImage1 = "new face";
    QVERIFY(other.update(1, person("a", "A"), changed));
    QTRY_COMPARE_WITH_TIMEOUT(watch.updated.count(), 1, 1000);
    QCOMPARE(watch.updated.first().at(0).value<PersonInfo>().name, QString("Renamed"));
    QCOMPARE(watch.updated.first().at(1).toStringList().size(), 2);
    QCOMPARE(watch.changes(), 1);
    const PersonList all = data().getAllPersons(false);
    QCOMPARE(all.last().name, QString("Renamed")); // the other record of the person
    QVERIFY(all.first().faceImage1.isSharedWith(all.last().faceImage1));
    QCOMPARE(samples::inconsistency(), QString());
}

void tst_ChangeFeed::deletions()
{
    TestStore store;
    QVERIFY(data().addPersons({person("a", "A"), person("b", "B")}));
    OtherProcess other(store.filePath());
    samples::Watch watch;
    QVERIFY(other.remove(1));
    QTRY_COMPARE_WITH_TIMEOUT(watch.deleted.count(), 1, 1000);
    QCOMPARE(watch.deleted.first().at(0).toStringList(), QStringList({"a"}));
    QVERIFY(!data().isPersonSerialNumExist("A"));
    QCOMPARE(watch.changes(), 1);
    QCOMPARE(samples::inconsistency(), QString());
}

void tst_ChangeFeed::moves()
{
    TestStore store;
    QVERIFY(data().addPersons({person("a", "A"), person("b", "B")}));
    OtherProcess other(store.filePath());
    samples::Watch watch;
    QVERIFY(other.move(2, root()));
    QTRY_COMPARE_WITH_TIMEOUT(watch.added.count(), 1, 1000);
    QCOMPARE(samples::ids(watch.added.first().at(0).value<PersonList>()), QStringList({"b"}));
    QCOMPARE(samples::ids(data().getPersons({root()}, false)), QStringList({"b"}));
    QCOMPARE(samples::inconsistency(), QString());
}

void tst_ChangeFeed::organizations()
{
    TestStore store;
    OtherProcess other(store.filePath());
    OrganizationTable table(other.sql());
    samples::Watch watch;
    QVERIFY(other.write(ChangeKind::OrganizationsAdded, "2-3", [&] {
        return table.insert({2, {"x", root(), "X"}}, 1) && table.insert({3, {"y", "x", "Y"}}, 2);
    }));
    QTRY_COMPARE_WITH_TIMEOUT(watch.organizationAdded.count(), 2, 1000);
    QCOMPARE(data().getOrganizationNameRecursively("y"), QString("All Organizations > X > Y"));
    QVERIFY(other.write(ChangeKind::OrganizationUpdated, "2", [&] {
        return table.update({2, {"x", root(), "X2"}}, 1);
    }));
    QTRY_COMPARE_WITH_TIMEOUT(watch.organizationUpdated.count(), 1, 1000);
    QCOMPARE(watch.organizationUpdated.first().at(0).value<OrganizationInfo>().name, QString("X2"));
    QVERIFY(other.write(ChangeKind::OrganizationsDeleted, "3", [&] { return table.remove(3); }));
    QTRY_COMPARE_WITH_TIMEOUT(watch.organizationsDeleted.count(), 1, 1000);
    QCOMPARE(watch.organizationsDeleted.first().at(0).toStringList(), QStringList({"y"}));
    QCOMPARE(watch.changes(), 4);
    QCOMPARE(samples::inconsistency(), QString());
}

void tst_ChangeFeed::customFields()
{
    TestStore store;
    data().resetCustomFields({"Shoe", "Hat"});
    QVERIFY(data().addPerson(fullPerson("a", root())));
    OtherProcess other(store.filePath());
    samples::Watch watch;
    QVERIFY(other.write(ChangeKind::CustomFieldsReset, QString(),
                        [&] { return CustomFieldTable(other.sql()).replace({"Hat"}); }));
    QTRY_COMPARE_WITH_TIMEOUT(watch.fieldsReset.count(), 1, 1000);
    QCOMPARE(data().getCustomFields(), QStringList({"Hat"}));
    QCOMPARE(data().getPersonBySerialNum("SN-a", false).customFields.keys(), QStringList({"Hat"}));
    QCOMPARE(samples::inconsistency(), QString());
}

void tst_ChangeFeed::devices()
{
    TestStore store;
    OtherProcess other(store.filePath());
    QSignalSpy changed(&DeviceRegistry::instance(), &DeviceRegistry::signalDevicesChanged);
    Device device;
    device.id = "door";
    device.name = "Door";
    QVERIFY(other.write(ChangeKind::DevicesChanged, QString(), [&] {
        return DeviceTable(other.sql()).save({device, {}});
    }));
    QTRY_COMPARE_WITH_TIMEOUT(changed.count(), 1, 1000);
    QCOMPARE(DeviceRegistry::instance().device("door").name, QString("Door"));
}

void tst_ChangeFeed::whatCameAndWentIsNotAnnounced()
{
    TestStore store;
    OtherProcess other(store.filePath());
    samples::Watch watch;
    QVERIFY(other.add(1, person("brief", "A")));
    QVERIFY(other.update(1, person("brief", "A"), person("brief", "A", "renamed")));
    QVERIFY(other.remove(1));
    QVERIFY(other.add(2, person("stays", "A")));
    QTRY_COMPARE_WITH_TIMEOUT(watch.added.count(), 1, 1000);
    QCOMPARE(samples::ids(watch.added.first().at(0).value<PersonList>()), QStringList({"stays"}));
    QCOMPARE(watch.changes(), 1);
    QCOMPARE(samples::inconsistency(), QString());
}

void tst_ChangeFeed::swappedSerialNumbers()
{
    TestStore store;
    QVERIFY(data().addPersons({person("a", "A"), person("b", "B")}));
    OtherProcess other(store.filePath());
    samples::Watch watch;
    QVERIFY(other.update(1, person("a", "A"), person("a", "")));
    QVERIFY(other.update(2, person("b", "B"), person("b", "A")));
    QVERIFY(other.update(1, person("a", ""), person("a", "B")));
    QTRY_COMPARE_WITH_TIMEOUT(watch.updated.count(), 3, 1000);
    QCOMPARE(data().getPersonBySerialNum("A", false).id, QString("b"));
    QCOMPARE(data().getPersonBySerialNum("B", false).id, QString("a"));
    QCOMPARE(samples::inconsistency(), QString());
}

void tst_ChangeFeed::ownWritesSeeForeignOnesFirst()
{
    TestStore store;
    OtherProcess other(store.filePath());
    samples::Watch watch;
    QVERIFY(other.add(1, person("theirs", "A")));
    QVERIFY(!data().addPerson(person("ours", "A"))); // at once, before the next look
    QCOMPARE(watch.failed.count(), 1);
    QVERIFY(data().addPerson(person("ours", "B")));
    QCOMPARE(samples::ids(data().getAllPersons(false)), QStringList({"theirs", "ours"}));
    QTRY_COMPARE_WITH_TIMEOUT(watch.added.count(), 3, 1000); // refused, ours, and theirs a little later
    QCOMPARE(samples::ids(watch.added.last().at(0).value<PersonList>()), QStringList({"theirs"}));
    QTest::qWait(600);
    QCOMPARE(watch.added.count(), 3); // exactly once
    QCOMPARE(samples::inconsistency(), QString());
}

void tst_ChangeFeed::aCheckTellsOfForeignChanges()
{
    TestStore store;
    OtherProcess other(store.filePath());
    samples::Watch watch;
    QVERIFY(other.add(1, person("theirs", "A")));
    QCOMPARE(samples::inconsistency(), QString()); // at once, before the next look
    QCOMPARE(samples::ids(data().getAllPersons(false)), QStringList({"theirs"}));
    QTRY_COMPARE_WITH_TIMEOUT(watch.added.count(), 1, 1000);
}

void tst_ChangeFeed::changesOfUnknownKind()
{
    TestStore store;
    OtherProcess other(store.filePath());
    samples::Watch watch;
    QVERIFY(other.write(static_cast<ChangeKind>(99), "whatever", [] { return true; }));
    QVERIFY(other.add(1, person("a", "A")));
    QTRY_COMPARE_WITH_TIMEOUT(watch.added.count(), 1, 1000);
    QCOMPARE(watch.changes(), 1);
}

// The log no longer reaches back to what this process saw last.
void tst_ChangeFeed::longAbsence()
{
    TestStore store;
    QVERIFY(data().addOrganization({"x", root(), "X"}));
    QVERIFY(data().addPersons({person("a", "A"), person("b", "B"), person("c", "C")}));
    OtherProcess other(store.filePath());
    samples::Watch watch;
    QVERIFY(other.write(ChangeKind::PersonsAdded, "4", [&] {
        const OrganizationIndex none;
        PersonTable table(other.sql(), none);
        OrganizationTable organizations(other.sql());
        return table.insertPerson(4, person("d", "D")) && table.insertRecord({4, 4, person("d", "D")}) &&
               table.deleteRecord(1) && table.updatePerson(2, person("b", "B"), person("b", "B", "Bea")) &&
               organizations.remove(2) && organizations.insert({3, {"y", root(), "Y"}}, 1) &&
               CustomFieldTable(other.sql()).replace({"Shoe"}) &&
               other.sql().run("UPDATE change_log SET number = number + 50000");
    }));
    QTRY_COMPARE_WITH_TIMEOUT(watch.added.count(), 1, 1000);
    QCOMPARE(samples::ids(watch.added.first().at(0).value<PersonList>()), QStringList({"d"}));
    QCOMPARE(watch.deleted.first().at(0).toStringList(), QStringList({"a"}));
    QCOMPARE(watch.updated.first().at(0).value<PersonInfo>().name, QString("Bea"));
    QCOMPARE(watch.organizationAdded.first().at(0).value<OrganizationInfo>().id, QString("y"));
    QCOMPARE(watch.organizationsDeleted.first().at(0).toStringList(), QStringList({"x"}));
    QCOMPARE(watch.fieldsReset.first().first().toStringList(), QStringList({"Shoe"}));
    QCOMPARE(watch.changes(), 6);
    QCOMPARE(samples::inconsistency(), QString());
}

void tst_ChangeFeed::ownChangesAreNotAnnouncedAgain()
{
    TestStore store;
    samples::Watch watch;
    QVERIFY(data().addPerson(person("a", "A")));
    QTest::qWait(700); // over several looks and a checkpoint
    QCOMPARE(watch.changes(), 1);
}

QTEST_GUILESS_MAIN(tst_ChangeFeed)
#include "tst_ChangeFeed.moc"
