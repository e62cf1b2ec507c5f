#include "Samples.h"
#include "TestStore.h"

#include <QtTest>

using namespace qarn_data;
using samples::organization;
using samples::person;
using samples::root;

namespace
{

PersonData& data()
{
    return PersonData::instance();
}

QStringList names(const QList<OrganizationInfo>& organizations)
{
    QStringList names;
    for (const OrganizationInfo& info : organizations)
        names.append(info.name);
    return names;
}

} // namespace

class tst_Organizations : public QObject
{
    Q_OBJECT
private slots:
    void areNotThereWithoutStore();
    void newStoreHasARoot();
    void namesOfThePath();
    void adds();
    void refusesAdditions_data();
    void refusesAdditions();
    void updates();
    void refusesUpdates_data();
    void refusesUpdates();
    void deletes();
    void refusesDeletions_data();
    void refusesDeletions();
    void createsMissingLevels_data();
    void createsMissingLevels();
    void announcesEachNewLevel();
    void tellsWhoHasPersons();
    void holdsALargeTree();
};

void tst_Organizations::areNotThereWithoutStore()
{
    samples::Watch watch;
    QVERIFY(data().getRootOrganizationId().isEmpty());
    QVERIFY(!data().isRootOrganization(""));
    QVERIFY(data().getAllOrganizations().isEmpty());
    QVERIFY(data().getOrganizationName("x").isEmpty());
    QVERIFY(data().getOrganizationNameRecursively("x").isEmpty());
    QVERIFY(data().getHierarchicalOrganizationNames("x").isEmpty());
    QVERIFY(!data().isOrganizationsHasPersons({"x"}));
    QVERIFY(data().createOrganization({"x"}).isEmpty());
    QVERIFY(!data().addOrganization({"x", "", "X"}));
    QVERIFY(!data().updateOrganization({"x", "", "X"}));
    QVERIFY(!data().deleteOrganizations({"x"}));
    QCOMPARE(watch.failed.count(), 4);
}

void tst_Organizations::newStoreHasARoot()
{
    TestStore store;
    QCOMPARE(names(data().getAllOrganizations()), QStringList({"All Organizations"}));
    QVERIFY(data().isRootOrganization(root()));
    QVERIFY(!data().isRootOrganization("x"));
    QVERIFY(!data().isRootOrganization(""));
    const QString before = root();
    samples::Watch watch;
    QVERIFY(data().updateOrganization({root(), "", "Company"}));
    QCOMPARE(watch.organizationUpdated.count(), 1);
    store.reopen();
    QCOMPARE(root(), before);
    QCOMPARE(data().getOrganizationName(root()), QString("Company"));
}

void tst_Organizations::namesOfThePath()
{
    TestStore store;
    const QString leaf = data().createOrganization({"Sales", "North"});
    QCOMPARE(data().getOrganizationName(leaf), QString("North"));
    QCOMPARE(data().getHierarchicalOrganizationNames(leaf),
             QStringList({"All Organizations", "Sales", "North"}));
    QCOMPARE(data().getOrganizationNameRecursively(leaf), QString("All Organizations > Sales > North"));
    QCOMPARE(data().getOrganizationNameRecursively(root()), QString("All Organizations"));
    QCOMPARE(data().getOrganizationNameRecursively("unknown"), QString());
}

void tst_Organizations::adds()
{
    TestStore store;
    samples::Watch watch;
    QVERIFY(data().addOrganization({"x", root(), "X"}));
    QVERIFY(data().addOrganization({"y", "x", "X"})); // a name may come again
    QCOMPARE(watch.changes(), 2);
    QCOMPARE(watch.organizationAdded.first().at(0).value<OrganizationInfo>().id, QString("x"));
    QCOMPARE(watch.organizationAdded.first().at(1).toBool(), true);
    store.reopen();
    QCOMPARE(data().getHierarchicalOrganizationNames("y"), QStringList({"All Organizations", "X", "X"}));
    QCOMPARE(samples::inconsistency(), QString());
}

void tst_Organizations::refusesAdditions_data()
{
    QTest::addColumn<OrganizationInfo>("added");
    QTest::newRow("empty parent") << organization("n", "", "N");
    QTest::newRow("unknown parent") << organization("n", "nowhere", "N");
    QTest::newRow("id taken") << organization("x", "y", "N");
    QTest::newRow("no id") << organization("", "x", "N");
    QTest::newRow("its own parent") << organization("n", "n", "N");
}

void tst_Organizations::refusesAdditions()
{
    QFETCH(OrganizationInfo, added);
    TestStore store;
    QVERIFY(data().addOrganization({"x", root(), "X"}));
    QVERIFY(data().addOrganization({"y", "x", "Y"}));
    samples::Watch watch;
    QVERIFY(!data().addOrganization(added));
    QCOMPARE(watch.failed.count(), 1);
    QCOMPARE(watch.changes(), 1);
    QCOMPARE(watch.organizationAdded.first().at(1).toBool(), false);
    QCOMPARE(data().getAllOrganizations().size(), 3);
    QCOMPARE(samples::inconsistency(), QString());
}

