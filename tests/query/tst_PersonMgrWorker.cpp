#include "query/PersonMgrWorker.h"
#include "query/PersonQueryCondition.h"

#include "TestPersons.h"
#include "TestStore.h"

#include <qarn_data/PersonData.h>

#include <QSignalSpy>
#include <QtTest>

using namespace qarn_personMgr;
using qarn_data::DataService;
using qarn_data::OrganizationInfo;
using qarn_data::PersonData;
using qarn_data::PersonInfo;

namespace
{

QStringList idsOf(const QList<PersonInfo>& persons)
{
    QStringList ids;
    for (const PersonInfo& info : persons)
        ids.append(info.id);
    return ids;
}

} // namespace

class tst_PersonMgrWorker : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void isOneObject();
    void deliversPages_data();
    void deliversPages();
    void answersInsideTheCall();
    void deliversNobody();
    void showsTheFirstPageOfAnotherSize();
    void filtersByName();
    void filtersBySerialNumber();
    void filtersByValidity();
    void queriesOrganizations();
    void turnsPagesWithoutTheStore();
    void removesKeptPersons();
    void updatesKeptPersons();
    void leavesTheListsOfOthersAlone();
    void showsTheFirstPageWhileTheStoreIsRead();
    void correctsWhatWasShownWhileTheStoreWasRead();

private:
    void addPersons(int count);
    void query(const PersonQueryCondition& condition = PersonQueryCondition());
    QList<PersonInfo> shown() const { return m_answer.last().at(0).value<QList<PersonInfo>>(); }
    int page() const { return m_answer.last().at(1).toInt(); }
    int total() const { return m_answer.last().at(2).toInt(); }

    std::unique_ptr<TestStore> m_store;
    QString m_root;
    QSignalSpy m_answer{&PersonMgrWorker::instance(), &PersonMgrWorker::signalCurPagePersons};
};

void tst_PersonMgrWorker::init()
{
    m_store = std::make_unique<TestStore>();
    m_root = PersonData::instance().getRootOrganizationId();
    PersonMgrWorker::instance().queryPersons(PersonQueryCondition());
    m_answer.clear();
}

void tst_PersonMgrWorker::cleanup()
{
    m_store.reset();
}

void tst_PersonMgrWorker::addPersons(int count)
{
    QList<PersonInfo> persons;
    for (int i = 1; i <= count; ++i)
        persons.append(makePerson(QString::number(i), QStringLiteral("Person %1").arg(i), m_root));
    QVERIFY(PersonData::instance().addPersons(persons));
}

void tst_PersonMgrWorker::query(const PersonQueryCondition& condition)
{
    m_answer.clear();
    PersonMgrWorker::instance().queryPersons(condition);
    QCOMPARE(m_answer.count(), 1);
}

void tst_PersonMgrWorker::isOneObject()
{
    QCOMPARE(&PersonMgrWorker::instance(), &PersonMgrWorker::instance());
    QVERIFY(PersonMgrWorker::instance().parent() == nullptr);
}

void tst_PersonMgrWorker::deliversPages_data()
{
    QTest::addColumn<int>("wanted");
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("first");
    QTest::addColumn<int>("rows");

    QTest::newRow("1") << 1 << 1 << "1" << 50;
    QTest::newRow("2") << 2 << 2 << "51" << 50;
    QTest::newRow("3") << 3 << 3 << "101" << 20;
    QTest::newRow("4") << 4 << 3 << "101" << 20;
    QTest::newRow("-1") << -1 << 3 << "101" << 20;
    QTest::newRow("0") << 0 << 3 << "101" << 20;
}

void tst_PersonMgrWorker::deliversPages()
{
    QFETCH(int, wanted);
    addPersons(120);
    PersonQueryCondition condition;
    condition.curPage = wanted;
    query(condition);
    QTEST(page(), "page");
    QTEST(shown().count(), "rows");
    QTEST(shown().first().id, "first");
    QCOMPARE(total(), 120);

    m_answer.clear();
    PersonMgrWorker::instance().gotoPage(wanted, 50);
    QTEST(page(), "page");
    QTEST(shown().first().id, "first");
    QCOMPARE(total(), 120);
}

void tst_PersonMgrWorker::answersInsideTheCall()
{
    addPersons(1);
    bool inCall = false;
    bool answered = false;
    QObject context;
    connect(&PersonMgrWorker::instance(), &PersonMgrWorker::signalCurPagePersons, &context,
            [&] { answered = inCall; });
    inCall = true;
    PersonMgrWorker::instance().queryPersons(PersonQueryCondition());
    inCall = false;
    QVERIFY(answered);
}

