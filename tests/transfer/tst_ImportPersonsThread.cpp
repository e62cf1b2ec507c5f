#include "TestStore.h"
#include "ThreadRun.h"
#include "TransferFiles.h"

#include <XCOMMON/XThread.h>

#include <memory>

using qarn_data::PersonData;
using qarn_data::PersonInfo;
using qarn_personMgr::ImportPersonsThread;

class tst_ImportPersonsThread : public QObject
{
    Q_OBJECT
private slots:
    void init() { m_store = std::make_unique<TestStore>(); }
    void cleanup() { m_store.reset(); }

    void addsOnePersonPerRow();
    void givesAnIdAndASerialNumber();
    void keepsDefaultsWhereARowIsSilent();
    void addsNewPersonsInOneBatchAfterTheUpdates();
    void updatesBySerialNumber();
    void keepsTheNameWhenTheRowHasNone();
    void updatesByNameWithoutSerialNumber();
    void addsAnUnknownNameWithoutSerialNumber();
    void addsARepeatedNewSerialNumberAsAnother();
    void createsOrganizationPaths();
    void leavesTheOrganization_data();
    void leavesTheOrganization();
    void putsARowWithoutAnythingIntoTheRoot();
    void looksUpCachedPathsTrimmed();
    void readsSex_data();
    void readsSex();
    void readsValidity();
    void shiftsColumnsByAComma();
    void reportsSuccessForNothing_data();
    void reportsSuccessForNothing();
    void importsNoExportedFile();
    void failsOnAnUnopenableFile();
    void runsAgainWithFreshSets();
    void finishesBeforeItIsDestroyed();

private:
    /// Imports these rows under a header and returns what happened.
    QStringList import(const QByteArray& rows);
    QStringList importBytes(const QByteArray& bytes);

    std::unique_ptr<TestStore> m_store;
    QTemporaryDir m_directory;
};

QStringList tst_ImportPersonsThread::importBytes(const QByteArray& bytes)
{
    ImportPersonsThread thread(transferFiles::write(m_directory.filePath("persons.csv"), bytes), nullptr);
    return ThreadRun(thread).events();
}

QStringList tst_ImportPersonsThread::import(const QByteArray& rows)
{
    return importBytes(transferFiles::header() + rows);
}

void tst_ImportPersonsThread::addsOnePersonPerRow()
{
    const QStringList events = import("a1, Anna ,Staff/Sales,2,555, a@b.example ,2024-01-02,2025/3/4,\n"
                                      "B2,Tom,Staff,1,,,,,\n");
    QCOMPARE(events.last(), importOutcome::finished);
    QCOMPARE(PersonData::instance().getAllPersons(false).count(), 2);
    const PersonInfo anna = personOf("A1");
    QCOMPARE(anna.name, QString("Anna"));
    QCOMPARE(anna.sex, 2);
    QCOMPARE(anna.phoneNum, QString("555"));
    QCOMPARE(anna.email, QString("a@b.example"));
    QCOMPARE(anna.validStartTime, QDateTime(QDate(2024, 1, 2), QTime(0, 0)));
    QCOMPARE(anna.validEndTime, QDateTime(QDate(2025, 3, 4), QTime(23, 59, 59)));
    QCOMPARE(PersonData::instance().getHierarchicalOrganizationNames(anna.organizationId).mid(1),
             (QStringList{"Staff", "Sales"}));
}

void tst_ImportPersonsThread::givesAnIdAndASerialNumber()
{
    import(",Anna,Staff,1,,,,,\nA-1,Tom,Staff,1,,,,,\n");
    const QList<PersonInfo> persons = PersonData::instance().getAllPersons(false);
    QCOMPARE(persons.count(), 2);
    const QRegularExpression random("\\A\\{[0-9a-f]{8}-\\z");
    for (const PersonInfo& person : persons) {
        QVERIFY(!QUuid::fromString(person.id).isNull());
        QVERIFY(person.id.startsWith('{'));
        QVERIFY2(random.match(person.serialNum).hasMatch(), qPrintable(person.serialNum));
    }
}

void tst_ImportPersonsThread::keepsDefaultsWhereARowIsSilent()
{
    const QDateTime before = QDateTime::currentDateTime();
    import("A1,Anna,Staff,,,,yesterday,,\n");
    const PersonInfo anna = personOf("A1");
    QCOMPARE(anna.sex, 1);
    QVERIFY(anna.validStartTime >= before.addSecs(-1));
    QVERIFY(anna.validStartTime <= QDateTime::currentDateTime());
    QCOMPARE(anna.validEndTime.date(), anna.validStartTime.addMonths(1).date());
    QCOMPARE(anna.birthDate, QDate(1986, 10, 22));
    QVERIFY(anna.phoneNum.isEmpty());
}

void tst_ImportPersonsThread::addsNewPersonsInOneBatchAfterTheUpdates()
{
    addPerson("A1", "Anna");
    QCOMPARE(import("N1,New,,,,,,,\nA1,Anna,,2,,,,,\nN2,Newer,,,,,,,\nA1,Anna,,1,,,,,\n"),
             (QStringList{"updated", "updated", "stored 2", "result true", importOutcome::finished}));
}

