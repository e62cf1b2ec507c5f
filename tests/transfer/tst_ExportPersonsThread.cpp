#include "TestStore.h"
#include "ThreadRun.h"
#include "TransferFiles.h"

#include "transfer/PersonFileFormat.h"

#include <QBuffer>
#include <QImage>

#include <csignal>
#include <memory>
#include <sys/resource.h>
#include <sys/stat.h>

using qarn_data::PersonData;
using qarn_data::PersonInfo;
using namespace qarn_personMgr;

namespace
{

QByteArray jpeg(Qt::GlobalColor color)
{
    QImage image(40, 50, QImage::Format_RGB32);
    image.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!image.save(&buffer, "jpg"))
        qFatal("no JPEG encoder");
    return bytes;
}

const QStringList allTitles{"*Serail Num", "*Person Name", "Organization", "Sex",         "Email",
                            "Phone Num",   "Identity ID",  "Valid Time",   "Invalid Time"};
constexpr int allColumns = 511;

} // namespace

class tst_ExportPersonsThread : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void writesAllColumnsToTheByte();
    void writesChosenColumnsInTheirOrder_data();
    void writesChosenColumnsInTheirOrder();
    void writesTheHeaderOnlyForNobody_data();
    void writesTheHeaderOnlyForNobody();
    void replacesAnOlderFile();
    void failsOnAnUnopenableFile_data();
    void failsOnAnUnopenableFile();
    void failsOnAFullDisk();
    void writesFaceFiles();
    void passesOverPersonsWithoutPicture();
    void letsTheLaterOfEqualNamesWin();
    void namesFilesByTheElements_data();
    void namesFilesByTheElements();
    void standsUpATurnedPhotograph();
    void succeedsWithFacesAlsoWhereItCannotWrite_data();
    void succeedsWithFacesAlsoWhereItCannotWrite();

private:
    void add(PersonInfo person);
    QStringList exportFile(const QString& path, const QStringList& titles = allTitles, int mask = allColumns);
    QStringList exportFaces(const QList<int>& elements);

    std::unique_ptr<TestStore> m_store;
    std::unique_ptr<QTemporaryDir> m_directory;
    QString m_staff;
    QString m_sales;
};

void tst_ExportPersonsThread::init()
{
    m_store = std::make_unique<TestStore>();
    m_directory = std::make_unique<QTemporaryDir>();
    m_staff = PersonData::instance().createOrganization({"Staff"});
    m_sales = PersonData::instance().createOrganization({"Staff", "Sales"});
}

void tst_ExportPersonsThread::cleanup()
{
    m_store.reset();
    m_directory.reset();
}

void tst_ExportPersonsThread::add(PersonInfo person)
{
    person.id = QUuid::createUuid().toString();
    if (person.organizationId.isEmpty())
        person.organizationId = m_staff;
    QVERIFY(PersonData::instance().addPersons({person}));
}

QStringList tst_ExportPersonsThread::exportFile(const QString& path, const QStringList& titles, int mask)
{
    ExportPersonsThread thread({m_staff, m_sales}, titles, mask, path, nullptr);
    return ThreadRun(thread).events();
}

QStringList tst_ExportPersonsThread::exportFaces(const QList<int>& elements)
{
    ExportPersonsThread thread({m_staff, m_sales}, elements, m_directory->path(), nullptr);
    return ThreadRun(thread).events();
}

void tst_ExportPersonsThread::writesAllColumnsToTheByte()
{
    PersonInfo anna;
    anna.serialNum = "A1";
    anna.name = "Anna Berg";
    anna.organizationId = m_sales;
    anna.sex = 2;
    anna.email = "anna@b.example";
    anna.phoneNum = "5551";
    anna.identityId = "ID7";
    anna.validStartTime = QDateTime(QDate(2024, 1, 2), QTime(0, 0));
    anna.validEndTime = QDateTime(QDate(2025, 12, 31), QTime(23, 59, 59));
    add(anna);
    PersonInfo jane;
    jane.serialNum = "B2";
    jane.name = "\"Doe, Jane\""; // comma and quotes go out as they are
    jane.validStartTime = QDateTime(QDate(2024, 2, 29), QTime(0, 0));
    jane.validEndTime = QDateTime(QDate(2024, 3, 1), QTime(0, 0));
    add(jane);
    PersonInfo zhang = anna;
    zhang.serialNum = "C3";
    zhang.name = QString::fromUtf8("\u5f20\u4e09");
    zhang.organizationId = m_staff;
    zhang.sex = 0; // neither male nor female goes out as female
    zhang.email = "a b";
    zhang.phoneNum = "+49 30 1";
    zhang.identityId.clear();
    add(zhang);
    const QString path = m_directory->filePath("persons.csv");
    QCOMPARE(exportFile(path), QStringList{"result true"});
    QCOMPARE(transferFiles::read(path), transferFiles::read(TRANSFER_TEST_DATA "/export_all_columns.csv"));
}