void tst_PersonMgrWorker::deliversNobody()
{
    addPersons(3);
    PersonQueryCondition condition;
    condition.name = QStringLiteral("nobody");
    query(condition);
    QVERIFY(shown().isEmpty());
    QCOMPARE(page(), 0);
    QCOMPARE(total(), 0);

    PersonMgrWorker::instance().showFirstPage(20);
    QVERIFY(shown().isEmpty());
    QCOMPARE(page(), 1);
    QCOMPARE(total(), 0);

    PersonMgrWorker::instance().gotoPage(1, 20);
    QVERIFY(shown().isEmpty());
    QCOMPARE(page(), 0);
    QCOMPARE(total(), 0);
    QVERIFY(PersonMgrWorker::instance().cachedPersonIds().isEmpty());
}

void tst_PersonMgrWorker::showsTheFirstPageOfAnotherSize()
{
    addPersons(120);
    PersonQueryCondition condition;
    condition.curPage = 3;
    query(condition);
    PersonMgrWorker::instance().showFirstPage(100);
    QCOMPARE(shown().count(), 100);
    QCOMPARE(shown().first().id, QStringLiteral("1"));
    QCOMPARE(page(), 1);
    QCOMPARE(total(), 120);
}

void tst_PersonMgrWorker::filtersByName()
{
    QVERIFY(
        PersonData::instance().addPersons({makePerson("1", "xaby", m_root), makePerson("2", "XABY", m_root),
                                           makePerson("3", "ab", m_root), makePerson("4", "ba", m_root)}));
    PersonQueryCondition condition;
    condition.name = QStringLiteral("ab");
    query(condition);
    QCOMPARE(idsOf(shown()), QStringList({"1", "3"}));
    QCOMPARE(total(), 2);
}

void tst_PersonMgrWorker::filtersBySerialNumber()
{
    addPersons(12);
    PersonQueryCondition condition;
    condition.serialNum = QStringLiteral("1");
    query(condition);
    QCOMPARE(idsOf(shown()), QStringList({"1", "10", "11", "12"}));
    condition.serialNum = QStringLiteral("s1");
    query(condition);
    QCOMPARE(total(), 0);
}

void tst_PersonMgrWorker::filtersByValidity()
{
    PersonInfo valid = makePerson("valid", "a", m_root);
    PersonInfo later = makePerson("later", "b", m_root);
    later.validStartTime = QDateTime::currentDateTime().addDays(1);
    PersonInfo past = makePerson("past", "c", m_root);
    past.validEndTime = QDateTime::currentDateTime().addDays(-1);
    QVERIFY(PersonData::instance().addPersons({valid, later, past}));

    PersonQueryCondition condition;
    query(condition);
    QCOMPARE(idsOf(shown()), QStringList({"valid", "later", "past"}));
    condition.validType = InvalidPersons;
    query(condition);
    QCOMPARE(idsOf(shown()), QStringList({"later", "past"}));
    condition.validType = ValidPersons;
    query(condition);
    QCOMPARE(idsOf(shown()), QStringList({"valid"}));
    condition.validType = 5;
    query(condition);
    QCOMPARE(total(), 3);
}

void tst_PersonMgrWorker::queriesOrganizations()
{
    for (const char* id : {"east", "west"})
        QVERIFY(PersonData::instance().addOrganization({QLatin1String(id), m_root, QLatin1String(id)}));
    QVERIFY(PersonData::instance().addPersons({makePerson("1", "a", m_root), makePerson("2", "a", "east"),
                                               makePerson("3", "a", "west"), makePerson("4", "b", "east")}));

    PersonQueryCondition condition;
    query(condition);
    QCOMPARE(idsOf(shown()), QStringList({"1", "2", "3", "4"}));
    condition.organizationIds = QStringList{"east"};
    query(condition);
    QCOMPARE(idsOf(shown()), QStringList({"2", "4"}));
    condition.organizationIds = QStringList{"east", "west"};
    condition.name = QStringLiteral("a");
    query(condition);
    QCOMPARE(idsOf(shown()), QStringList({"2", "3"}));
}

void tst_PersonMgrWorker::turnsPagesWithoutTheStore()
{
    addPersons(60);
    query();
    m_store.reset();
    m_answer.clear();
    PersonMgrWorker::instance().gotoPage(2, 50);
    QCOMPARE(shown().count(), 10);
    QCOMPARE(total(), 60);
    QCOMPARE(PersonMgrWorker::instance().cachedPersonIds().count(), 60);
}

