#include "TokenCipher.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QThread>
#include <QtTest>

#include <memory>
#include <vector>

using namespace qarn_data;

class tst_TokenCipher : public QObject
{
    Q_OBJECT
private slots:
    void init() { QFile::remove(TokenCipher::keyFilePath()); }
    void roundTrip_data();
    void roundTrip();
    void makesItsKeyOnce();
    void needsTheRightKey();
    void refusesADamagedKey();
    void manyStartersEndWithOneKey();
};

void tst_TokenCipher::roundTrip_data()
{
    QTest::addColumn<QString>("token");
    QTest::newRow("text") << "secret";
    QTest::newRow("any script") << QString::fromUtf8("秘密 🔑");
    QTest::newRow("long") << QString(10000, 'x');
}

void tst_TokenCipher::roundTrip()
{
    QFETCH(QString, token);
    QString error;
    const QByteArray first = TokenCipher::encrypt(token, &error);
    QCOMPARE(error, QString());
    QCOMPARE(TokenCipher::decrypt(first), token);
    QVERIFY(!first.contains(token.toUtf8()));
    QVERIFY(first != TokenCipher::encrypt(token, &error)); // never the same twice
    QVERIFY(TokenCipher::encrypt(QString(), &error).isEmpty());
    QVERIFY(TokenCipher::decrypt(QByteArray()).isEmpty());
}

void tst_TokenCipher::makesItsKeyOnce()
{
    QString error;
    TokenCipher::decrypt(QByteArray(100, 'x')); // reading makes none
    QVERIFY(!QFile::exists(TokenCipher::keyFilePath()));
    TokenCipher::encrypt("a", &error);
    QFile key(TokenCipher::keyFilePath());
    QVERIFY(key.open(QIODevice::ReadOnly));
    const QByteArray content = key.readAll();
    QCOMPARE(content.size(), 32);
    constexpr QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                          QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
    QCOMPARE(key.permissions() & others, QFile::Permissions());
    TokenCipher::encrypt("b", &error);
    key.seek(0);
    QCOMPARE(key.readAll(), content);
}

void tst_TokenCipher::needsTheRightKey()
{
    QString error;
    QByteArray box = TokenCipher::encrypt("secret", &error);
    QByteArray bent = box;
    bent[bent.size() - 1] = char(bent.at(bent.size() - 1) ^ 1);
    QVERIFY(TokenCipher::decrypt(bent).isEmpty());
    QVERIFY(TokenCipher::decrypt(box.left(10)).isEmpty());
    QVERIFY(QFile::remove(TokenCipher::keyFilePath()));
    QVERIFY(TokenCipher::decrypt(box).isEmpty());
    TokenCipher::encrypt("other", &error); // makes another key
    QVERIFY(TokenCipher::decrypt(box).isEmpty());
}

void tst_TokenCipher::refusesADamagedKey()
{
    QString error;
    TokenCipher::encrypt("a", &error);
    QFile key(TokenCipher::keyFilePath());
    QVERIFY(key.open(QIODevice::ReadWrite));
    QVERIFY(key.resize(5));
    QVERIFY(TokenCipher::encrypt("a", &error).isEmpty());
    QVERIFY2(error.contains(TokenCipher::keyFilePath()), qPrintable(error));
    QCOMPARE(QFileInfo(TokenCipher::keyFilePath()).size(), 5); // not overwritten
}

void tst_TokenCipher::manyStartersEndWithOneKey()
{
    constexpr int starters = 8;
    std::vector<QByteArray> boxes(starters);
    std::vector<std::unique_ptr<QThread>> threads;
    for (QByteArray& box : boxes) {
        threads.emplace_back(QThread::create([&box] {
            QString error;
            box = TokenCipher::encrypt("secret", &error);
        }));
    }
    for (const auto& thread : threads)
        thread->start();
    for (const auto& thread : threads)
        QVERIFY(thread->wait());
    for (const QByteArray& box : boxes)
        QCOMPARE(TokenCipher::decrypt(box), QString("secret"));
    const QFileInfo key(TokenCipher::keyFilePath());
    QCOMPARE(key.dir().entryList({"device-key*"}, QDir::Files), QStringList({"device-key"}));
}

QTEST_GUILESS_MAIN(tst_TokenCipher)
#include "tst_TokenCipher.moc"