void tst_Organizations::updates()
{
    TestStore store;
    QVERIFY(data().addOrganization({"x", root(), "X"}));
    QVERIFY(data().addOrganization({"y", root(), "Y"}));
    QVERIFY(data().addOrganization({"z", "x", "Z"}));
    samples::Watch watch;
    QVERIFY(data().updateOrganization({"x", "y", "X2"})); // renamed and moved, with what stands below
    QCOMPARE(watch.changes(), 1);
    QCOMPARE(watch.organizationUpdated.first().at(0).value<OrganizationInfo>().name, QString("X2"));
    QCOMPARE(watch.organizationUpdated.first().at(1).toBool(), true);
    for (int round = 0; round < 2; ++round) {
        QCOMPARE(data().getHierarchicalOrganizationNames("z"),
                 QStringList({"All Organizations", "Y", "X2", "Z"}));
        QCOMPARE(names(data().getAllOrganizations()), QStringList({"All Organizations", "Y", "X2", "Z"}));
        QCOMPARE(data().createOrganization({"Y", "X2"}), QString("x"));
        QCOMPARE(samples::inconsistency(), QString());
        store.reopen();
    }
}

void tst_Organizations::refusesUpdates_data()
{
    QTest::addColumn<OrganizationInfo>("changed");
    QTest::newRow("unknown id") << organization("n", "x", "N");
    QTest::newRow("missing parent") << organization("x", "", "N");
    QTest::newRow("unknown parent") << organization("x", "nowhere", "N");
    QTest::newRow("below itself") << organization("x", "x", "N");
    QTest::newRow("below its child's child") << organization("x", "z", "N");
    QTest::newRow("the root below another") << organization("root", "x", "N");
}

void tst_Organizations::refusesUpdates()
{
    QFETCH(OrganizationInfo, changed);
    TestStore store;
    if (changed.id == "root")
        changed.id = root();
    QVERIFY(data().addOrganization({"x", root(), "X"}));
    QVERIFY(data().addOrganization({"y", "x", "Y"}));
    QVERIFY(data().addOrganization({"z", "y", "Z"}));
    samples::Watch watch;
    QVERIFY(!data().updateOrganization(changed));
    QCOMPARE(watch.failed.count(), 1);
    QCOMPARE(watch.changes(), 1);
    QCOMPARE(watch.organizationUpdated.first().at(1).toBool(), false);
    QCOMPARE(data().getOrganizationNameRecursively("z"), QString("All Organizations > X > Y > Z"));
    QCOMPARE(samples::inconsistency(), QString());
}

void tst_Organizations::deletes()
{
    TestStore store;
    QVERIFY(data().addOrganization({"x", root(), "X"}));
    QVERIFY(data().addOrganization({"y", "x", "Y"}));
    QVERIFY(data().addOrganization({"z", "y", "Z"}));
    samples::Watch watch;
    QVERIFY(data().deleteOrganizations({"x", "unknown", "y", "z", "x"})); // in whatever order
    QCOMPARE(watch.changes(), 1);
    QCOMPARE(watch.organizationsDeleted.first().at(0).toStringList(), QStringList({"x", "y", "z"}));
    QCOMPARE(watch.organizationsDeleted.first().at(1).toBool(), true);
    QCOMPARE(data().getAllOrganizations().size(), 1);
    watch.clear();
    QVERIFY(data().deleteOrganizations({"unknown"}));
    QVERIFY(data().deleteOrganizations({}));
    QCOMPARE(watch.changes() + watch.failed.count(), 0);
    QCOMPARE(samples::inconsistency(), QString());
}

void tst_Organizations::refusesDeletions_data()
{
    QTest::addColumn<QStringList>("ids");
    QTest::newRow("the root") << QStringList{"root"};
    QTest::newRow("the root among others") << QStringList{"empty", "root"};
    QTest::newRow("one that holds persons") << QStringList{"full"};
    QTest::newRow("one of them holds persons") << QStringList{"empty", "full"};
    QTest::newRow("a parent without its child") << QStringList{"parent"};
    QTest::newRow("a parent with one of its children") << QStringList{"parent", "child1"};
}

void tst_Organizations::refusesDeletions()
{
    QFETCH(QStringList, ids);
    TestStore store;
    ids.replaceInStrings("root", root());
    QVERIFY(data().addOrganization({"empty", root(), "Empty"}));
    QVERIFY(data().addOrganization({"full", root(), "Full"}));
    QVERIFY(data().addOrganization({"parent", root(), "Parent"}));
    QVERIFY(data().addOrganization({"child1", "parent", "Child 1"}));
    QVERIFY(data().addOrganization({"child2", "parent", "Child 2"}));
    QVERIFY(data().addPerson(person("a", "", "", "full")));
    samples::Watch watch;
    QVERIFY(!data().deleteOrganizations(ids));
    QCOMPARE(watch.failed.count(), 1);
    QCOMPARE(watch.changes(), 1);
    QCOMPARE(watch.organizationsDeleted.first().at(1).toBool(), false);
    QCOMPARE(data().getAllOrganizations().size(), 6); // all or nothing
    QCOMPARE(samples::inconsistency(), QString());
}

