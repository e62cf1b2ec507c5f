#include "Samples.h"
#include "TestStore.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QtTest>

#include <cstdio>
#include <memory>
#include <vector>

#include <sys/stat.h>

using namespace qarn_data;
using samples::fullPerson;
using samples::person;
using samples::root;

namespace
{

const QString addAndLeave = QStringLiteral("--add-and-leave"); ///< makes this program one of several writers

DataService& service()
{
    return DataService::instance();
}

QByteArray contentOf(const QString& filePath)
{
    QFile file(filePath);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void makeStore(const QString& filePath)
{
    QVERIFY(service().open(filePath));
    QVERIFY(PersonData::instance().addPerson(fullPerson("a", root())));
    service().close();
}

} // namespace

class tst_DataService : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void opensAndCloses();
    void holdsAStoreInMemory();
    void opensAnotherFile();
    void refusesWhatIsNoStore_data();
    void refusesWhatIsNoStore();
    void finishesAnInterruptedCreation();
    void backsUpWhileInUse();
    void refusesBackups_data();
    void refusesBackups();
    void bringsWritesToTheFileWithinASecond();
    void processesThatComeAndGoLoseNothing();

private:
    std::unique_ptr<QTemporaryDir> m_directory;
    QString path(const QString& name) const { return m_directory->filePath(name); }
};

void tst_DataService::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY(m_directory->isValid());
}

void tst_DataService::cleanup()
{
    service().close();
}

void tst_DataService::opensAndCloses()
{
    QVERIFY(!service().isOpen());
    service().close(); // does nothing
    QVERIFY(service().open(path("store.db")));
    QVERIFY(service().isOpen());
    QVERIFY(PersonData::instance().addPerson(person("a")));
    service().close();
    QVERIFY(!service().isOpen());
    QVERIFY(PersonData::instance().getAllPersons(false).isEmpty());
    QVERIFY(!PersonData::instance().addPerson(person("b")));
    QVERIFY(!service().checkConsistency());
    // Nothing is left beside the file: it can be copied as it is.
    QCOMPARE(QDir(m_directory->path()).entryList(QDir::Files), QStringList({"store.db"}));
}

void tst_DataService::holdsAStoreInMemory()
{
    QVERIFY(service().open(":memory:"));
    QVERIFY(PersonData::instance().addPerson(fullPerson("a", root())));
    QCOMPARE(samples::inconsistency(), QString());
    QVERIFY(service().backup(path("copy.db")));
    service().close();
    QVERIFY(service().open(":memory:"));
    QVERIFY(PersonData::instance().getAllPersons(false).isEmpty());
    QVERIFY(service().open(path("copy.db")));
    QCOMPARE(PersonData::instance().getAllPersons(false).size(), 1);
}

void tst_DataService::opensAnotherFile()
{
    makeStore(path("one.db"));
    QVERIFY(service().open(path("one.db")));
    const QString first = root();
    QVERIFY(service().open(path("two.db"))); // closes the first
    QVERIFY(root() != first);
    QVERIFY(PersonData::instance().getAllPersons(false).isEmpty());
    QVERIFY(service().open(path("one.db")));
    QCOMPARE(PersonData::instance().getAllPersons(false).size(), 1);
    QString error;
    QVERIFY(!service().open(path("missing/two.db"), &error)); // none is open then
    QVERIFY(!service().isOpen());
    QVERIFY(PersonData::instance().getAllPersons(false).isEmpty());
}

void tst_DataService::refusesWhatIsNoStore_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<QString>("cause");
    QTest::newRow("text file") << "text"
                               << "not a person register";
    QTest::newRow("short file") << "short"
                                << "not a person register";
    QTest::newRow("another program's database") << "foreign"
                                                << "another program";
    QTest::newRow("newer version") << "newer"
                                   << "newer version";
    QTest::newRow("half of it") << "half"
                                << "damaged";
    QTest::newRow("rubbish in the middle") << "rubbish"
                                           << "damaged";
    QTest::newRow("read-only file") << "read-only file"
                                    << "read-only";
    QTest::newRow("read-only folder") << "read-only folder"
                                      << "read-only";
    QTest::newRow("a folder") << "folder"
                              << "folder";
    QTest::newRow("a missing folder") << "missing folder"
                                      << "does not exist";
    QTest::newRow("a file as folder") << "file as folder"
                                      << "not a folder";
    QTest::newRow("a pipe") << "pipe"
                            << "not a regular file";
    QTest::newRow("no name") << "no name"
                             << "No file";
}