void tst_ImportPersonsThread::updatesBySerialNumber()
{
    const PersonInfo anna = addPerson("A1", "Anna");
    import("a1,Annabel,Staff,2,555,,,,\n");
    const PersonInfo updated = personOf("A1");
    QCOMPARE(updated.id, anna.id);
    QCOMPARE(updated.name, QString("Annabel"));
    QCOMPARE(updated.phoneNum, QString("555"));
    QCOMPARE(updated.validStartTime, anna.validStartTime);
    QCOMPARE(PersonData::instance().getAllPersons(false).count(), 1);
}

void tst_ImportPersonsThread::keepsTheNameWhenTheRowHasNone()
{
    addPerson("A1", "Anna");
    import("A1,  ,,2,,,,,\n");
    QCOMPARE(personOf("A1").name, QString("Anna"));
    QCOMPARE(personOf("A1").sex, 2);
}

void tst_ImportPersonsThread::updatesByNameWithoutSerialNumber()
{
    const PersonInfo anna = addPerson("A1", "Anna");
    import(", Anna ,,2,,,,,\n");
    QCOMPARE(PersonData::instance().getAllPersons(false).count(), 1);
    QCOMPARE(personOf("A1").sex, 2);
    QCOMPARE(personOf("A1").id, anna.id);
    // With a serial number of its own the same name is another person.
    import("B2,Anna,,2,,,,,\n");
    QCOMPARE(PersonData::instance().getAllPersons(false).count(), 2);
}

void tst_ImportPersonsThread::addsAnUnknownNameWithoutSerialNumber()
{
    addPerson("A1", "Anna");
    import(",anna,,2,,,,,\n"); // names are compared exactly
    QCOMPARE(PersonData::instance().getAllPersons(false).count(), 2);
}

void tst_ImportPersonsThread::addsARepeatedNewSerialNumberAsAnother()
{
    const QStringList events = import("A1,Anna,Staff,1,,,,,\nA1,Bert,Staff,1,,,,,\n");
    QCOMPARE(events.filter("stored"), QStringList{"stored 2"});
    QCOMPARE(personOf("A1").name, QString("Anna"));
    const PersonInfo second = PersonData::instance().getPersonByName("Bert", false);
    QVERIFY(!second.id.isEmpty());
    QCOMPARE(second.serialNum.length(), 10);
}

void tst_ImportPersonsThread::createsOrganizationPaths()
{
    import("A1,Anna,Staff/Sales,1,,,,,\nA2,Bert,Staff/Sales,1,,,,,\nA3,Cleo,/Staff//Sales/,1,,,,,\n");
    QCOMPARE(personOf("A1").organizationId, personOf("A2").organizationId);
    QCOMPARE(personOf("A3").organizationId, personOf("A1").organizationId); // empty levels are none
    QCOMPARE(PersonData::instance().getAllOrganizations().count(), 3);      // with the root
}

void tst_ImportPersonsThread::leavesTheOrganization_data()
{
    QTest::addColumn<QByteArray>("row");
    QTest::newRow("known by serial number") << QByteArray("A1,Anna,,1,,,,,\n");
    QTest::newRow("blank path") << QByteArray("A1,Anna,   ,1,,,,,\n");
    QTest::newRow("known by name") << QByteArray(",Anna,,1,,,,,\n");
}

void tst_ImportPersonsThread::leavesTheOrganization()
{
    QFETCH(QByteArray, row);
    const QString staff = PersonData::instance().createOrganization({"Staff"});
    addPerson("A1", "Anna", staff);
    import(row + "N1,New,,1,,,,,\n");
    QCOMPARE(personOf("A1").organizationId, staff);
    QVERIFY(personOf("N1").organizationId.isEmpty());
}

void tst_ImportPersonsThread::putsARowWithoutAnythingIntoTheRoot()
{
    import(",Anna,,1,,,,,\n"); // neither serial number nor organization
    const PersonInfo anna = PersonData::instance().getPersonByName("Anna", false);
    QCOMPARE(anna.organizationId, PersonData::instance().getRootOrganizationId());
}

void tst_ImportPersonsThread::looksUpCachedPathsTrimmed()
{
    import("A1,Anna, Staff ,1,,,,,\nA2,Bert,Staff,1,,,,,\nA3,Cleo, Staff ,1,,,,,\n");
    QCOMPARE(personOf("A1").organizationId, personOf("A2").organizationId);
    QCOMPARE(personOf("A3").organizationId, personOf("A2").organizationId);
    QCOMPARE(PersonData::instance().getOrganizationName(personOf("A1").organizationId), QString("Staff"));
}

void tst_ImportPersonsThread::readsSex_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("sex");
    QTest::newRow("male") << QByteArray("1") << 1;
    QTest::newRow("female") << QByteArray(" 2 ") << 2;
    QTest::newRow("a word") << QByteArray("Male") << 0;
    QTest::newRow("other number") << QByteArray("7") << 7;
    QTest::newRow("hexadecimal") << QByteArray("0x2") << 0;
    QTest::newRow("too large") << QByteArray("99999999999999") << 0;
    QTest::newRow("none") << QByteArray("  ") << 1;
}

