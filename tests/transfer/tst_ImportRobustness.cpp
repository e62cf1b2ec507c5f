#include "TestStore.h"
#include "ThreadRun.h"
#include "TransferFiles.h"

#include <QElapsedTimer>

#include <memory>
#include <sys/stat.h>
#include <unistd.h>

using qarn_data::PersonData;
using qarn_data::PersonInfo;
using qarn_personMgr::ImportPersonsThread;

namespace
{

/// The administrator may read everything; a test of permissions runs as somebody else.
class WithoutPrivileges
{
public:
    WithoutPrivileges() : m_root(geteuid() == 0)
    {
        if (m_root && seteuid(Nobody) != 0)
            qFatal("cannot give the privileges up");
    }
    ~WithoutPrivileges()
    {
        if (m_root && seteuid(0) != 0)
            qFatal("cannot take the privileges back");
    }

private:
    static constexpr uid_t Nobody = 65534;
    const bool m_root;
};

/// Whether this program holds the file open.
bool isOpen(const QString& path)
{
    const QFileInfoList open = QDir("/proc/self/fd").entryInfoList(QDir::NoDotAndDotDot | QDir::AllEntries);
    return std::any_of(open.begin(), open.end(),
                       [&](const QFileInfo& link) { return link.symLinkTarget() == path; });
}

} // namespace

class tst_ImportRobustness : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void refusesAPipe();
    void refusesADirectory();
    void refusesAFileWithoutPermission();
    void tellsAFailingMedium();
    void importsAroundALineOfOneHundredMegabytes();
    void keepsTextWithANulByte();
    void endsWhenTheFileShrinksUnderIt();
    void endsWhenTheFileIsDeletedUnderIt();
    void refusesADirectoryWithoutPermission();
    void importsFiftyThousandPhotographs();
    void importsTheSampleTables_data();
    void importsTheSampleTables();

private:
    QString path(const QString& name) const { return m_directory->filePath(name); }
    QStringList import(const QString& filePath);

    std::unique_ptr<TestStore> m_store;
    std::unique_ptr<QTemporaryDir> m_directory;
};

void tst_ImportRobustness::init()
{
    m_store = std::make_unique<TestStore>();
    m_directory = std::make_unique<QTemporaryDir>();
}

void tst_ImportRobustness::cleanup()
{
    m_store.reset();
    m_directory.reset();
}

QStringList tst_ImportRobustness::import(const QString& filePath)
{
    ImportPersonsThread thread(filePath, nullptr);
    return ThreadRun(thread).events();
}

void tst_ImportRobustness::refusesAPipe()
{
    QCOMPARE(mkfifo(QFile::encodeName(path("pipe.csv")).constData(), 0600), 0);
    QCOMPARE(import(path("pipe.csv")), (QStringList{"result false", importOutcome::notOpened}));
}

void tst_ImportRobustness::refusesADirectory()
{
    QCOMPARE(import(m_directory->path()), (QStringList{"result false", importOutcome::notOpened}));
}

void tst_ImportRobustness::refusesAFileWithoutPermission()
{
    const QString file = transferFiles::write(path("secret.csv"), transferFiles::header());
    QVERIFY(QFile::setPermissions(file, QFile::Permissions()));
    const WithoutPrivileges nobody;
    QCOMPARE(import(file), (QStringList{"result false", importOutcome::notOpened}));
}

void tst_ImportRobustness::tellsAFailingMedium()
{
    const QString unreadable = QStringLiteral("/proc/self/mem"); // opens, then gives an input error
    if (!QFile::exists(unreadable))
        QSKIP("no file here that fails while it is read");
    const QStringList events = import(unreadable);
    QCOMPARE(events.count(), 2);
    QCOMPARE(events[0], QString("result false"));
    QVERIFY2(events[1].contains(unreadable), qPrintable(events[1]));
}

void tst_ImportRobustness::importsAroundALineOfOneHundredMegabytes()
{
    const QString file =
        transferFiles::write(path("long.csv"), transferFiles::header() + "A1,Anna,,,,,,,\n" +
                                                   QByteArray(100 * 1000 * 1000, 'x') + "\nB2,Tom,,,,,,,\n");
    QCOMPARE(import(file).last(), importOutcome::finished);
    QCOMPARE(PersonData::instance().getAllPersonsSerialNum(), (QSet<QString>{"A1", "B2"}));
}