void tst_ExportPersonsThread::writesChosenColumnsInTheirOrder_data()
{
    QTest::addColumn<QStringList>("titles");
    QTest::addColumn<int>("mask");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("one") << QStringList{"*Person Name"} << 2 << QByteArray("*Person Name,\nAnna,\n");
    QTest::newRow("two") << QStringList{"*Serail Num", "Sex"} << (8 | 1)
                         << QByteArray("*Serail Num,Sex,\nA1,Male,\n");
    QTest::newRow("empty value") << QStringList{"Email"} << 16 << QByteArray("Email,\n,\n");
}

void tst_ExportPersonsThread::writesChosenColumnsInTheirOrder()
{
    QFETCH(QStringList, titles);
    QFETCH(int, mask);
    PersonInfo anna;
    anna.serialNum = "A1";
    anna.name = "Anna";
    add(anna);
    const QString path = m_directory->filePath("persons.csv");
    QCOMPARE(exportFile(path, titles, mask), QStringList{"result true"});
    QTEST(transferFiles::read(path), "text");
}

void tst_ExportPersonsThread::writesTheHeaderOnlyForNobody_data()
{
    QTest::addColumn<QStringList>("organizationIds");
    QTest::newRow("no organization") << QStringList{};
    QTest::newRow("unknown organization") << QStringList{"{none}"};
}

void tst_ExportPersonsThread::writesTheHeaderOnlyForNobody()
{
    QFETCH(QStringList, organizationIds);
    addPerson("A1", "Anna", m_staff);
    const QString path = m_directory->filePath("persons.csv");
    ExportPersonsThread thread(organizationIds, {"*Serail Num", "Sex"}, 9, path, nullptr);
    QCOMPARE(ThreadRun(thread).events(), QStringList{"result true"});
    QCOMPARE(transferFiles::read(path), QByteArray("*Serail Num,Sex,\n"));
}

void tst_ExportPersonsThread::replacesAnOlderFile()
{
    const QString path = transferFiles::write(m_directory->filePath("persons.csv"), QByteArray(100000, 'x'));
    QCOMPARE(exportFile(path, {"Sex"}, 8), QStringList{"result true"});
    QCOMPARE(transferFiles::read(path), QByteArray("Sex,\n"));
}

void tst_ExportPersonsThread::failsOnAnUnopenableFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing directory") << "missing/persons.csv";
    QTest::newRow("a directory") << ".";
    QTest::newRow("a pipe") << "pipe";
}

void tst_ExportPersonsThread::failsOnAnUnopenableFile()
{
    QFETCH(QString, name);
    QCOMPARE(mkfifo(QFile::encodeName(m_directory->filePath("pipe")).constData(), 0600), 0);
    QCOMPARE(exportFile(m_directory->filePath(name)), QStringList{"result false"});
}

void tst_ExportPersonsThread::failsOnAFullDisk()
{
    // Many short records share one long organization name: the store stays small, the export does not.
    const QString path = transferFiles::write(m_directory->filePath("persons.csv"), "last week's export");
    const QString wordy = PersonData::instance().createOrganization({QString(50000, 'w')});
    QList<PersonInfo> persons;
    for (int i = 0; i < 400; ++i) {
        PersonInfo person;
        person.id = QUuid::createUuid().toString();
        person.serialNum = QString::number(i);
        person.organizationId = wordy;
        persons.append(person);
    }
    QVERIFY(PersonData::instance().addPersons(persons));
    signal(SIGXFSZ, SIG_IGN); // a write over the limit then fails like one on a full disk
    rlimit before;
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small{8 * 1024 * 1024, before.rlim_max};
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &small), 0);
    ExportPersonsThread thread({wordy}, {"Organization"}, OrganizationColumn, path, nullptr);
    const QStringList events = ThreadRun(thread).events();
    setrlimit(RLIMIT_FSIZE, &before);
    QCOMPARE(events, QStringList{"result false"});
    QCOMPARE(transferFiles::read(path), QByteArray("last week's export"));
    ExportPersonsThread again({wordy}, {"Organization"}, OrganizationColumn, path, nullptr);
    QCOMPARE(ThreadRun(again).events(), QStringList{"result true"});
    QVERIFY(QFileInfo(path).size() > 8 * 1024 * 1024);
}

