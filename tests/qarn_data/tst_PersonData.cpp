#include "Samples.h"
#include "TestStore.h"

#include <QtTest>

using namespace qarn_data;
using samples::fullPerson;
using samples::ids;
using samples::person;
using samples::root;

namespace
{

PersonData& data()
{
    return PersonData::instance();
}

PersonInfo byId(const QString& id)
{
    const PersonList all = data().getAllPersons(false);
    for (const PersonInfo& info : all) {
        if (info.id == id)
            return info;
    }
    return PersonInfo();
}

PersonList persons(const QSignalSpy& spy, int call = 0)
{
    return spy.at(call).at(0).value<PersonList>();
}

} // namespace

class tst_PersonData : public QObject
{
    Q_OBJECT
private slots:
    void isEmptyWithoutStore();
    void keepsEveryMember();
    void keepsTextsOfEveryScript_data();
    void keepsTextsOfEveryScript();
    void keepsTimesToTheMillisecond_data();
    void keepsTimesToTheMillisecond();
    void leavesImagesOutOnRequest();
    void findsBySerialNumAndName();
    void givesPersonsInOrderOfAddition();
    void holdsImageBytesOnce();
    void addsWhatItCan_data();
    void addsWhatItCan();
    void givesAnIdWhereThereIsNone();
    void updatesAllRecordsOfThePerson();
    void refusesUpdates_data();
    void refusesUpdates();
    void deletesRecords();
    void movesRecords();
    void addsRecordsBeside();
    void refusesMoves();
    void notifiesAfterTheIndexIsCurrentAndUnlocked();
};

void tst_PersonData::isEmptyWithoutStore()
{
    samples::Watch watch;
    QVERIFY(data().getAllPersons(false).isEmpty());
    QVERIFY(data().getPersons({"x"}, false).isEmpty());
    QVERIFY(data().getPersonBySerialNum("A", false).id.isEmpty());
    QVERIFY(data().getPersonByName("A", false).id.isEmpty());
    QVERIFY(data().getAllPersonsSerialNum().isEmpty());
    QVERIFY(data().getAllPersonsName().isEmpty());
    QVERIFY(!data().isPersonSerialNumExist("A"));
    QVERIFY(!data().addPerson(person("a")));
    QVERIFY(!data().addPersons({person("a")}));
    QVERIFY(!data().updatePerson(person("a")));
    QVERIFY(!data().deletePersons({"a"}));
    QVERIFY(!data().changePersonsOrganization({person("a")}, "o", false));
    QCOMPARE(watch.failed.count(), 5);
    QCOMPARE(watch.changes(), 5);
}

void tst_PersonData::keepsEveryMember()
{
    TestStore store;
    const PersonInfo full = fullPerson("full", root());
    QVERIFY(data().addPerson(full));
    for (const char* when : {"at once", "after reopening"}) {
        const PersonInfo read = data().getPersonBySerialNum(full.serialNum, false);
        QVERIFY2(read.id == full.id, when);
        QCOMPARE(read.organizationId, full.organizationId);
        QCOMPARE(read.name, full.name);
        QCOMPARE(read.sex, full.sex);
        QCOMPARE(read.email, full.email);
        QCOMPARE(read.phoneNum, full.phoneNum);
        QCOMPARE(read.validStartTime, full.validStartTime);
        QCOMPARE(read.validEndTime, full.validEndTime);
        QCOMPARE(read.validEndTime.timeSpec(), Qt::LocalTime);
        QCOMPARE(read.remarks, full.remarks);
        QCOMPARE(read.faceImage1, full.faceImage1);
        QCOMPARE(read.faceImage2, full.faceImage2);
        QCOMPARE(read.faceImage3, full.faceImage3);
        QCOMPARE(read.birthDate, full.birthDate);
        QCOMPARE(read.identityType, full.identityType);
        QCOMPARE(read.identityId, full.identityId);
        QCOMPARE(read.job, full.job);
        QCOMPARE(read.employDate, full.employDate);
        QCOMPARE(read.address, full.address);
        QCOMPARE(read.customFields, full.customFields);
        QCOMPARE(samples::inconsistency(), QString());
        store.reopen();
    }
}