void tst_ImportRobustness::keepsTextWithANulByte()
{
    const QString file = transferFiles::write(
        path("nul.csv"), transferFiles::header() + QByteArray("A1,An\0na,,,,,,,\n", 16) + "B2,Tom,,,,,,,\n");
    QCOMPARE(import(file).last(), importOutcome::finished);
    m_store->reopen();
    QCOMPARE(personOf("A1").name, QString("An") + QChar(0) + "na");
    QCOMPARE(personOf("B2").name, QString("Tom"));
}

void tst_ImportRobustness::endsWhenTheFileShrinksUnderIt()
{
    const QString file = path("shrinking.csv");
    transferFiles::write(file, transferFiles::header() + QByteArray("too,short\n").repeated(1000000));
    ImportPersonsThread thread(file, nullptr);
    QSignalSpy results(&thread, &ImportPersonsThread::signalImportPersonsInfoResult);
    thread.start();
    QTRY_VERIFY(isOpen(file));
    QVERIFY(QFile::resize(file, 100000));
    QVERIFY(thread.wait(100000));
    QTRY_COMPARE(results.count(), 1);
}

void tst_ImportRobustness::endsWhenTheFileIsDeletedUnderIt()
{
    const QString file = path("vanishing.csv");
    transferFiles::write(file, transferFiles::header() + QByteArray("too,short\n").repeated(1000000) +
                                   "A1,Anna,,,,,,,\n");
    ImportPersonsThread thread(file, nullptr);
    QSignalSpy results(&thread, &ImportPersonsThread::signalImportPersonsInfoResult);
    thread.start();
    QTRY_VERIFY(isOpen(file));
    QVERIFY(QFile::remove(file));
    QVERIFY(thread.wait(100000));
    QTRY_COMPARE(results.count(), 1);
    QVERIFY(results[0][0].toBool());
    QVERIFY2(PersonData::instance().isPersonSerialNumExist("A1"), "an open file can be read to its end");
}

void tst_ImportRobustness::refusesADirectoryWithoutPermission()
{
    QVERIFY(QDir(m_directory->path()).mkdir("closed"));
    transferFiles::write(path("closed/A1_Anna.jpg"), "x");
    QVERIFY(QFile::setPermissions(path("closed"), QFile::Permissions()));
    {
        const WithoutPrivileges nobody;
        ImportPersonsThread thread(path("closed"), QString(), {0, 1}, nullptr);
        QCOMPARE(ThreadRun(thread).events(), (QStringList{"result false", importOutcome::noImages}));
    }
    QFile::setPermissions(path("closed"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void tst_ImportRobustness::importsFiftyThousandPhotographs()
{
    constexpr int count = transferFiles::sanitized ? 500 : 50000;
    const QByteArray first = QFile::encodeName(transferFiles::write(path("first"), QByteArray(2000, 'x')));
    for (int i = 0; i < count; ++i)
        QCOMPARE(
            link(first.constData(), QFile::encodeName(path(QStringLiteral("S%1_N.jpg").arg(i))).constData()),
            0);
    ImportPersonsThread thread(m_directory->path(), PersonData::instance().getRootOrganizationId(), {0, 1},
                               nullptr);
    QCOMPARE(ThreadRun(thread).events(),
             (QStringList{QStringLiteral("stored %1").arg(count), "result true", importOutcome::finished}));
    QCOMPARE(PersonData::instance().getAllPersons(true).count(), count);
}

void tst_ImportRobustness::importsTheSampleTables_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("count");
    QTest::newRow("legislators") << "import/legislators.csv" << 537;
    QTest::newRow("employees") << "import/employees.csv" << 10000;
}

void tst_ImportRobustness::importsTheSampleTables()
{
    QFETCH(QString, name);
    const QString file = transferFiles::sample(name);
    if (file.isEmpty())
        QSKIP("no sample data here; set QARN_SAMPLE_DATA");
    QCOMPARE(import(file).last(), importOutcome::finished);
    QTEST(PersonData::instance().getAllPersons(true).count(), "count");
    const int organizations = PersonData::instance().getAllOrganizations().count();
    QVERIFY(organizations > 2);
    // The same table again changes nothing but the existing persons.
    const QStringList events = import(file);
    QCOMPARE(events.filter("stored").count(), 0);
    QTEST(PersonData::instance().getAllPersons(true).count(), "count");
    QCOMPARE(PersonData::instance().getAllOrganizations().count(), organizations);
}

QTEST_GUILESS_MAIN(tst_ImportRobustness)
#include "tst_ImportRobustness.moc"