void tst_DataService::refusesWhatIsNoStore()
{
    QFETCH(QString, fault);
    QFETCH(QString, cause);
    QDir(m_directory->path()).mkdir("sub");
    QString location = path("sub/store.db");
    makeStore(location);
    QFile file(location);
    QVERIFY(file.open(QIODevice::ReadWrite));
    const auto overwrite = [&file](qint64 offset, const QByteArray& bytes) {
        file.seek(offset);
        file.write(bytes);
    };
    if (fault == "text") {
        file.resize(0);
        overwrite(0, QByteArray("serial number,name\n").repeated(100));
    } else if (fault == "short") {
        file.resize(20);
    } else if (fault == "foreign") {
        overwrite(68, QByteArray(4, '\7'));
    } else if (fault == "newer") {
        overwrite(60, QByteArray("\0\0\x03\xe7", 4));
    } else if (fault == "half") {
        file.resize(file.size() / 2);
    } else if (fault == "rubbish") {
        overwrite(4096, QByteArray(int(file.size()) - 4096, '\xa5'));
    } else if (fault == "read-only file") {
        file.setPermissions(QFile::ReadOwner);
    } else if (fault == "read-only folder") {
        QFile::setPermissions(path("sub"), QFile::ReadOwner | QFile::ExeOwner);
    } else if (fault == "folder") {
        location = path("sub");
    } else if (fault == "missing folder") {
        location = path("missing/store.db");
    } else if (fault == "file as folder") {
        location += "/store.db";
    } else if (fault == "pipe") {
        location = path("sub/pipe");
        QCOMPARE(mkfifo(qPrintable(location), 0600), 0);
    } else {
        location.clear();
    }
    file.close();
    const QByteArray before = contentOf(path("sub/store.db"));
    const QStringList beside =
        QDir(path("sub")).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
    QString error;
    QVERIFY(!service().open(location, &error));
    QVERIFY2(error.contains(cause), qPrintable(error));
    QVERIFY2(error.contains(QDir::toNativeSeparators(location)), qPrintable(error));
    QVERIFY(!service().isOpen());
    QCOMPARE(contentOf(path("sub/store.db")), before);
    QCOMPARE(QDir(path("sub")).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot), beside);
    QVERIFY(!QFile::exists(path("missing")));
    QFile::setPermissions(path("sub"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void tst_DataService::finishesAnInterruptedCreation()
{
    QFile empty(path("store.db"));
    QVERIFY(empty.open(QIODevice::WriteOnly));
    empty.close();
    QVERIFY(service().open(path("store.db")));
    QVERIFY(!root().isEmpty());
    QCOMPARE(samples::inconsistency(), QString());
}

void tst_DataService::backsUpWhileInUse()
{
    QVERIFY(service().open(path("store.db")));
    QVERIFY(PersonData::instance().addPerson(fullPerson("a", root())));
    QVERIFY(service().backup(path("copy.db")));
    QVERIFY(PersonData::instance().addPerson(person("later")));
    QVERIFY(service().backup(path("later.db")));
    QVERIFY(service().backup(path("later.db"))); // gives way to a newer one
    QVERIFY(service().open(path("copy.db")));
    QCOMPARE(samples::ids(PersonData::instance().getAllPersons(false)), QStringList({"a"}));
    QCOMPARE(samples::inconsistency(), QString());
    QVERIFY(service().open(path("later.db")));
    QCOMPARE(PersonData::instance().getAllPersons(false).size(), 2);
    service().close();
    QCOMPARE(QDir(m_directory->path()).entryList(QDir::Files),
             QStringList({"copy.db", "later.db", "store.db"}));
}

void tst_DataService::refusesBackups_data()
{
    QTest::addColumn<QString>("target");
    QTest::newRow("the store itself") << "store.db";
    QTest::newRow("a folder") << "";
    QTest::newRow("a missing folder") << "missing/copy.db";
}

void tst_DataService::refusesBackups()
{
    QFETCH(QString, target);
    QString error;
    QVERIFY(!service().backup(path("copy.db"), &error)); // nothing is open
    QVERIFY(error.contains("No store"));
    QVERIFY(service().open(path("store.db")));
    QVERIFY(PersonData::instance().addPerson(person("a")));
    QVERIFY(!service().backup(path(target), &error));
    QVERIFY2(error.contains(QDir::toNativeSeparators(path(target))), qPrintable(error));
    QCOMPARE(samples::inconsistency(), QString());
    QVERIFY(QDir(m_directory->path()).entryList({"*partial*"}).isEmpty());
}

void tst_DataService::bringsWritesToTheFileWithinASecond()
{
    QVERIFY(service().open(path("store.db")));
    PersonInfo info = person("a");
    info.remarks = "the very words that are looked for";
    QVERIFY(PersonData::instance().addPerson(info));
    QTRY_VERIFY_WITH_TIMEOUT(contentOf(path("store.db")).contains(info.remarks.toUtf8()), 1000);
}

// Several processes make the store, write and close at one time. Each closing process may believe to be the
// last one only if it is.
void tst_DataService::processesThatComeAndGoLoseNothing()
{
    constexpr int processes = 4;
    for (int round = 0; round < 6; ++round) {
        const QString store = path(QStringLiteral("round%1.db").arg(round));
        std::vector<std::unique_ptr<QProcess>> writers;
        for (int i = 0; i < processes; ++i) {
            writers.push_back(std::make_unique<QProcess>());
            writers.back()->start(QCoreApplication::applicationFilePath(),
                                  {addAndLeave, store, QStringLiteral("person %1").arg(i)});
        }
        for (const auto& writer : writers) {
            QVERIFY(writer->waitForFinished());
            QVERIFY2(writer->exitStatus() == QProcess::NormalExit && writer->exitCode() == 0,
                     writer->readAllStandardError().constData());
        }
        QVERIFY(service().open(store));
        QCOMPARE(PersonData::instance().getAllPersons(false).size(), processes);
        QCOMPARE(samples::inconsistency(), QString());
        service().close();
    }
}

namespace
{

int addPersonAndLeave(const QString& store, const QString& id)
{
    QString error;
    bool ok = DataService::instance().open(store, &error) && PersonData::instance().addPerson(person(id));
    DataService::instance().close();
    if (!ok)
        std::fprintf(stderr, "%s: %s\n", qPrintable(id), qPrintable(error));
    return ok ? 0 : 1;
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == addAndLeave)
        return addPersonAndLeave(arguments.value(2), arguments.value(3));
    tst_DataService test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_DataService.moc"
