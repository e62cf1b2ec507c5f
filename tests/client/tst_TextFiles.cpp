#include "startup/TextFiles.h"

#include <QTextCodec>
#include <QTextStream>
#include <QtTest>

class tst_TextFiles : public QObject
{
    Q_OBJECT
private slots:
    void everyNameSurvives_data();
    void everyNameSurvives();
    void aUnicodeLocaleStaysAsItIs();
};

void tst_TextFiles::everyNameSurvives_data()
{
    QTest::addColumn<QByteArray>("locale");
    QTest::newRow("ASCII") << QByteArray("US-ASCII");
    QTest::newRow("Latin-1") << QByteArray("ISO-8859-1");
    QTest::newRow("Chinese without emoji") << QByteArray("GBK");
}

void tst_TextFiles::everyNameSurvives()
{
    QFETCH(QByteArray, locale);
    QTextCodec::setCodecForLocale(QTextCodec::codecForName(locale));
    QVERIFY(QTextCodec::codecForLocale() != nullptr);
    useUnicodeTextFiles();
    const QString name = QString::fromUtf8("Zoë 张 😀");
    QByteArray bytes;
    QTextStream(&bytes, QIODevice::WriteOnly) << name;
    QCOMPARE(bytes, name.toUtf8());
}

void tst_TextFiles::aUnicodeLocaleStaysAsItIs()
{
    QTextCodec* codec = QTextCodec::codecForName("GB18030");
    QTextCodec::setCodecForLocale(codec);
    useUnicodeTextFiles();
    QCOMPARE(QTextCodec::codecForLocale(), codec);
}

QTEST_MAIN(tst_TextFiles)
#include "tst_TextFiles.moc"