void tst_PersonData::keepsTextsOfEveryScript_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("kept");
    const auto same = [](const char* row, const QString& text) { QTest::newRow(row) << text << text; };
    same("empty", QString());
    same("Chinese", QString::fromUtf8("王小明"));
    same("Arabic", QString::fromUtf8("محمد"));
    same("emoji", QString::fromUtf8("👩‍🚀").repeated(16));
    same("quotes", "O'Brien \"; DROP TABLE persons; --");
    same("with a NUL", QString(QLatin1String("a\0b", 3)));
    same("long", QString(100000, 'x'));
    const QString half(QChar(0xd83d));
    QTest::newRow("half a character") << "a" + half + "b" << QString("a?b");
}

void tst_PersonData::keepsTextsOfEveryScript()
{
    QFETCH(QString, text);
    QFETCH(QString, kept);
    TestStore store;
    PersonInfo info = person("id", text);
    info.name = text;
    info.remarks = text;
    info.customFields = {{"field" + text, text}};
    QVERIFY(data().addPerson(info));
    QCOMPARE(samples::inconsistency(), QString());
    store.reopen();
    const PersonInfo read = byId("id");
    QCOMPARE(read.serialNum, kept);
    QCOMPARE(read.name, kept);
    QCOMPARE(read.remarks, kept);
    QCOMPARE(read.customFields.value("field" + kept), kept);
}

void tst_PersonData::keepsTimesToTheMillisecond_data()
{
    QTest::addColumn<QDateTime>("time");
    QTest::newRow("invalid") << QDateTime();
    QTest::newRow("winter") << QDateTime(QDate(2024, 1, 15), QTime(10, 0, 0, 1));
    QTest::newRow("summer") << QDateTime(QDate(2024, 7, 15), QTime(10, 0, 0, 999));
    QTest::newRow("start of 1970") << QDateTime::fromMSecsSinceEpoch(0);
    QTest::newRow("before 1970") << QDateTime(QDate(1912, 6, 23), QTime(1, 2, 3, 4));
    QTest::newRow("far future") << QDateTime(QDate(9999, 12, 31), QTime(23, 59, 59, 999));
    QTest::newRow("first 02:30 of the night") << QDateTime::fromMSecsSinceEpoch(1729989000000);
    QTest::newRow("second 02:30 of the night") << QDateTime::fromMSecsSinceEpoch(1729992600000);
    QTest::newRow("UTC") << QDateTime(QDate(2024, 7, 15), QTime(10, 0), Qt::UTC);
    QTest::newRow("an offset") << QDateTime(QDate(2024, 7, 15), QTime(10, 0), Qt::OffsetFromUTC, 5400);
}

void tst_PersonData::keepsTimesToTheMillisecond()
{
    QFETCH(QDateTime, time);
    TestStore store;
    // Several, so that the times are converted in bulk.
    PersonList list;
    for (int i = 0; i < 4; ++i) {
        list.append(person(QString::number(i)));
        list.last().validStartTime = time;
        list.last().validEndTime = time;
    }
    QVERIFY(data().addPersons(list));
    for (int round = 0; round < 2; ++round) {
        const PersonList all = data().getAllPersons(false);
        for (const PersonInfo& info : all) {
            QCOMPARE(info.validStartTime.isValid(), time.isValid());
            QCOMPARE(info.validStartTime.toMSecsSinceEpoch(), time.toMSecsSinceEpoch());
            QCOMPARE(info.validEndTime.toString(Qt::ISODateWithMs),
                     time.toLocalTime().toString(Qt::ISODateWithMs));
            QCOMPARE(info.validEndTime.timeSpec(), Qt::LocalTime);
        }
        store.reopen();
    }
}