void tst_PersonMgrWorker::removesKeptPersons()
{
    addPersons(5);
    query();
    m_answer.clear();
    PersonMgrWorker::instance().removeCachedPersons({"9", ""});
    PersonMgrWorker::instance().removeCachedPersons({});
    QCOMPARE(PersonMgrWorker::instance().cachedPersonIds(), QStringList({"1", "2", "3", "4", "5"}));
    PersonMgrWorker::instance().removeCachedPersons({"5", "2", "2", "9"});
    QCOMPARE(PersonMgrWorker::instance().cachedPersonIds(), QStringList({"1", "3", "4"}));
    QCOMPARE(m_answer.count(), 0);
    PersonMgrWorker::instance().gotoPage(1, 50);
    QCOMPARE(idsOf(shown()), QStringList({"1", "3", "4"}));
}

void tst_PersonMgrWorker::updatesKeptPersons()
{
    addPersons(3);
    query();
    m_answer.clear();
    PersonInfo info = makePerson("other", "New name", "elsewhere");
    info.faceImage2 = "picture";
    info.customFields.insert(QStringLiteral("field"), QStringLiteral("value"));
    PersonMgrWorker::instance().updateCachedPersons(info, {"3", "1", "1", "unknown"});
    QCOMPARE(m_answer.count(), 0);

    PersonMgrWorker::instance().gotoPage(1, 50);
    QCOMPARE(idsOf(shown()), QStringList({"1", "2", "3"}));
    for (int row : {0, 2}) {
        QCOMPARE(shown().at(row).name, QStringLiteral("New name"));
        QCOMPARE(shown().at(row).serialNum, QStringLiteral("Sother"));
        QCOMPARE(shown().at(row).organizationId, m_root);
        QCOMPARE(shown().at(row).faceImage2, QByteArray("picture"));
        QCOMPARE(shown().at(row).customFields.value("field"), QStringLiteral("value"));
    }
    QCOMPARE(shown().at(1).name, QStringLiteral("Person 2"));
}

/// The kept list may be shared with the data service; correcting it must not reach into the store.
void tst_PersonMgrWorker::leavesTheListsOfOthersAlone()
{
    addPersons(3);
    query();
    PersonMgrWorker::instance().updateCachedPersons(makePerson("x", "changed", m_root), {"1"});
    PersonMgrWorker::instance().removeCachedPersons({"2"});
    const QList<PersonInfo> stored = PersonData::instance().getAllPersons(false);
    QCOMPARE(idsOf(stored), QStringList({"1", "2", "3"}));
    QCOMPARE(stored.first().name, QStringLiteral("Person 1"));
}

/// The answer is the same whether the store is still being read or not.
void tst_PersonMgrWorker::showsTheFirstPageWhileTheStoreIsRead()
{
    constexpr int count = 20000;
    constexpr int attempts = 50; // to meet the moment
    addPersons(count);
    bool met = false;
    for (int attempt = 0; attempt < attempts && !met; ++attempt) {
        DataService::instance().close();
        QVERIFY(DataService::instance().openAhead(m_store->filePath()));
        query(PersonQueryCondition());
        QList<PersonInfo> first;
        int all = 0;
        met = PersonData::instance().getFirstPersons(1, &first, &all);
        QCOMPARE(idsOf(shown()).first(), QStringLiteral("1"));
        QCOMPARE(idsOf(shown()).count(), 50);
        QCOMPARE(page(), 1);
        QCOMPARE(total(), count);
        m_answer.clear();
        PersonMgrWorker::instance().gotoPage(-1, 50);
        QCOMPARE(idsOf(shown()).last(), QString::number(count));
        QCOMPARE(PersonMgrWorker::instance().cachedPersonIds().count(), count);
    }
    QVERIFY(met);
}

void tst_PersonMgrWorker::correctsWhatWasShownWhileTheStoreWasRead()
{
    addPersons(5000);
    DataService::instance().close();
    QVERIFY(DataService::instance().openAhead(m_store->filePath()));
    query(PersonQueryCondition());
    PersonMgrWorker::instance().removeCachedPersons({QStringLiteral("2")});
    PersonInfo changed = makePerson(QString(), QStringLiteral("Changed"), QString());
    PersonMgrWorker::instance().updateCachedPersons(changed, {QStringLiteral("3")});
    m_answer.clear();
    PersonMgrWorker::instance().showFirstPage(2);
    QCOMPARE(idsOf(shown()), QStringList({"1", "3"}));
    QCOMPARE(total(), 4999);
    QCOMPARE(shown().last().name, changed.name);
}

QTEST_GUILESS_MAIN(tst_PersonMgrWorker)
#include "tst_PersonMgrWorker.moc"
