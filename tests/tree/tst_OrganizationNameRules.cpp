#include "tree/OrganizationNameRules.h"

#include <QtTest>

using namespace qarn_personMgr;

class tst_OrganizationNameRules : public QObject
{
    Q_OBJECT
private slots:
    void proposesNames_data();
    void proposesNames();
    void countsTo1023();
    void looksOnlyAtOtherSiblings_data();
    void looksOnlyAtOtherSiblings();
};

void tst_OrganizationNameRules::proposesNames_data()
{
    QTest::addColumn<QStringList>("siblings");
    QTest::addColumn<QString>("proposed");
    QTest::newRow("no siblings") << QStringList() << "New";
    QTest::newRow("base free") << QStringList{"New1", "new"} << "New";
    QTest::newRow("base taken") << QStringList{"New"} << "New1";
    QTest::newRow("base and 1 taken") << QStringList{"New", "New1"} << "New2";
    QTest::newRow("gap") << QStringList{"New", "New2"} << "New1";
}

void tst_OrganizationNameRules::proposesNames()
{
    QFETCH(QStringList, siblings);
    QTEST(defaultOrganizationName("New", QSet<QString>(siblings.cbegin(), siblings.cend())), "proposed");
}

void tst_OrganizationNameRules::countsTo1023()
{
    QSet<QString> taken{"New"};
    for (int i = 1; i <= 1022; ++i)
        taken.insert(QStringLiteral("New%1").arg(i));
    QCOMPARE(defaultOrganizationName("New", taken), QString("New1023"));
    taken.insert("New1023");
    QVERIFY(QRegularExpression("^\\{[0-9a-f]{8}-$").match(defaultOrganizationName("New", taken)).hasMatch());
}

void tst_OrganizationNameRules::looksOnlyAtOtherSiblings_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("id");
    QTest::addColumn<bool>("taken");
    QTest::newRow("own name") << "Sales"
                              << "1" << false;
    QTest::newRow("sibling's name") << "Works"
                                    << "1" << true;
    QTest::newRow("case differs") << "works"
                                  << "1" << false;
    QTest::newRow("blank differs") << "Works "
                                   << "1" << false;
    QTest::newRow("new one, taken") << "Sales"
                                    << "" << true;
    QTest::newRow("new one, free") << "Office"
                                   << "" << false;
}

void tst_OrganizationNameRules::looksOnlyAtOtherSiblings()
{
    QFETCH(QString, name);
    QFETCH(QString, id);
    QTEST(isSiblingNameTaken({{"1", "Sales"}, {"2", "Works"}}, name, id), "taken");
    QVERIFY(!isSiblingNameTaken({}, name, id));
}

QTEST_GUILESS_MAIN(tst_OrganizationNameRules)
#include "tst_OrganizationNameRules.moc"
