#include "NumberRanges.h"

#include <QtTest>

using namespace qarn_data;

class tst_NumberRanges : public QObject
{
    Q_OBJECT
private slots:
    void writes_data();
    void writes();
    void reads_data();
    void reads();
};

void tst_NumberRanges::writes_data()
{
    QTest::addColumn<QVector<qint64>>("numbers");
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << QVector<qint64>{} << "";
    QTest::newRow("one") << QVector<qint64>{7} << "7";
    QTest::newRow("a run") << QVector<qint64>{3, 4, 5} << "3-5";
    QTest::newRow("runs and single ones") << QVector<qint64>{1, 3, 4, 9} << "1,3-4,9";
    QTest::newRow("any order") << QVector<qint64>{9, 3, 1, 4} << "1,3-4,9";
    QTest::newRow("twice") << QVector<qint64>{5, 5, 6, 6} << "5-6";
    QTest::newRow("large") << QVector<qint64>{4611686018427387904} << "4611686018427387904";
}

void tst_NumberRanges::writes()
{
    QFETCH(QVector<qint64>, numbers);
    QFETCH(QString, text);
    QCOMPARE(toRanges(numbers), text);
}

void tst_NumberRanges::reads_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVector<qint64>>("bounds");
    QTest::newRow("none") << "" << QVector<qint64>{};
    QTest::newRow("one") << "7" << QVector<qint64>{7, 7};
    QTest::newRow("several") << "1,3-4" << QVector<qint64>{1, 1, 3, 4};
    QTest::newRow("sorted") << "8-9,1" << QVector<qint64>{1, 1, 8, 9};
    QTest::newRow("no range") << "x,1-2-3,4-2,-,5" << QVector<qint64>{5, 5};
}

void tst_NumberRanges::reads()
{
    QFETCH(QString, text);
    QFETCH(QVector<qint64>, bounds);
    QVector<qint64> read;
    for (const NumberRange& range : fromRanges(text))
        read << range.first << range.last;
    QCOMPARE(read, bounds);
}

QTEST_GUILESS_MAIN(tst_NumberRanges)
#include "tst_NumberRanges.moc"
