#include "PersonComparison.h"
#include "StoreFolder.h"

#include <qarn_data/DataService.h>
#include <qarn_data/PersonData.h>

#include <QSignalSpy>
#include <QtTest>

using qarn_data::DataService;
using qarn_data::PersonData;
using qarn_data::PersonInfo;
using qarn_data::PersonList;

namespace
{

constexpr int Count = 20000;
constexpr int Page = 50;
constexpr int Attempts = 50; ///< to meet the moment in which the store is being read

bool openAhead(const StoreFolder& folder)
{
    QString error;
    const bool ok = DataService::instance().openAhead(folder.storePath(), &error);
    if (!ok)
        qWarning("%s", qPrintable(error));
    return ok;
}

} // namespace

/// The first page is there while the rest of the store is being read.
class tst_OpenAhead : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanup();
    void firstPersonsComeBeforeTheOthers();
    void readsWaitForAll();
    void writesWaitForAll();
    void closesAtOnce();
    void smallStoreIsAllThere_data();
    void smallStoreIsAllThere();
    void tellsDamageThatIsFoundLater();
    void refusesWhatIsNoStore();

private:
    StoreFolder m_big;
};

void tst_OpenAhead::initTestCase()
{
    m_big.makeStore(Count);
}

void tst_OpenAhead::cleanup()
{
    DataService::instance().close();
}

void tst_OpenAhead::firstPersonsComeBeforeTheOthers()
{
    bool met = false;
    for (int attempt = 0; attempt < Attempts && !met; ++attempt) {
        QVERIFY(openAhead(m_big));
        QVERIFY(DataService::instance().isOpen());
        PersonList first;
        int total = 0;
        met = PersonData::instance().getFirstPersons(Page, &first, &total);
        const PersonList all = PersonData::instance().getAllPersons(false);
        QCOMPARE(all.count(), Count);
        if (met) {
            QCOMPARE(total, Count);
            QCOMPARE(first.count(), Page);
            for (int i = 0; i < Page; ++i)
                QCOMPARE(differingMember(first.at(i), all.at(i)), QString());
        }
        QVERIFY(!PersonData::instance().getFirstPersons(Page, &first, &total));
    }
    QVERIFY(met);
}

void tst_OpenAhead::readsWaitForAll()
{
    const QString lastId = QStringLiteral("kept-%1").arg(Count - 1);
    QVERIFY(openAhead(m_big));
    const QSet<QString> serialNums = PersonData::instance().getAllPersonsSerialNum();
    QCOMPARE(serialNums.count(), Count);
    const QString root = PersonData::instance().getRootOrganizationId();
    QVERIFY(openAhead(m_big));
    const PersonList all = PersonData::instance().getAllPersons(false);
    QCOMPARE(all.last().id, lastId);
    QVERIFY(openAhead(m_big));
    QCOMPARE(PersonData::instance().getPersonByName(all.last().name, false).name, all.last().name);
    QVERIFY(openAhead(m_big));
    QVERIFY(PersonData::instance().isPersonSerialNumExist(all.last().serialNum));
    QVERIFY(openAhead(m_big));
    QVERIFY(PersonData::instance().getPersons({root, all.last().organizationId}, false).count() > 0);
}

void tst_OpenAhead::writesWaitForAll()
{
    StoreFolder folder;
    folder.makeStore(Count / 10);
    QVERIFY(openAhead(folder));
    PersonInfo person = PersonInfo();
    person.id = QStringLiteral("new");
    QVERIFY(PersonData::instance().addPerson(person));
    QCOMPARE(PersonData::instance().getAllPersons(false).count(), Count / 10 + 1);
    QVERIFY(openAhead(folder));
    QVERIFY(PersonData::instance().deletePersons({person.id}));
    QString problem;
    QVERIFY2(DataService::instance().checkConsistency(&problem), qPrintable(problem));
    QCOMPARE(PersonData::instance().getAllPersons(false).count(), Count / 10);
}

void tst_OpenAhead::closesAtOnce()
{
    for (int i = 0; i < 5; ++i) {
        QVERIFY(openAhead(m_big));
        DataService::instance().close();
        QVERIFY(!DataService::instance().isOpen());
        QCOMPARE(PersonData::instance().getAllPersons(false).count(), 0);
    }
}

void tst_OpenAhead::smallStoreIsAllThere_data()
{
    QTest::addColumn<int>("count");
    for (const int count : {0, 1, Page, 200, 201})
        QTest::addRow("%d", count) << count;
}

void tst_OpenAhead::smallStoreIsAllThere()
{
    QFETCH(int, count);
    StoreFolder folder;
    folder.makeStore(count);
    QVERIFY(openAhead(folder));
    PersonList first;
    int total = -1;
    if (PersonData::instance().getFirstPersons(Page, &first, &total)) {
        QCOMPARE(first.count(), Page);
        QCOMPARE(total, count);
    }
    QCOMPARE(PersonData::instance().getAllPersons(false).count(), count);
    DataService::instance().close();
}

void tst_OpenAhead::tellsDamageThatIsFoundLater()
{
    StoreFolder folder;
    folder.makeStore(Count / 4);
    folder.spoilLastPersons();
    const auto before = folder.content().value(QStringLiteral("register.db"));
    QStringList reasons; // told in another thread
    QObject context;
    connect(&DataService::instance(), &DataService::signalLoadingFailed, &context,
            [&reasons](const QString& reason) { reasons.append(reason); });
    QVERIFY(openAhead(folder));
    QCOMPARE(PersonData::instance().getAllPersons(false).count(), 0);
    QTRY_COMPARE(reasons.count(), 1);
    const QString reason = reasons.first();
    QVERIFY2(reason.contains(folder.storePath()), qPrintable(reason));
    QVERIFY(!DataService::instance().isOpen());
    QVERIFY(!PersonData::instance().addPerson(PersonInfo()));
    DataService::instance().close();
    QCOMPARE(folder.content().value(QStringLiteral("register.db")), before);

    QString error;
    QVERIFY(!DataService::instance().open(folder.storePath(), &error));
    QCOMPARE(error, reason);
    QCOMPARE(reasons.count(), 1);
}

void tst_OpenAhead::refusesWhatIsNoStore()
{
    StoreFolder folder;
    folder.write(QByteArray(9000, 'x'));
    QSignalSpy failed(&DataService::instance(), &DataService::signalLoadingFailed);
    QString error;
    QVERIFY(!DataService::instance().openAhead(folder.storePath(), &error));
    QVERIFY2(error.contains(folder.storePath()), qPrintable(error));
    QVERIFY(!DataService::instance().isOpen());
    QCOMPARE(failed.count(), 0);
}

QTEST_GUILESS_MAIN(tst_OpenAhead)
#include "tst_OpenAhead.moc"
