#include "StoreFolder.h"
#include "WriterProcess.h"

#include <qarn_data/DataService.h>
#include <qarn_data/PersonData.h>

#include <QDir>
#include <QJsonArray>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QtTest>

#include <functional>
#include <unistd.h>

using qarn_data::DataService;
using qarn_data::PersonData;
using qarn_data::PersonInfo;

using Spoil = std::function<void(StoreFolder&)>;
Q_DECLARE_METATYPE(Spoil)

namespace
{

constexpr int KeptPersons = 400;

void truncateTo(StoreFolder& folder, double part)
{
    folder.makeStore(KeptPersons, 2000);
    const QByteArray bytes = folder.read();
    folder.write(bytes.left(int(bytes.size() * part)));
}

} // namespace

/// Files that cannot be used: each is refused in words that name it, and stays as it is.
class tst_StoreFaults : public QObject
{
    Q_OBJECT
private slots:
    void refusesWithoutTouching_data();
    void refusesWithoutTouching();
    void isUsableAfterARefusal();
    void survivesScribbledPages();
    void tellsOnceThatOthersChangesCannotBeRead();
};

void tst_StoreFaults::refusesWithoutTouching_data()
{
    QTest::addColumn<Spoil>("spoil");
    QTest::addColumn<QString>("cause"); // what the message must tell besides the file
    const QString damaged = QStringLiteral("not a|no |damaged|malformed|corrupt|cut");

    QTest::newRow("text") << Spoil([](StoreFolder& f) { f.write(QByteArray(9000, 'x')); }) << damaged;
    QTest::newRow("short text") << Spoil([](StoreFolder& f) { f.write("serial;name\n"); }) << damaged;
    QTest::newRow("jpeg") << Spoil([](StoreFolder& f) {
        f.write("\xff\xd8\xff\xe0" + QByteArray(5000, '\0'));
    }) << damaged;
    QTest::newRow("header only") << Spoil([](StoreFolder& f) {
        f.makeStore(3);
        f.write(f.read().left(100));
    }) << damaged;
    QTest::newRow("half") << Spoil([](StoreFolder& f) { truncateTo(f, 0.5); }) << damaged;
    QTest::newRow("last byte missing") << Spoil([](StoreFolder& f) { truncateTo(f, 0.999999); }) << damaged;
    QTest::newRow("last tenth missing") << Spoil([](StoreFolder& f) { truncateTo(f, 0.9); }) << damaged;
    QTest::newRow("newer") << Spoil([](StoreFolder& f) {
        f.makeStore(3);
        f.runSql("PRAGMA user_version = 1000000");
    }) << QStringLiteral("newer");
    QTest::newRow("of another program") << Spoil([](StoreFolder& f) {
        f.runSql("PRAGMA application_id = 77; CREATE TABLE invoice(id INTEGER PRIMARY KEY); "
                 "INSERT INTO invoice VALUES (1)");
    }) << QStringLiteral("not a|another|other");
    QTest::newRow("directory") << Spoil([](StoreFolder& f) { QDir().mkdir(f.storePath()); })
                               << QStringLiteral("directory|folder");
}

void tst_StoreFaults::refusesWithoutTouching()
{
    QFETCH(Spoil, spoil);
    QFETCH(QString, cause);
    StoreFolder folder;
    spoil(folder);
    const auto before = folder.content();
    QString error;
    QVERIFY(!DataService::instance().open(folder.storePath(), &error));
    QVERIFY(!DataService::instance().isOpen());
    QVERIFY2(error.contains(folder.storePath()), qPrintable(error));
    const QString words = QString(error).remove(folder.storePath());
    QVERIFY2(words.contains(QRegularExpression(cause, QRegularExpression::CaseInsensitiveOption)),
             qPrintable(error));
    QCOMPARE(folder.content().keys(), before.keys());
    QVERIFY(folder.content() == before);
    QVERIFY(PersonData::instance().getAllPersons(false).isEmpty());
    QVERIFY(!PersonData::instance().addPerson(qarn_data::PersonInfo()));
}

void tst_StoreFaults::isUsableAfterARefusal()
{
    StoreFolder bad;
    bad.write("rubbish");
    StoreFolder good;
    good.makeStore(2);
    QVERIFY(!DataService::instance().open(bad.storePath()));
    QString error;
    QVERIFY2(DataService::instance().open(good.storePath(), &error), qPrintable(error));
    QCOMPARE(PersonData::instance().getAllPersons(false).count(), 2);
    DataService::instance().close();
}

// In a process of its own: whatever stands in the file, the service answers and lives.
void tst_StoreFaults::survivesScribbledPages()
{
    StoreFolder folder;
    folder.makeStore(KeptPersons);
    const QByteArray good = folder.read();
    QRandomGenerator random(99);
    WriterProcess reader;
    for (int round = 0; round < 60; ++round) {
        QByteArray bytes = good;
        const int start = round % 3 == 0 ? random.bounded(200) : random.bounded(bytes.size());
        const int count = std::min(1 << random.bounded(12), bytes.size() - start);
        for (int i = 0; i < count; ++i)
            bytes[start + i] = char(random.generate());
        folder.write(bytes);
        const QJsonObject answer = reader.ask({{"do", "open"}, {"path", folder.storePath()}});
        QVERIFY2(!answer.isEmpty(), qPrintable(QStringLiteral("round %1: no answer").arg(round)));
        if (answer["answer"].toBool()) {
            QVERIFY(reader.does({{"do", "close"}}));
            for (const char* suffix : {"-wal", "-shm"})
                QFile::remove(folder.storePath() + QLatin1String(suffix));
            continue;
        }
        QVERIFY2(answer["error"].toString().contains(folder.storePath()),
                 qPrintable(answer["error"].toString()));
        QVERIFY2(folder.read() == bytes, qPrintable(answer["error"].toString()));
    }
}

void tst_StoreFaults::tellsOnceThatOthersChangesCannotBeRead()
{
    StoreFolder folder;
    folder.makeStore(3);
    QVERIFY(DataService::instance().open(folder.storePath()));
    QSignalSpy failed(&DataService::instance(), &DataService::signalFailed);
    folder.runSql("ALTER TABLE change_log RENAME TO lost");
    QTRY_COMPARE(failed.count(), 1);
    QVERIFY2(failed.first().first().toString().contains("change_log"),
             qPrintable(failed.first().first().toString()));
    folder.runSql("UPDATE persons SET remarks = 'x'");
    QTest::qWait(700); // two more looks
    QCOMPARE(failed.count(), 1);
    QCOMPARE(PersonData::instance().getAllPersons(false).count(), 3);

    folder.runSql("ALTER TABLE lost RENAME TO change_log");
    QTRY_VERIFY(PersonData::instance().addPerson(PersonInfo()) || failed.count() > 1);
    QCOMPARE(failed.count(), 1);
    DataService::instance().close();
}

QTEST_GUILESS_MAIN(tst_StoreFaults)
#include "tst_StoreFaults.moc"
