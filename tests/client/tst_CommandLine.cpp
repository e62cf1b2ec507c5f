#include "startup/CommandLine.h"

#include <QtTest>

class tst_CommandLine : public QObject
{
    Q_OBJECT
private slots:
    void reads_data();
    void reads();
    void refuses_data();
    void refuses();
    void helpNamesEveryOption();
};

void tst_CommandLine::reads_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("store");
    QTest::addColumn<QString>("screenshot");
    QTest::addColumn<bool>("demo");
    QTest::addColumn<bool>("selfTest");
    QTest::newRow("nothing") << QStringList() << ""
                             << "" << false << false;
    QTest::newRow("store") << QStringList{"--store", "a b.db"} << "a b.db"
                           << "" << false << false;
    QTest::newRow("store=") << QStringList{"--store=x.db"} << "x.db"
                            << "" << false << false;
    QTest::newRow("demo") << QStringList{"--demo"} << ""
                          << "" << true << false;
    QTest::newRow("self-test") << QStringList{"--self-test", "--store", "x"} << "x"
                               << "" << false << true;
    QTest::newRow("screenshot") << QStringList{"--screenshot", "p.png"} << ""
                                << "p.png" << false << false;
}

void tst_CommandLine::reads()
{
    QFETCH(QStringList, arguments);
    const CommandLine line = CommandLine::parse(QStringList{"qarn-client"} + arguments);
    QVERIFY2(line.error.isEmpty(), qPrintable(line.error));
    QVERIFY(line.help.isEmpty());
    QTEST(line.storePath, "store");
    QTEST(line.screenshotPath, "screenshot");
    QTEST(line.demo, "demo");
    QTEST(line.selfTest, "selfTest");
}

void tst_CommandLine::refuses_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("named");
    QTest::newRow("unknown option") << QStringList{"--colour"} << "colour";
    QTest::newRow("unknown argument") << QStringList{"persons.csv"} << "persons.csv";
    QTest::newRow("store without a file") << QStringList{"--store"} << "store";
    QTest::newRow("two stores") << QStringList{"--demo", "--store", "x.db"} << "--store";
}

void tst_CommandLine::refuses()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, named);
    const CommandLine line = CommandLine::parse(QStringList{"qarn-client"} + arguments);
    QVERIFY2(line.error.contains(named), qPrintable(line.error));
}

void tst_CommandLine::helpNamesEveryOption()
{
    const QString help = CommandLine::parse({"qarn-client", "--help"}).help;
    for (const char* option : {"--store", "--demo", "--self-test", "--screenshot", "--version"})
        QVERIFY2(help.contains(QLatin1String(option)), option);
}

QTEST_MAIN(tst_CommandLine)
#include "tst_CommandLine.moc"
