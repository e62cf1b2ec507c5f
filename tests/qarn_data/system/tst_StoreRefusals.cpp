#include "StoreFolder.h"
#include "WriterProcess.h"

#include <qarn_data/DataService.h>
#include <qarn_data/PersonData.h>

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QtTest>

#include <memory>
#include <sys/stat.h>

using qarn_data::DataService;
using qarn_data::PersonData;

namespace
{

constexpr int ImageSize = 50000;

QJsonArray numbered(const QString& prefix, int count)
{
    QJsonArray ids;
    for (int i = 0; i < count; ++i)
        ids.append(QStringLiteral("%1-%2").arg(prefix).arg(i));
    return ids;
}

QJsonObject addition(const QString& prefix, int count = 1, int imageSize = 0)
{
    return {{"do", "addPersons"}, {"ids", numbered(prefix, count)}, {"imageSize", imageSize}};
}

void setMode(const QString& path, mode_t mode)
{
    if (::chmod(QFile::encodeName(path).constData(), mode) != 0)
        qFatal("chmod %s", qPrintable(path));
}

} // namespace

/// A system that refuses to write: permissions, a full disk, a lock of another program. A store_writer
/// meets it; what was acknowledged before stays.
class tst_StoreRefusals : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void readOnlyFile();
    void readOnlyDirectory();
    void unreadableFile();
    void newStoreInReadOnlyDirectory();
    void newStoreInMissingDirectory();
    void fullDisk();
    void fileSizeLimit();
    void fileSizeLimitFromTheStart();
    void lockedByAnotherProgram();
    void lockedByAnotherProgramForAShortTime();
    void lockedWhileOpening();

private:
    QJsonObject open() { return m_writer->ask({{"do", "open"}, {"path", m_folder->storePath()}}); }
    void checkThatNothingCanBeWritten();
    void checkOneRefusal(int failedBefore);
    int addUntilRefused();
    void checkPersonsAfterReopening(int count);

    std::unique_ptr<StoreFolder> m_folder;
    std::unique_ptr<WriterProcess> m_writer;
};

void tst_StoreRefusals::init()
{
    m_folder = std::make_unique<StoreFolder>();
    m_folder->makeStore(3);
    m_writer = std::make_unique<WriterProcess>();
}

void tst_StoreRefusals::cleanup()
{
    m_writer.reset();
    setMode(m_folder->path(), 0700);
    m_folder.reset();
}

// Either the store does not open, or it opens for reading and the write is refused.
void tst_StoreRefusals::checkThatNothingCanBeWritten()
{
    const QByteArray before = m_folder->read();
    const QJsonObject opened = open();
    QString text = opened["error"].toString();
    if (opened["answer"].toBool()) {
        QCOMPARE(m_writer->ask({{"do", "count"}})["answer"].toInt(), 3);
        QCOMPARE(m_writer->ask(addition("new"))["answer"].toBool(true), false);
        QCOMPARE(m_writer->eventCount("failed"), 1);
        text = m_writer->events().first()["text"].toString();
    }
    QVERIFY2(text.contains(m_folder->storePath()), qPrintable(text));
    QVERIFY2(text.contains(QRegularExpression("permission|read-only|written|writable",
                                              QRegularExpression::CaseInsensitiveOption)),
             qPrintable(text));
    QCOMPARE(m_folder->read(), before);
}

void tst_StoreRefusals::checkOneRefusal(int failedBefore)
{
    QTRY_COMPARE(m_writer->eventCount("failed"), failedBefore + 1);
    const QList<QJsonObject>& events = m_writer->events();
    const auto failed = std::find_if(events.rbegin(), events.rend(),
                                     [](const QJsonObject& event) { return event["event"] == "failed"; });
    const QString text = (*failed)["text"].toString();
    QVERIFY2(text.contains(m_folder->storePath()), qPrintable(text));
    QCOMPARE(events.last()["success"].toBool(true), false);
}

// Adds persons with pictures one by one; the number that the store took.
int tst_StoreRefusals::addUntilRefused()
{
    for (int added = 0; added < 1000; ++added) {
        if (!m_writer->does(addition(QStringLiteral("n%1").arg(added), 1, ImageSize)))
            return added;
    }
    return -1;
}

void tst_StoreRefusals::checkPersonsAfterReopening(int count)
{
    m_writer.reset();
    QString error;
    QVERIFY2(DataService::instance().open(m_folder->storePath(), &error), qPrintable(error));
    QCOMPARE(PersonData::instance().getAllPersons(false).count(), count);
    DataService::instance().close();
}

void tst_StoreRefusals::readOnlyFile()
{
    setMode(m_folder->storePath(), 0444);
    setMode(m_folder->path(), 0777);
    if (!m_writer->does({{"do", "dropPrivileges"}}))
        QSKIP("runs as root and there is no user \"nobody\"");
    checkThatNothingCanBeWritten();
}

void tst_StoreRefusals::readOnlyDirectory()
{
    setMode(m_folder->storePath(), 0444);
    setMode(m_folder->path(), 0555);
    if (!m_writer->does({{"do", "dropPrivileges"}}))
        QSKIP("runs as root and there is no user \"nobody\"");
    checkThatNothingCanBeWritten();
    QCOMPARE(m_folder->content().count(), 1);
}

void tst_StoreRefusals::unreadableFile()
{
    setMode(m_folder->storePath(), 0);
    setMode(m_folder->path(), 0755);
    if (!m_writer->does({{"do", "dropPrivileges"}}))
        QSKIP("runs as root and there is no user \"nobody\"");
    const QJsonObject opened = open();
    QCOMPARE(opened["answer"].toBool(true), false);
    QVERIFY2(opened["error"].toString().contains(m_folder->storePath()),
             qPrintable(opened["error"].toString()));
}

