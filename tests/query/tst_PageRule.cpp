#include "query/PageRule.h"

#include <QtTest>

using qarn_personMgr::choosePage;
using qarn_personMgr::PageSpan;

class tst_PageRule : public QObject
{
    Q_OBJECT
private slots:
    void choosesThePage_data();
    void choosesThePage();
};

void tst_PageRule::choosesThePage_data()
{
    QTest::addColumn<int>("total");
    QTest::addColumn<int>("wanted");
    QTest::addColumn<int>("pageSize");
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("count");

    QTest::newRow("first page") << 120 << 1 << 50 << 1 << 0 << 50;
    QTest::newRow("middle page") << 120 << 2 << 50 << 2 << 50 << 50;
    QTest::newRow("short last page") << 120 << 3 << 50 << 3 << 100 << 20;
    QTest::newRow("beyond the last page") << 120 << 4 << 50 << 3 << 100 << 20;
    QTest::newRow("far beyond") << 120 << 2147483647 << 50 << 3 << 100 << 20;
    QTest::newRow("minus one") << 120 << -1 << 50 << 3 << 100 << 20;
    QTest::newRow("zero") << 120 << 0 << 50 << 3 << 100 << 20;
    QTest::newRow("full last page") << 100 << 2 << 50 << 2 << 50 << 50;
    QTest::newRow("just one row more") << 101 << 3 << 50 << 3 << 100 << 1;
    QTest::newRow("one row") << 1 << 1 << 50 << 1 << 0 << 1;
    QTest::newRow("page of one") << 3 << 2 << 1 << 2 << 1 << 1;
    QTest::newRow("nobody") << 0 << 1 << 50 << 0 << 0 << 0;
    QTest::newRow("nobody, last page") << 0 << -1 << 50 << 0 << 0 << 0;
    QTest::newRow("no page size") << 3 << 2 << 0 << 2 << 1 << 1;
    QTest::newRow("huge page size") << 3 << 2 << 2147483647 << 1 << 0 << 3;
    QTest::newRow("many rows") << 2147483647 << -1 << 50 << 42949673 << 2147483600 << 47;
}

void tst_PageRule::choosesThePage()
{
    QFETCH(int, total);
    QFETCH(int, wanted);
    QFETCH(int, pageSize);
    const PageSpan page = choosePage(total, wanted, pageSize);
    QTEST(page.number, "number");
    QTEST(page.first, "first");
    QTEST(page.count, "count");
}

QTEST_GUILESS_MAIN(tst_PageRule)
#include "tst_PageRule.moc"