void tst_PersonData::leavesImagesOutOnRequest()
{
    TestStore store;
    QVERIFY(data().addPerson(fullPerson("full", root())));
    const PersonList lists[] = {data().getAllPersons(true),
                                data().getPersons({root()}, true),
                                {data().getPersonBySerialNum("SN-full", true)},
                                {data().getPersonByName("Ludwig van B.", true)}};
    for (const PersonList& list : lists) {
        QCOMPARE(list.size(), 1);
        QCOMPARE(list.first().id, QString("full"));
        QVERIFY(list.first().faceImage1.isEmpty() && list.first().faceImage2.isEmpty() &&
                list.first().faceImage3.isEmpty());
    }
    QCOMPARE(data().getAllPersons(false).first().faceImage2, QByteArray("\xff\xd8 two"));
}

void tst_PersonData::findsBySerialNumAndName()
{
    TestStore store;
    QVERIFY(data().addPersons({person("a", "A1", "Anna"), person("b", "a1", "Bob"), person("c", "", "Anna"),
                               person("d", "", "anna")}));
    QCOMPARE(data().getPersonBySerialNum("A1", false).id, QString("a"));
    QCOMPARE(data().getPersonBySerialNum("a1", false).id, QString("b")); // case counts
    QVERIFY(data().getPersonBySerialNum("", false).id.isEmpty());
    QVERIFY(data().getPersonBySerialNum("A", false).id.isEmpty());
    QCOMPARE(data().getPersonByName("Anna", false).id, QString("a")); // the first of the name
    QCOMPARE(data().getPersonByName("anna", false).id, QString("d"));
    QVERIFY(data().getPersonByName("Nobody", false).id.isEmpty());
    QVERIFY(data().isPersonSerialNumExist("A1"));
    QVERIFY(!data().isPersonSerialNumExist("A2"));
    QVERIFY(!data().isPersonSerialNumExist(""));
    QCOMPARE(data().getAllPersonsSerialNum(), QSet<QString>({"A1", "a1"}));
    QCOMPARE(data().getAllPersonsName(), QSet<QString>({"Anna", "Bob", "anna"}));
    QVERIFY(data().deletePersons({"a"}));
    QCOMPARE(data().getPersonByName("Anna", false).id, QString("c"));
    QVERIFY(!data().isPersonSerialNumExist("A1"));
}

void tst_PersonData::givesPersonsInOrderOfAddition()
{
    TestStore store;
    const QString x = data().createOrganization({"X"});
    const QString y = data().createOrganization({"Y"});
    QVERIFY(data().addPersons({person("z", "", "", x), person("b", "", "", y)}));
    QVERIFY(data().addPersons({person("a", "", "", x), person("c")}));
    QVERIFY(data().updatePerson(person("z", "", "Zoe", x)));
    for (int round = 0; round < 2; ++round) {
        QCOMPARE(ids(data().getAllPersons(false)), QStringList({"z", "b", "a", "c"}));
        QCOMPARE(ids(data().getPersons({x}, false)), QStringList({"z", "a"}));
        QCOMPARE(ids(data().getPersons({y, x, y, "unknown"}, false)), QStringList({"z", "b", "a"}));
        QCOMPARE(ids(data().getPersons({""}, false)), QStringList({"c"}));
        QVERIFY(data().getPersons({}, false).isEmpty());
        store.reopen();
    }
}

void tst_PersonData::holdsImageBytesOnce()
{
    TestStore store;
    PersonInfo info = person("a", "", "", root());
    info.faceImage1 = QByteArray(50000, 'j');
    QVERIFY(data().addPerson(info));
    const QString x = data().createOrganization({"X"});
    QVERIFY(data().changePersonsOrganization({info}, x, true));
    for (int round = 0; round < 2; ++round) {
        const PersonList all = data().getAllPersons(false);
        QCOMPARE(all.size(), 2);
        QVERIFY(all.at(0).faceImage1.isSharedWith(all.at(1).faceImage1));
        QVERIFY(all.at(0).faceImage1.isSharedWith(data().getPersons({x}, false).first().faceImage1));
        QVERIFY(data().updatePerson(all.at(0)));
        QVERIFY(data().getAllPersons(false).at(1).faceImage1.isSharedWith(all.at(0).faceImage1));
        store.reopen();
    }
}

