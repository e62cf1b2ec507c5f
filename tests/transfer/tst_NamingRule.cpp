#include "transfer/NamingRule.h"

#include <QtTest>

using namespace qarn_personMgr;

class tst_NamingRule : public QObject
{
    Q_OBJECT
private slots:
    void appendsACheckedWord();
    void removesAnUncheckedWord_data();
    void removesAnUncheckedWord();
    void keepsTheOrderOfElements();
    void findsThePositions();
};

void tst_NamingRule::appendsACheckedWord()
{
    QCOMPARE(namingRuleWithWord("", "Sex"), QString("Sex"));
    QCOMPARE(namingRuleWithWord("Sex", "Serial Num"), QString("Sex_Serial Num"));
}

void tst_NamingRule::removesAnUncheckedWord_data()
{
    QTest::addColumn<QString>("rule");
    QTest::addColumn<QString>("word");
    QTest::addColumn<QString>("left");
    QTest::newRow("last") << "A_B_C"
                          << "C"
                          << "A_B";
    QTest::newRow("middle") << "A_B_C"
                            << "B"
                            << "A_C";
    QTest::newRow("first") << "A_B_C"
                           << "A"
                           << "B_C";
    QTest::newRow("only") << "A"
                          << "A"
                          << "";
    QTest::newRow("missing") << "A_B"
                             << "C"
                             << "A_B";
    QTest::newRow("the first form goes wherever it stands") << "A_B_A_C"
                                                            << "A"
                                                            << "A_B_C";
    QTest::newRow("also as the start of another word") << "B_Serial Num_Serial"
                                                       << "Serial"
                                                       << "B Num";
}

void tst_NamingRule::removesAnUncheckedWord()
{
    QFETCH(QString, rule);
    QFETCH(QString, word);
    QTEST(namingRuleWithoutWord(rule, word), "left");
}

void tst_NamingRule::keepsTheOrderOfElements()
{
    QCOMPARE(namingRuleWithElement("", "Name", true), QString("Name"));
    QCOMPARE(namingRuleWithElement("Name", "Sex", true), QString("Name_Sex"));
    QCOMPARE(namingRuleWithElement("Name_Sex_Name", "Name", false), QString("Sex"));
    QCOMPARE(namingRuleWithElement("Name", "Name", false), QString());
    QCOMPARE(namingRuleWithElement("Serial", "Ser", false), QString("Serial"));
}

void tst_NamingRule::findsThePositions()
{
    const QStringList words{"Serial Num", "Person Name", "Sex"};
    QCOMPARE(namingRulePositions("Sex_Serial Num", words), (QList<int>{2, 0}));
    QCOMPARE(namingRulePositions("Sex_other", words), (QList<int>{2, -1}));
    QCOMPARE(namingRulePositions("", words), QList<int>{-1});
}

QTEST_GUILESS_MAIN(tst_NamingRule)
#include "tst_NamingRule.moc"
