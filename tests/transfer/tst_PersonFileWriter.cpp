#include "TransferFiles.h"

#include "transfer/PersonFileFormat.h"
#include "transfer/PersonFileWriter.h"

#include <QDir>
#include <QTemporaryDir>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

using namespace qarn_personMgr;

class tst_PersonFileWriter : public QObject
{
    Q_OBJECT
private slots:
    void writesTheTemplateToTheByte();
    void replacesAFileOnlyWhenDone();
    void refusesWhatIsNoFile();
    void tellsAFullDisk();

private:
    QTemporaryDir m_directory;
};

void tst_PersonFileWriter::writesTheTemplateToTheByte()
{
    const QString path = m_directory.filePath("template.csv");
    PersonFileWriter writer(path);
    QVERIFY(writer.open());
    for (const QStringList& row : importTemplateRows())
        writer.writeRow(row);
    QVERIFY(writer.finish());
    QCOMPARE(transferFiles::read(path), transferFiles::read(TRANSFER_TEST_DATA "/template.csv"));
}

void tst_PersonFileWriter::replacesAFileOnlyWhenDone()
{
    const QString path = transferFiles::write(m_directory.filePath("old.csv"), "a much longer old text");
    {
        PersonFileWriter writer(path);
        QVERIFY(writer.open());
        writer.writeRow({"new"});
    }
    QCOMPARE(transferFiles::read(path), QByteArray("a much longer old text"));
    PersonFileWriter writer(path);
    QVERIFY(writer.open());
    writer.writeRow({"new"});
    QVERIFY(writer.finish());
    QCOMPARE(transferFiles::read(path), QByteArray("new,\n"));
}

void tst_PersonFileWriter::refusesWhatIsNoFile()
{
    const QString pipe = m_directory.filePath("pipe.csv");
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    for (const QString& path : {pipe, m_directory.path(), m_directory.filePath("missing/a.csv"), QString()}) {
        PersonFileWriter writer(path);
        QVERIFY2(!writer.open(), qPrintable(path));
    }
}

void tst_PersonFileWriter::tellsAFullDisk()
{
    const QString path = transferFiles::write(m_directory.filePath("full.csv"), "old");
    signal(SIGXFSZ, SIG_IGN); // a write over the limit then fails like one on a full disk
    rlimit before;
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small{64 * 1024, before.rlim_max};
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &small), 0);
    PersonFileWriter writer(path);
    const bool opened = writer.open();
    for (int i = 0; i < 10000; ++i)
        writer.writeRow({"0123456789", "0123456789"});
    const bool finished = writer.finish();
    setrlimit(RLIMIT_FSIZE, &before);
    QVERIFY(opened);
    QVERIFY(!finished);
    QCOMPARE(transferFiles::read(path), QByteArray("old"));
    QCOMPARE(QDir(m_directory.path()).entryList({"full*"}, QDir::Files | QDir::Hidden),
             QStringList{"full.csv"});
}

QTEST_GUILESS_MAIN(tst_PersonFileWriter)
#include "tst_PersonFileWriter.moc"