void tst_PersonData::addsWhatItCan_data()
{
    QTest::addColumn<PersonList>("given");
    QTest::addColumn<QStringList>("stored");
    QTest::addColumn<QString>("named");
    QTest::newRow("all good") << PersonList{person("n", "N1"), person("m", "")} << QStringList{"n", "m"}
                              << QString();
    QTest::newRow("serial number taken")
        << PersonList{person("n", "A1", "Nina"), person("m", "M1")} << QStringList{"m"} << "Nina";
    QTest::newRow("id taken") << PersonList{person("a", "N1", "Nina"), person("m", "M1")} << QStringList{"m"}
                              << "Nina";
    QTest::newRow("serial number twice")
        << PersonList{person("n", "N1"), person("m", "N1", "Max")} << QStringList{"n"} << "Max";
    QTest::newRow("id twice") << PersonList{person("n", "N1"), person("n", "N2", "Max")} << QStringList{"n"}
                              << "Max";
    QTest::newRow("unknown organization")
        << PersonList{person("n", "N1", "Nina", "nowhere"), person("m")} << QStringList{"m"} << "Nina";
    QTest::newRow("none good") << PersonList{person("n", "A1", "Nina")} << QStringList{} << "Nina";
    QTest::newRow("empty serial numbers")
        << PersonList{person("n"), person("m")} << QStringList{"n", "m"} << QString();
}

void tst_PersonData::addsWhatItCan()
{
    QFETCH(PersonList, given);
    QFETCH(QStringList, stored);
    QFETCH(QString, named);
    TestStore store;
    QVERIFY(data().addPerson(person("a", "A1")));
    samples::Watch watch;
    QCOMPARE(data().addPersons(given), named.isEmpty());
    QCOMPARE(ids(data().getAllPersons(false)), QStringList({"a"}) + stored);
    QCOMPARE(watch.changes(), 1);
    QCOMPARE(watch.added.count(), 1);
    QCOMPARE(watch.added.first().at(1).toBool(), !stored.isEmpty());
    QCOMPARE(ids(persons(watch.added)), stored.isEmpty() ? ids(given) : stored);
    QCOMPARE(watch.failed.count(), named.isEmpty() ? 0 : 1);
    QVERIFY2(watch.failure().contains(named), qPrintable(watch.failure()));
    QCOMPARE(samples::inconsistency(), QString());
}

void tst_PersonData::givesAnIdWhereThereIsNone()
{
    TestStore store;
    samples::Watch watch;
    QVERIFY(data().addPersons({person("", "A1"), person("", "B1")}));
    const PersonList added = persons(watch.added);
    QVERIFY(!added.at(0).id.isEmpty() && added.at(0).id != added.at(1).id);
    QVERIFY(data().addPersons({}));
    QCOMPARE(watch.changes(), 1);
}

void tst_PersonData::updatesAllRecordsOfThePerson()
{
    TestStore store;
    const QString x = data().createOrganization({"X"});
    const QString y = data().createOrganization({"Y"});
    QVERIFY(data().addPersons({fullPerson("a", root()), person("b", "B1")}));
    QVERIFY(data().changePersonsOrganization({byId("a")}, x, true));
    const QString beside = data().getPersons({x}, false).first().id;
    PersonInfo changed = byId("a");
    changed.organizationId = y;
    changed.serialNum = "NEW";
    changed.name = "New name";
    changed.faceImage1.clear();
    changed.faceImage2 = changed.faceImage3;
    changed.customFields = {{"Hat", "60"}};
    samples::Watch watch;
    QVERIFY(data().updatePerson(changed));
    QCOMPARE(watch.changes(), 1);
    QCOMPARE(watch.updated.first().at(0).value<PersonInfo>().name, QString("New name"));
    QCOMPARE(watch.updated.first().at(1).toStringList(), QStringList({"a", beside}));
    QCOMPARE(watch.updated.first().at(2).toBool(), true);
    for (int round = 0; round < 2; ++round) {
        QCOMPARE(byId("a").organizationId, y); // of this record only
        QCOMPARE(byId(beside).organizationId, x);
        for (const QString& id : {QString("a"), beside}) {
            QCOMPARE(byId(id).serialNum, QString("NEW"));
            QCOMPARE(byId(id).name, QString("New name"));
            QVERIFY(byId(id).faceImage1.isEmpty());
            QCOMPARE(byId(id).faceImage2, QByteArray("\xff\xd8 three"));
            QCOMPARE(byId(id).customFields, changed.customFields);
        }
        QVERIFY(data().isPersonSerialNumExist("NEW"));
        QVERIFY(!data().isPersonSerialNumExist("SN-a"));
        QCOMPARE(samples::inconsistency(), QString());
        store.reopen();
    }
}

