#include "SqliteSchema.h"
#include "StoreFile.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtEndian>
#include <QtTest>

using namespace qarn_data;

namespace
{

/// The start of an SQLite file with what a store's header says.
struct Header {
    qint32 application = SqliteApplicationId;
    qint32 version = 1;
    qint32 pages = 2;

    QByteArray file(int size) const
    {
        QByteArray bytes(8192, '\0');
        bytes.replace(0, 16, QByteArray("SQLite format 3", 16));
        const auto put = [&bytes](int offset, qint32 number) { qToBigEndian(number, bytes.data() + offset); };
        qToBigEndian(qint16(4096), bytes.data() + 16);
        put(24, 5);
        put(28, pages);
        put(60, version);
        put(68, application);
        put(92, 5);
        return bytes.left(size);
    }
};

} // namespace

class tst_StoreFile : public QObject
{
    Q_OBJECT
private slots:
    void judgesByTheHeader_data();
    void judgesByTheHeader();
};

void tst_StoreFile::judgesByTheHeader_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("hasJournal");
    QTest::addColumn<QString>("objection");
    const Header own;
    const Header foreign{7, 1, 2};
    const Header newer{SqliteApplicationId, 2, 2};
    const Header blank{0, 0, 1};
    QTest::newRow("a store") << own.file(8192) << false << "";
    QTest::newRow("empty") << QByteArray() << false << "";
    QTest::newRow("made but not filled") << blank.file(4096) << false << "";
    QTest::newRow("no page complete") << own.file(90) << false << "not a person register";
    QTest::newRow("no database") << QByteArray(8192, 'x') << false << "not a person register";
    QTest::newRow("another program's") << foreign.file(8192) << false << "another program";
    QTest::newRow("nameless, with tables") << Header{0, 0, 2}.file(8192) << false << "another program";
    QTest::newRow("newer") << newer.file(8192) << false << "newer version (2, this one knows 1)";
    QTest::newRow("cut off") << own.file(8191) << false << "end is missing";
    // What the journal holds is not in the header yet; the database looks itself.
    QTest::newRow("cut off, with journal") << own.file(8191) << true << "";
    QTest::newRow("not filled, with journal") << Header{0, 0, 2}.file(8192) << true << "";
    QTest::newRow("no database, with journal") << QByteArray(8192, 'x') << true << "not a person register";
}

void tst_StoreFile::judgesByTheHeader()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, hasJournal);
    QFETCH(QString, objection);
    const QTemporaryDir directory;
    const QString path = directory.filePath("store.db");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();
    if (hasJournal) {
        QFile journal(path + "-wal");
        QVERIFY(journal.open(QIODevice::WriteOnly));
        journal.write("frames");
    }
    const QString told = storeFileObjection(path, 1);
    QVERIFY2(objection.isEmpty() ? told.isEmpty() : told.contains(objection), qPrintable(told));
}

QTEST_GUILESS_MAIN(tst_StoreFile)
#include "tst_StoreFile.moc"