void tst_ImportPersonsThread::readsSex()
{
    QFETCH(QByteArray, text);
    import("A1,Anna,Staff," + text + ",,,,,\n");
    QTEST(personOf("A1").sex, "sex");
}

void tst_ImportPersonsThread::readsValidity()
{
    const PersonInfo anna = addPerson("A1", "Anna");
    import("A1,,,,,,2024.03.07,2024-02-30,\n");
    QCOMPARE(personOf("A1").validStartTime, anna.validStartTime);
    QCOMPARE(personOf("A1").validEndTime, anna.validEndTime);
    import("A1,,,,,,2024-3-7,2024/03/07,\n");
    QCOMPARE(personOf("A1").validStartTime, QDateTime(QDate(2024, 3, 7), QTime(0, 0)));
    QCOMPARE(personOf("A1").validEndTime, QDateTime(QDate(2024, 3, 7), QTime(23, 59, 59)));
}

void tst_ImportPersonsThread::shiftsColumnsByAComma()
{
    import("A1,Doe, Jane,Staff,2,555,,,\n");
    const PersonInfo person = personOf("A1");
    QCOMPARE(person.name, QString("Doe"));
    QCOMPARE(PersonData::instance().getOrganizationName(person.organizationId), QString("Jane"));
    QCOMPARE(person.sex, 0);
    QCOMPARE(person.phoneNum, QString("2"));
    QCOMPARE(person.email, QString("555"));
}

void tst_ImportPersonsThread::reportsSuccessForNothing_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty file") << QByteArray();
    QTest::newRow("the template") << transferFiles::read(QFINDTESTDATA("data/template.csv"));
    QTest::newRow("no header") << QByteArray("A1,Anna,Staff,1,,,,,\n");
    QTest::newRow("blank line above the rows") << transferFiles::header() + "\nA1,Anna,Staff,1,,,,,\n";
    QTest::newRow("short rows") << transferFiles::header() + "A1,Anna,Staff\n";
    QTest::newRow("bytes of no text") << QByteArray("\xff\xfe\x00\xd8\x01\x02\x00", 7);
}

void tst_ImportPersonsThread::reportsSuccessForNothing()
{
    QFETCH(QByteArray, bytes);
    QCOMPARE(importBytes(bytes), (QStringList{"result true", importOutcome::finished}));
    QVERIFY(PersonData::instance().getAllPersons(false).isEmpty());
}

void tst_ImportPersonsThread::importsNoExportedFile()
{
    addPerson("A1", "Anna", PersonData::instance().createOrganization({"Staff"}));
    const QString path = m_directory.filePath("export.csv");
    const QString organizationId = personOf("A1").organizationId;
    qarn_personMgr::ExportPersonsThread exporter({organizationId},
                                                 {"*Serail Num", "*Person Name", "Organization", "Sex",
                                                  "Email", "Phone Num", "Identity ID", "Valid Time",
                                                  "Invalid Time"},
                                                 511, path, nullptr);
    QCOMPARE(ThreadRun(exporter).events(), QStringList{"result true"});
    PersonData::instance().deletePersons({personOf("A1").id});
    ImportPersonsThread importer(path, nullptr);
    QCOMPARE(ThreadRun(importer).events(), (QStringList{"result true", importOutcome::finished}));
    QVERIFY(PersonData::instance().getAllPersons(false).isEmpty());
}

void tst_ImportPersonsThread::failsOnAnUnopenableFile()
{
    addPerson("A1", "Anna");
    ImportPersonsThread thread(m_directory.filePath("missing.csv"), nullptr);
    QCOMPARE(ThreadRun(thread).events(), (QStringList{"result false", importOutcome::notOpened}));
    QCOMPARE(PersonData::instance().getAllPersons(false).count(), 1);
}

void tst_ImportPersonsThread::runsAgainWithFreshSets()
{
    ImportPersonsThread thread(transferFiles::write(m_directory.filePath("again.csv"),
                                                    transferFiles::header() + "A1,Anna,Staff,1,,,,,\n"),
                               nullptr);
    QCOMPARE(ThreadRun(thread).events().filter("stored"), QStringList{"stored 1"});
    PersonData::instance().deletePersons({personOf("A1").id});
    QCOMPARE(ThreadRun(thread).events().filter("stored"), QStringList{"stored 1"});
    QCOMPARE(PersonData::instance().getAllPersons(false).count(), 1);
}

void tst_ImportPersonsThread::finishesBeforeItIsDestroyed()
{
    QByteArray rows;
    for (int i = 0; i < 2000; ++i)
        rows += "S" + QByteArray::number(i) + ",Name,Staff,1,,,,,\n";
    const QString path =
        transferFiles::write(m_directory.filePath("many.csv"), transferFiles::header() + rows);
    {
        ImportPersonsThread thread(path, nullptr);
        thread.start();
    }
    QCOMPARE(PersonData::instance().getAllPersons(true).count(), 2000);
}

QTEST_GUILESS_MAIN(tst_ImportPersonsThread)
#include "tst_ImportPersonsThread.moc"