void tst_PersonData::refusesUpdates_data()
{
    QTest::addColumn<PersonInfo>("changed");
    QTest::newRow("unknown id") << person("nobody", "N1");
    QTest::newRow("empty id") << person("", "N1");
    QTest::newRow("serial number taken") << person("a", "B1");
    QTest::newRow("unknown organization") << person("a", "A1", "Anna", "nowhere");
    QTest::newRow("organization where the person already is") << person("a", "A1", "Anna", "x");
}

void tst_PersonData::refusesUpdates()
{
    QFETCH(PersonInfo, changed);
    TestStore store;
    QVERIFY(data().addOrganization({"x", root(), "X"}));
    QVERIFY(data().addPersons({person("a", "A1", "Anna"), person("b", "B1", "Bob")}));
    QVERIFY(data().changePersonsOrganization({person("a")}, "x", true));
    samples::Watch watch;
    QVERIFY(!data().updatePerson(changed));
    QCOMPARE(watch.failed.count(), 1);
    QCOMPARE(watch.changes(), 1);
    QCOMPARE(watch.updated.first().at(2).toBool(), false);
    QCOMPARE(byId("a").serialNum, QString("A1"));
    QCOMPARE(byId("a").name, QString("Anna"));
    QCOMPARE(samples::inconsistency(), QString());
}

void tst_PersonData::deletesRecords()
{
    TestStore store;
    const QString x = data().createOrganization({"X"});
    QVERIFY(data().addPersons({person("a", "A1", "", root()), person("b", "B1"), person("c", "C1")}));
    QVERIFY(data().changePersonsOrganization({person("a")}, x, true));
    samples::Watch watch;
    QVERIFY(data().deletePersons({"a", "unknown", "b", "a"}));
    QCOMPARE(watch.changes(), 1);
    QCOMPARE(watch.deleted.first().at(0).toStringList(), QStringList({"a", "b"}));
    QVERIFY(data().isPersonSerialNumExist("A1")); // another record is left
    QVERIFY(!data().isPersonSerialNumExist("B1"));
    QCOMPARE(data().getAllPersons(false).size(), 2);
    QCOMPARE(samples::inconsistency(), QString());
    QVERIFY(data().deletePersons(ids(data().getPersons({x}, false))));
    QVERIFY(!data().isPersonSerialNumExist("A1")); // the person went with the last one
    QVERIFY(data().addPerson(person("d", "A1")));
    watch.clear();
    QVERIFY(data().deletePersons({"unknown"}));
    QVERIFY(data().deletePersons({}));
    QCOMPARE(watch.changes() + watch.failed.count(), 0);
    QCOMPARE(samples::inconsistency(), QString());
}

