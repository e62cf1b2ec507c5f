#include "TransferFiles.h"

#include "transfer/PersonFileFormat.h"

#include <QTranslator>

using namespace qarn_personMgr;

class tst_PersonFileFormat : public QObject
{
    Q_OBJECT
private slots:
    void endsEveryLineWithASeparator();
    void writesTheTemplateToTheByte();
    void findsItsTemplateInEveryLanguage();
    void takesTheFirstEightFields_data();
    void takesTheFirstEightFields();
    void keepsAllowedSerialNumbers_data();
    void keepsAllowedSerialNumbers();
    void replacesRefusedSerialNumbers_data();
    void replacesRefusedSerialNumbers();
    void makesADifferentNumberEachTime();
    void readsDates_data();
    void readsDates();
    void readsNoDate_data();
    void readsNoDate();
    void givesStartAndEndOfTheDay();
    void writesDates();
    void splitsOrganizationPaths_data();
    void splitsOrganizationPaths();
};

void tst_PersonFileFormat::endsEveryLineWithASeparator()
{
    QString text = "before\n";
    appendPersonFileLine(text, {"a", "b"});
    appendPersonFileLine(text, {"a"});
    appendPersonFileLine(text, {"", "b,c"}); // nothing is quoted
    appendPersonFileLine(text, {});
    QCOMPARE(text, QString("before\na,b,\na,\n,b,c,\n,\n"));
    QCOMPARE(text.split('\n')[1].split(',').count(), 3);
}

void tst_PersonFileFormat::writesTheTemplateToTheByte()
{
    QString text;
    for (const QStringList& row : importTemplateRows())
        appendPersonFileLine(text, row);
    QCOMPARE(text.toUtf8(), transferFiles::read(TRANSFER_TEST_DATA "/template.csv"));
}

void tst_PersonFileFormat::findsItsTemplateInEveryLanguage()
{
    struct Marking : QTranslator {
        QString translate(const char* context, const char* text, const char*, int) const override
        {
            return QString("%1 in %2").arg(text, context);
        }
        bool isEmpty() const override { return false; }
    } language;
    QVERIFY(QCoreApplication::installTranslator(&language));
    const QList<QStringList> rows = importTemplateRows();
    QCOMPARE(rows.last().first(), serialNumTitle());
    QCOMPARE(serialNumTitle(), QString("*Serial Num in qarn_personMgr::ImportPersonsDlg"));
    QCOMPARE(rows.first().first(), QString("Rules: in qarn_personMgr::ImportPersonsDlg"));
    QCoreApplication::removeTranslator(&language);
}

void tst_PersonFileFormat::takesTheFirstEightFields_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QStringList>("fields");
    QTest::newRow("empty") << "" << QStringList{""};
    QTest::newRow("one") << "a" << QStringList{"a"};
    QTest::newRow("trailing separator") << "a," << QStringList{"a", ""};
    QTest::newRow("seven") << "1,2,3,4,5,6,7" << QStringList{"1", "2", "3", "4", "5", "6", "7"};
    QTest::newRow("eight") << "1,2,3,4,5,6,7,8" << QStringList{"1", "2", "3", "4", "5", "6", "7", "8"};
    QTest::newRow("eight by a trailing separator")
        << "1,2,3,4,5,6,7," << QStringList{"1", "2", "3", "4", "5", "6", "7", ""};
    QTest::newRow("more") << "1,2,3,4,5,6,7,8,9,10" << QStringList{"1", "2", "3", "4", "5", "6", "7", "8"};
    QTest::newRow("empty ones") << ",,,,,,,,," << QStringList{"", "", "", "", "", "", "", ""};
    QTest::newRow("quotes mean nothing") << "\"a,b\",c" << QStringList{"\"a", "b\"", "c"};
    QTest::newRow("blanks stay") << " a , b " << QStringList{" a ", " b "};
}

void tst_PersonFileFormat::takesTheFirstEightFields()
{
    QFETCH(QString, line);
    QTEST(importFields(line), "fields");
}

void tst_PersonFileFormat::keepsAllowedSerialNumbers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("serialNum");
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("blank") << "   \t"
                           << "";
    QTest::newRow("digits") << "00123"
                            << "00123";
    QTest::newRow("lower case") << "ab12"
                                << "AB12";
    QTest::newRow("trimmed") << "  A1\t"
                             << "A1";
    QTest::newRow("inner blank") << "A 1"
                                 << "A 1";
    QTest::newRow("braces") << "{A1}"
                            << "{A1}";
    QTest::newRow("long") << QString(500, 'x') << QString(500, 'X');
    QTest::newRow("upper-casing makes it plain") << QString::fromUtf8("stra\u00dfe") << "STRASSE";
}

void tst_PersonFileFormat::keepsAllowedSerialNumbers()
{
    QFETCH(QString, text);
    QTEST(importedSerialNum(text), "serialNum");
}