void tst_Organizations::createsMissingLevels_data()
{
    QTest::addColumn<QStringList>("path");
    QTest::addColumn<QStringList>("below");
    QTest::addColumn<int>("made");
    QTest::newRow("one level") << QStringList{"New"} << QStringList{"New"} << 1;
    QTest::newRow("three levels") << QStringList{"A", "B", "C"} << QStringList{"A", "B", "C"} << 3;
    QTest::newRow("below one that exists")
        << QStringList{"Sales", "South"} << QStringList{"Sales", "South"} << 1;
    QTest::newRow("all exist") << QStringList{"Sales", "North"} << QStringList{"Sales", "North"} << 0;
    QTest::newRow("case counts") << QStringList{"sales"} << QStringList{"sales"} << 1;
    QTest::newRow("begins with the root")
        << QStringList{"All Organizations", "Sales"} << QStringList{"Sales"} << 0;
    QTest::newRow("the root twice") << QStringList{"All Organizations", "All Organizations"}
                                    << QStringList{"All Organizations"} << 1;
    QTest::newRow("the root only") << QStringList{"All Organizations"} << QStringList{} << 0;
    QTest::newRow("empty levels") << QStringList{"", "Sales", "", "North", ""}
                                  << QStringList{"Sales", "North"} << 0;
    QTest::newRow("blanks around") << QStringList{" Sales ", " "} << QStringList{"Sales"} << 0;
    QTest::newRow("nothing left") << QStringList{"", ""} << QStringList{} << 0;
    QTest::newRow("nothing") << QStringList{} << QStringList{} << 0;
    QTest::newRow("same names") << QStringList{"N", "N", "N"} << QStringList{"N", "N", "N"} << 3;
}

void tst_Organizations::createsMissingLevels()
{
    QFETCH(QStringList, path);
    QFETCH(QStringList, below);
    QFETCH(int, made);
    TestStore store;
    data().createOrganization({"Sales", "North"});
    samples::Watch watch;
    const QString id = data().createOrganization(path);
    QCOMPARE(data().getHierarchicalOrganizationNames(id), QStringList({"All Organizations"}) + below);
    QCOMPARE(watch.organizationAdded.count(), made);
    QCOMPARE(watch.changes(), made);
    QCOMPARE(data().createOrganization(path), id); // makes nothing twice
    QCOMPARE(watch.changes(), made);
    QCOMPARE(samples::inconsistency(), QString());
}

void tst_Organizations::announcesEachNewLevel()
{
    TestStore store;
    samples::Watch watch;
    const QString id = data().createOrganization({"A", "B"});
    const auto first = watch.organizationAdded.at(0).at(0).value<OrganizationInfo>();
    const auto second = watch.organizationAdded.at(1).at(0).value<OrganizationInfo>();
    QCOMPARE(first.parentId, root());
    QCOMPARE(first.name, QString("A"));
    QCOMPARE(second.parentId, first.id);
    QCOMPARE(second.id, id);
    QVERIFY(id.startsWith('{') && id.endsWith('}'));
}

void tst_Organizations::tellsWhoHasPersons()
{
    TestStore store;
    const QString leaf = data().createOrganization({"X", "Y"});
    const QString other = data().createOrganization({"Z"});
    QVERIFY(data().addPerson(person("a", "", "", leaf)));
    QVERIFY(data().isOrganizationsHasPersons({leaf}));
    QVERIFY(data().isOrganizationsHasPersons({other, leaf}));
    QVERIFY(!data().isOrganizationsHasPersons({root(), other})); // what stands below does not count
    QVERIFY(!data().isOrganizationsHasPersons({}));
    QVERIFY(data().deletePersons({"a"}));
    QVERIFY(!data().isOrganizationsHasPersons({leaf}));
}

void tst_Organizations::holdsALargeTree()
{
    TestStore store;
    QStringList deep;
    for (int level = 0; level < 20; ++level)
        deep.append(QStringLiteral("Level %1").arg(level));
    const QString deepest = data().createOrganization(deep);
    for (int i = 0; i < 4979; ++i)
        QVERIFY(data().addOrganization({QStringLiteral("o%1").arg(i), i % 2 ? deepest : root(), "Twin"}));
    store.reopen();
    const QList<OrganizationInfo> all = data().getAllOrganizations();
    QCOMPARE(all.size(), 5000);
    QSet<QString> seen{QString()};
    for (const OrganizationInfo& info : all) {
        QVERIFY2(seen.contains(info.parentId), qPrintable(info.name)); // parents before children
        seen.insert(info.id);
    }
    QCOMPARE(data().getHierarchicalOrganizationNames("o1").size(), 22);
    QStringList ids;
    for (const OrganizationInfo& info : all.mid(1))
        ids.append(info.id);
    QVERIFY(data().deleteOrganizations(ids));
    QCOMPARE(samples::inconsistency(), QString());
}

QTEST_GUILESS_MAIN(tst_Organizations)
#include "tst_Organizations.moc"