void tst_StoreRefusals::newStoreInReadOnlyDirectory()
{
    QVERIFY(QFile::remove(m_folder->storePath()));
    setMode(m_folder->path(), 0555);
    if (!m_writer->does({{"do", "dropPrivileges"}}))
        QSKIP("runs as root and there is no user \"nobody\"");
    const QJsonObject opened = open();
    QCOMPARE(opened["answer"].toBool(true), false);
    QVERIFY2(opened["error"].toString().contains(m_folder->storePath()),
             qPrintable(opened["error"].toString()));
}

void tst_StoreRefusals::newStoreInMissingDirectory()
{
    const QString path = m_folder->path() + QStringLiteral("/none/register.db");
    const QJsonObject opened = m_writer->ask({{"do", "open"}, {"path", path}});
    if (opened["answer"].toBool()) // made the directory
        return;
    QVERIFY2(opened["error"].toString().contains(path), qPrintable(opened["error"].toString()));
}

void tst_StoreRefusals::fullDisk()
{
    const QString disk = m_folder->path() + QStringLiteral("/disk");
    QVERIFY(QDir().mkdir(disk));
    if (!m_writer->does({{"do", "smallDisk"}, {"path", disk}, {"bytes", 2000000}}))
        QSKIP("this system does not let a process mount a small disk of its own");
    const QString path = disk + QStringLiteral("/register.db");
    QVERIFY(m_writer->does({{"do", "open"}, {"path", path}}));
    const int added = addUntilRefused();
    QVERIFY(added > 5);
    QTRY_COMPARE(m_writer->eventCount("failed"), 1);
    QCOMPARE(m_writer->ask({{"do", "count"}})["answer"].toInt(), added);

    QVERIFY(m_writer->does({{"do", "smallDisk"}, {"path", disk}, {"bytes", 20000000}}));
    QVERIFY(m_writer->does(addition("after", 1, ImageSize)));
    QVERIFY(m_writer->does({{"do", "close"}}));
    QVERIFY(m_writer->does({{"do", "open"}, {"path", path}}));
    QCOMPARE(m_writer->ask({{"do", "count"}})["answer"].toInt(), added + 1);
}

void tst_StoreRefusals::fileSizeLimit()
{
    QVERIFY(open()["answer"].toBool());
    QVERIFY(m_writer->does({{"do", "limitFileSize"}, {"bytes", 1000000}}));
    const int added = addUntilRefused();
    QVERIFY(added > 5);
    checkOneRefusal(0);
    QCOMPARE(m_writer->ask({{"do", "count"}})["answer"].toInt(), 3 + added);

    QVERIFY(m_writer->does({{"do", "limitFileSize"}, {"bytes", -1}}));
    QVERIFY(m_writer->does(addition("after", 1, ImageSize)));
    checkPersonsAfterReopening(3 + added + 1);
}

void tst_StoreRefusals::fileSizeLimitFromTheStart()
{
    QVERIFY(QFile::remove(m_folder->storePath()));
    QVERIFY(m_writer->does({{"do", "limitFileSize"}, {"bytes", 2000}}));
    const QJsonObject opened = open();
    QCOMPARE(opened["answer"].toBool(true), false);
    QVERIFY2(opened["error"].toString().contains(m_folder->storePath()),
             qPrintable(opened["error"].toString()));
    QVERIFY(m_writer->does({{"do", "limitFileSize"}, {"bytes", -1}}));
    QVERIFY2(open()["answer"].toBool(), "what the first attempt left behind is in the way");
}

void tst_StoreRefusals::lockedByAnotherProgram()
{
    QVERIFY(open()["answer"].toBool());
    WriterProcess locker;
    QVERIFY(locker.does({{"do", "lock"}, {"path", m_folder->storePath()}}));
    QCOMPARE(m_writer->ask(addition("new"))["answer"].toBool(true), false);
    checkOneRefusal(0);
    QCOMPARE(m_writer->ask({{"do", "count"}})["answer"].toInt(), 3);
    QVERIFY(locker.does({{"do", "unlock"}}));
    QVERIFY(m_writer->does(addition("new")));
    checkPersonsAfterReopening(4);
}

void tst_StoreRefusals::lockedByAnotherProgramForAShortTime()
{
    QVERIFY(open()["answer"].toBool());
    WriterProcess locker;
    QVERIFY(locker.does({{"do", "lock"}, {"path", m_folder->storePath()}}));
    m_writer->send(addition("new"));
    QTest::qWait(300);
    QCOMPARE(m_writer->eventCount("addPersons"), 0);
    QVERIFY(locker.does({{"do", "unlock"}}));
    QVERIFY(m_writer->waitForAnswer()["answer"].toBool());
    QCOMPARE(m_writer->eventCount("failed"), 0);
}

void tst_StoreRefusals::lockedWhileOpening()
{
    WriterProcess locker;
    QVERIFY(locker.does({{"do", "lock"},
                         {"path", m_folder->storePath()},
                         {"sql", "PRAGMA locking_mode = EXCLUSIVE; BEGIN EXCLUSIVE"}}));
    const QJsonObject opened = open();
    QCOMPARE(opened["answer"].toBool(true), false);
    const QString text = opened["error"].toString();
    QVERIFY2(text.contains(m_folder->storePath()) && text.contains(QRegularExpression("lock|use|using")),
             qPrintable(text));
    QVERIFY(locker.does({{"do", "unlock"}}));
    QVERIFY(open()["answer"].toBool());
}

QTEST_GUILESS_MAIN(tst_StoreRefusals)
#include "tst_StoreRefusals.moc"