void tst_PersonFileFormat::replacesRefusedSerialNumbers_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("hyphen") << "A-001";
    QTest::newRow("underscore") << "A_1";
    QTest::newRow("tab inside") << "A\t1";
    QTest::newRow("line break inside") << "A\n1";
    QTest::newRow("slash") << "A/1";
    QTest::newRow("umlaut") << QString::fromUtf8("\u00c41");
    QTest::newRow("Chinese") << QString::fromUtf8("\u5de51");
    QTest::newRow("full-width digit") << QString::fromUtf8("\uff11");
    QTest::newRow("Arabic digit") << QString::fromUtf8("\u0661");
    QTest::newRow("no-break blank inside") << QString::fromUtf8("A\u00a01");
    QTest::newRow("NUL") << QString("A") + QChar(0) + "1";
    QTest::newRow("half of a pair") << QString("A") + QChar(0xd800);
    QTest::newRow("emoji") << QString::fromUtf8("A\xF0\x9F\x99\x82");
}

void tst_PersonFileFormat::replacesRefusedSerialNumbers()
{
    QFETCH(QString, text);
    const QRegularExpression random("\\A\\{[0-9a-f]{8}-\\z");
    QVERIFY2(random.match(importedSerialNum(text)).hasMatch(), qPrintable(importedSerialNum(text)));
}

void tst_PersonFileFormat::makesADifferentNumberEachTime()
{
    QCOMPARE(randomSerialNum().length(), 10);
    QVERIFY(randomSerialNum() != randomSerialNum());
}

void tst_PersonFileFormat::readsDates_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QDate>("date");
    QTest::newRow("as the template says") << "2024-03-07" << QDate(2024, 3, 7);
    QTest::newRow("without zeros") << "2024-3-7" << QDate(2024, 3, 7);
    QTest::newRow("slashes") << "2024/03/07" << QDate(2024, 3, 7);
    QTest::newRow("slashes without zeros") << "2024/3/7" << QDate(2024, 3, 7);
    QTest::newRow("leap day") << "2024-02-29" << QDate(2024, 2, 29);
    QTest::newRow("blanks around") << " 2024-03-07 " << QDate(2024, 3, 7);
}

void tst_PersonFileFormat::readsDates()
{
    QFETCH(QString, text);
    QFETCH(QDate, date);
    QCOMPARE(importedDateTime(text, QTime(0, 0)), QDateTime(date, QTime(0, 0)));
}

void tst_PersonFileFormat::readsNoDate_data()
{
    QTest::addColumn<QString>("text");
    for (const char* text : {"",
                             " ",
                             "2024",
                             "2024-03",
                             "2024-03-07-1",
                             "2024.03.07",
                             "2023-02-29",
                             "2024-13-01",
                             "2024-00-10",
                             "2024-03-32",
                             "a-b-c",
                             "2024-March-7",
                             "--",
                             "-2024-3-7",
                             "0-1-1",
                             "2024/03",
                             "2024/3-7",
                             "99999999999-1-1",
                             "2024-03-07T10:00:00",
                             "20240307"})
        QTest::newRow(*text == '\0' ? "empty" : text) << text;
}

void tst_PersonFileFormat::readsNoDate()
{
    QFETCH(QString, text);
    QVERIFY(!importedDateTime(text, QTime(0, 0)).isValid());
}

void tst_PersonFileFormat::givesStartAndEndOfTheDay()
{
    const QDateTime start = importedDateTime("2024-3-7", QTime(0, 0));
    const QDateTime end = importedDateTime("2024-3-7", QTime(23, 59, 59));
    QCOMPARE(start.toString("yyyy-MM-dd hh:mm:ss.zzz"), QString("2024-03-07 00:00:00.000"));
    QCOMPARE(end.toString("yyyy-MM-dd hh:mm:ss.zzz"), QString("2024-03-07 23:59:59.000"));
    QCOMPARE(start.timeSpec(), Qt::LocalTime);
}

void tst_PersonFileFormat::writesDates()
{
    for (const QDate& date : {QDate(2024, 3, 7), QDate(2024, 12, 31), QDate(1, 1, 1), QDate(999, 10, 20),
                              QDate(9999, 12, 31), QDate(10000, 1, 1), QDate(-44, 3, 15), QDate()})
        QCOMPARE(exportedDate(QDateTime(date, QTime(23, 59))), date.toString("yyyy/MM/dd"));
    QCOMPARE(exportedDate(QDateTime(QDate(2024, 3, 7), QTime(0, 0))), QString("2024/03/07"));
    QCOMPARE(exportedDate(QDateTime()), QString());
}

void tst_PersonFileFormat::splitsOrganizationPaths_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QStringList>("levels");
    QTest::newRow("one") << "A" << QStringList{"A"};
    QTest::newRow("two") << "A/B" << QStringList{"A", "B"};
    QTest::newRow("blanks around") << " A/B " << QStringList{"A", "B"};
    QTest::newRow("blanks inside stay") << "A / B" << QStringList{"A ", " B"};
    QTest::newRow("empty levels stay") << "/A//B/" << QStringList{"", "A", "", "B", ""};
    QTest::newRow("empty") << "" << QStringList{""};
}

void tst_PersonFileFormat::splitsOrganizationPaths()
{
    QFETCH(QString, path);
    QTEST(organizationLevels(path), "levels");
}

QTEST_GUILESS_MAIN(tst_PersonFileFormat)
#include "tst_PersonFileFormat.moc"
