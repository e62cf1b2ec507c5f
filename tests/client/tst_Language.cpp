#include "startup/Language.h"

#include "TestStore.h"
#include "transfer/ImportPersonsThread.h"

#include <qarn_data/PersonData.h>

#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QSignalSpy>
#include <QXmlStreamReader>
#include <QtTest>

namespace
{

QSet<QString> placeholders(const QString& text)
{
    QSet<QString> found;
    QRegularExpressionMatchIterator matches =
        QRegularExpression(QStringLiteral("%(\\d|n)")).globalMatch(text);
    while (matches.hasNext())
        found.insert(matches.next().captured());
    return found;
}

QString inContext(const char* context, const char* text)
{
    return QCoreApplication::translate(context, text);
}

} // namespace

class tst_Language : public QObject
{
    Q_OBJECT
private slots:
    void everyTextIsTranslated_data();
    void everyTextIsTranslated();
    void englishNeedsNoTranslation();
    void theTemplateOfALanguageIsReadInIt_data();
    void theTemplateOfALanguageIsReadInIt();
};

void tst_Language::everyTextIsTranslated_data()
{
    QTest::addColumn<QString>("code");
    QTest::newRow("German") << "de";
    QTest::newRow("Chinese") << "zh_CN";
}

void tst_Language::everyTextIsTranslated()
{
    QFETCH(QString, code);
    QFile file(QStringLiteral(QARN_SOURCE_DIR "/host/client/i18n/qarn_%1.ts").arg(code));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&file);
    QString source;
    int count = 0;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("source"))
            source = xml.readElementText();
        if (xml.name() != QLatin1String("translation"))
            continue;
        QVERIFY2(!xml.attributes().hasAttribute(QLatin1String("type")), qPrintable(source));
        const QString translation = xml.readElementText(QXmlStreamReader::IncludeChildElements).trimmed();
        QVERIFY2(!translation.isEmpty(), qPrintable(source));
        QVERIFY2(placeholders(translation) == placeholders(source), qPrintable(source));
        ++count;
    }
    QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
    QVERIFY(count > 300);
}

void tst_Language::englishNeedsNoTranslation()
{
    useLanguage(QStringLiteral("en"));
    QCOMPARE(inContext("qarn_personMgr::PersonMgrForm", "Search"), QString("Search"));
}

void tst_Language::theTemplateOfALanguageIsReadInIt_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("search");
    QTest::newRow("German") << "de" << QString("Suchen");
    QTest::newRow("Chinese") << "zh_CN" << QString("搜索");
}

void tst_Language::theTemplateOfALanguageIsReadInIt()
{
    QFETCH(QString, code);
    QFETCH(QString, search);
    useLanguage(code);
    QCOMPARE(inContext("qarn_personMgr::PersonMgrForm", "Search"), search);

    const char* context = "qarn_personMgr::ImportPersonsDlg";
    const QString header = inContext(context, "*Serial Num");
    QVERIFY(header != QString("*Serial Num"));
    TestStore store;
    QTemporaryDir directory;
    QFile file(directory.filePath("persons.csv"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write((header + ",n,o,s,p,e,v,i,\nA1,Anna,Tor,2,,,,,\n").toUtf8());
    file.close();
    qarn_personMgr::ImportPersonsThread thread(file.fileName(), nullptr);
    QSignalSpy result(&thread, &qarn_personMgr::ImportPersonsThread::signalImportPersonsInfoResult);
    thread.start();
    QTRY_COMPARE(result.count(), 1);
    QVERIFY(thread.wait());
    QCOMPARE(qarn_data::PersonData::instance().getPersonBySerialNum("A1", true).name, QString("Anna"));
}

QTEST_MAIN(tst_Language)
#include "tst_Language.moc"