void tst_ExportPersonsThread::writesFaceFiles()
{
    PersonInfo anna;
    anna.serialNum = "A1";
    anna.name = "Anna";
    anna.faceImage1 = jpeg(Qt::red);
    anna.faceImage2 = jpeg(Qt::blue);
    add(anna);
    QCOMPARE(exportFaces({SerialNumColumn, NameColumn, SexColumn}), QStringList{"result true"});
    QCOMPARE(QDir(m_directory->path()).entryList(QDir::Files), QStringList{"A1_Anna_Male.jpg"});
    const QByteArray bytes = transferFiles::read(m_directory->filePath("A1_Anna_Male.jpg"));
    QVERIFY(bytes.startsWith("\xff\xd8\xff"));
    const QImage image = QImage::fromData(bytes, "jpg");
    QCOMPARE(image.size(), QSize(40, 50));
    QVERIFY(qRed(image.pixel(20, 20)) > 200);
}

void tst_ExportPersonsThread::passesOverPersonsWithoutPicture()
{
    PersonInfo anna;
    anna.serialNum = "A1";
    anna.faceImage2 = jpeg(Qt::blue); // only the first picture counts
    add(anna);
    PersonInfo broken;
    broken.serialNum = "B2";
    broken.faceImage1 = "no picture";
    add(broken);
    QCOMPARE(exportFaces({SerialNumColumn}), QStringList{"result true"});
    QVERIFY(QDir(m_directory->path()).isEmpty());
}

void tst_ExportPersonsThread::letsTheLaterOfEqualNamesWin()
{
    for (const Qt::GlobalColor color : {Qt::red, Qt::blue}) {
        PersonInfo person;
        person.serialNum = QString::number(color);
        person.name = "Anna";
        person.faceImage1 = jpeg(color);
        add(person);
    }
    QCOMPARE(exportFaces({NameColumn}), QStringList{"result true"});
    QCOMPARE(QDir(m_directory->path()).entryList(QDir::Files), QStringList{"Anna.jpg"});
    const QImage image(m_directory->filePath("Anna.jpg"));
    QVERIFY(qBlue(image.pixel(20, 20)) > 200);
}

void tst_ExportPersonsThread::namesFilesByTheElements_data()
{
    QTest::addColumn<QList<int>>("elements");
    QTest::addColumn<QString>("fileName");
    QTest::newRow("order") << QList<int>{PhoneNumColumn, SerialNumColumn} << "555_A1.jpg";
    QTest::newRow("other codes") << QList<int>{IdentityIdColumn, 4} << "ID9_ID9.jpg";
    QTest::newRow("a path in the name") << QList<int>{NameColumn} << "..etcpasswd.jpg";
}

void tst_ExportPersonsThread::namesFilesByTheElements()
{
    QFETCH(QList<int>, elements);
    PersonInfo person;
    person.serialNum = "A1";
    person.name = "../etc/passwd";
    person.phoneNum = "555";
    person.identityId = "ID9";
    person.faceImage1 = jpeg(Qt::green);
    add(person);
    exportFaces(elements);
    QFETCH(QString, fileName);
    QCOMPARE(QDir(m_directory->path()).entryList(QDir::Files | QDir::Hidden), QStringList{fileName});
}

void tst_ExportPersonsThread::standsUpATurnedPhotograph()
{
    const QString path = transferFiles::sample("faces/ukp_exif_orientation_6.jpg");
    if (path.isEmpty())
        QSKIP("no sample data here; set QARN_SAMPLE_DATA");
    PersonInfo person;
    person.serialNum = "A1";
    person.faceImage1 = transferFiles::read(path);
    add(person);
    exportFaces({SerialNumColumn});
    const QSize stored = QImage::fromData(person.faceImage1).size();
    QVERIFY(stored.width() != stored.height());
    QCOMPARE(QImage(m_directory->filePath("A1.jpg")).size(), stored.transposed());
}

void tst_ExportPersonsThread::succeedsWithFacesAlsoWhereItCannotWrite_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("missing directory") << "/no/such/directory";
    QTest::newRow("a directory without files") << "/proc";
}

void tst_ExportPersonsThread::succeedsWithFacesAlsoWhereItCannotWrite()
{
    QFETCH(QString, path);
    PersonInfo person;
    person.serialNum = "A1";
    person.faceImage1 = jpeg(Qt::green);
    add(person);
    ExportPersonsThread thread({m_staff}, {SerialNumColumn}, path, nullptr);
    QCOMPARE(ThreadRun(thread).events(), QStringList{"result true"});
}

QTEST_GUILESS_MAIN(tst_ExportPersonsThread)
#include "tst_ExportPersonsThread.moc"