void tst_PersonData::movesRecords()
{
    TestStore store;
    QVERIFY(data().addOrganization({"x", root(), "X"}));
    QVERIFY(
        data().addPersons({person("a", "A1", "", root()), person("b", "B1"), person("c", "C1", "", "x")}));
    QVERIFY(data().changePersonsOrganization({person("b")}, root(), true));
    const QString beside = data().getPersonBySerialNum("B1", false).id == "b"
                               ? data().getPersons({root()}, false).last().id
                               : QString("b");
    samples::Watch watch;
    // b has two records: the first to come moves, the other one is dropped. c is there already.
    QVERIFY(data().changePersonsOrganization({person("a"), person("b"), person(beside), person("c")}, "x",
                                             false));
    QCOMPARE(watch.changes(), 1);
    QCOMPARE(ids(persons(watch.added)), QStringList({"a", "b", "c"}));
    QCOMPARE(persons(watch.added).first().organizationId, QString("x"));
    QCOMPARE(persons(watch.added).first().serialNum, QString("A1")); // as stored, not as given
    for (int round = 0; round < 2; ++round) {
        QCOMPARE(ids(data().getPersons({"x"}, false)), QStringList({"a", "b", "c"}));
        QCOMPARE(data().getAllPersons(false).size(), 3);
        QVERIFY(!data().isOrganizationsHasPersons({root()}));
        QCOMPARE(samples::inconsistency(), QString());
        store.reopen();
    }
    QVERIFY(data().changePersonsOrganization({person("a")}, "", false)); // out of every organization
    QCOMPARE(byId("a").organizationId, QString());
}

void tst_PersonData::addsRecordsBeside()
{
    TestStore store;
    QVERIFY(data().addOrganization({"x", root(), "X"}));
    QVERIFY(data().addPersons({fullPerson("a", root()), person("c", "C1", "", "x")}));
    samples::Watch watch;
    QVERIFY(data().changePersonsOrganization({person("a"), person("c")}, "x", true));
    const PersonList shown = persons(watch.added);
    QCOMPARE(shown.size(), 2);
    QVERIFY(shown.at(0).id != "a" && !shown.at(0).id.isEmpty());
    QCOMPARE(shown.at(0).organizationId, QString("x"));
    QCOMPARE(shown.at(0).customFields, fullPerson("a", root()).customFields);
    QCOMPARE(shown.at(1).id, QString("c")); // there is one already
    QCOMPARE(byId("a").organizationId, root());
    QCOMPARE(data().getAllPersons(false).size(), 3);
    QVERIFY(data().changePersonsOrganization({person("a")}, "x", true));
    QCOMPARE(data().getAllPersons(false).size(), 3);
    QCOMPARE(data().getPersonBySerialNum("SN-a", false).id, QString("a")); // the record added first
    QCOMPARE(samples::inconsistency(), QString());
}

void tst_PersonData::refusesMoves()
{
    TestStore store;
    QVERIFY(data().addOrganization({"x", root(), "X"}));
    QVERIFY(data().addPersons({person("a", "A1", "", root())}));
    samples::Watch watch;
    QVERIFY(!data().changePersonsOrganization({person("a")}, "nowhere", false));
    QCOMPARE(watch.failed.count(), 1);
    QCOMPARE(watch.changes(), 1);
    QCOMPARE(watch.added.first().at(1).toBool(), false);
    QCOMPARE(byId("a").organizationId, root());
    watch.clear();
    // What can be moved is moved; the rest is named.
    QVERIFY(!data().changePersonsOrganization({person("gone", "", "Gustav"), person("a")}, "x", false));
    QCOMPARE(watch.failed.count(), 1);
    QVERIFY(watch.failure().contains("Gustav"));
    QCOMPARE(ids(persons(watch.added)), QStringList({"a"}));
    QCOMPARE(byId("a").organizationId, QString("x"));
}

void tst_PersonData::notifiesAfterTheIndexIsCurrentAndUnlocked()
{
    TestStore store;
    bool seen = false;
    QObject context;
    connect(&DataSignals::instance(), &DataSignals::signalAddPersonsToLocalDB, &context,
            [&](const PersonList& added, bool) {
                if (added.first().id != "a")
                    return;
                seen = byId("a").name == "a" && data().addPerson(person("from the slot")) &&
                       data().updatePerson(person("a", "", "renamed in the slot"));
            });
    QVERIFY(data().addPerson(person("a")));
    QVERIFY(seen);
    QCOMPARE(byId("a").name, QString("renamed in the slot"));
    QCOMPARE(byId("from the slot").id, QString("from the slot"));
}

QTEST_GUILESS_MAIN(tst_PersonData)
#include "tst_PersonData.moc"
