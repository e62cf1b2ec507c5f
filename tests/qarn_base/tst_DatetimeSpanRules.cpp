#include "DatetimeSpanRules.h"

#include <QtTest>

using qarn_base::SpanProblem;

Q_DECLARE_METATYPE(qarn_base::SpanProblem)

/// Runs in the time zone Europe/Berlin.
class tst_DatetimeSpanRules : public QObject
{
    Q_OBJECT
private slots:
    void checks_data();
    void checks();
    void edits_data();
    void edits();
};

constexpr qint64 ThreeYears = 94608000;

void tst_DatetimeSpanRules::checks_data()
{
    QTest::addColumn<QDateTime>("start");
    QTest::addColumn<QDateTime>("end");
    QTest::addColumn<qint64>("maxSecs");
    QTest::addColumn<SpanProblem>("problem");
    const QDateTime noon({2026, 3, 1}, {12, 0});
    QTest::newRow("fine") << noon << noon.addMonths(1) << ThreeYears << SpanProblem::None;
    QTest::newRow("no time at all") << noon << noon << ThreeYears << SpanProblem::None;
    QTest::newRow("1 ms backwards") << noon << noon.addMSecs(-1) << ThreeYears << SpanProblem::EndBeforeStart;
    QTest::newRow("exactly the maximum")
        << noon << noon.addSecs(ThreeYears) << ThreeYears << SpanProblem::None;
    QTest::newRow("1 ms more") << noon << noon.addSecs(ThreeYears).addMSecs(1) << ThreeYears
                               << SpanProblem::TooLong;
    QTest::newRow("without limit") << noon << noon.addYears(500) << qint64(0) << SpanProblem::None;
    QTest::newRow("a day of 25 hours")
        << QDateTime({2026, 10, 25}, {0, 0}) << QDateTime({2026, 10, 26}, {0, 0}) << qint64(86400)
        << SpanProblem::TooLong;
    QTest::newRow("a day of 23 hours") << QDateTime({2026, 3, 29}, {0, 0}) << QDateTime({2026, 3, 30}, {0, 0})
                                       << qint64(82800) << SpanProblem::None;
    QTest::newRow("skipped by the clock change")
        << QDateTime({2026, 3, 29}, {2, 30}) << noon.addYears(1) << qint64(0) << SpanProblem::NoStart;
    QTest::newRow("no start") << QDateTime() << noon << ThreeYears << SpanProblem::NoStart;
    QTest::newRow("no end") << noon << QDateTime() << ThreeYears << SpanProblem::NoEnd;
}

void tst_DatetimeSpanRules::checks()
{
    QFETCH(QDateTime, start);
    QFETCH(QDateTime, end);
    QFETCH(qint64, maxSecs);
    QTEST(qarn_base::checkSpan(start, end, maxSecs), "problem");
}

void tst_DatetimeSpanRules::edits_data()
{
    QTest::addColumn<QDateTime>("original");
    QTest::addColumn<QDateTime>("shown");
    QTest::addColumn<QDateTime>("result");
    const QDateTime exact({2026, 6, 1}, {10, 20, 30, 456});
    QTest::newRow("untouched") << exact << QDateTime({2026, 6, 1}, {10, 20, 30}) << exact;
    QTest::newRow("another hour") << exact << QDateTime({2026, 6, 1}, {11, 20, 30, 456})
                                  << QDateTime({2026, 6, 1}, {11, 20, 30});
    QTest::newRow("another day") << exact << QDateTime({2026, 6, 2}, {10, 20, 30, 456})
                                 << QDateTime({2026, 6, 2}, {10, 20, 30});
    const QDateTime secondHour = QDateTime({2026, 10, 25}, {1, 30}, Qt::UTC).toLocalTime();
    QTest::newRow("the second 02:30") << secondHour << QDateTime({2026, 10, 25}, {2, 30}) << secondHour;
    const QDateTime utc({2026, 6, 1}, {12, 0}, Qt::UTC);
    QTest::newRow("another time zone") << utc << QDateTime({2026, 6, 1}, {14, 0}) << utc;
}

void tst_DatetimeSpanRules::edits()
{
    QFETCH(QDateTime, original);
    QFETCH(QDateTime, shown);
    QFETCH(QDateTime, result);
    const QDateTime edited = qarn_base::editedTime(original, shown);
    QCOMPARE(edited.toMSecsSinceEpoch(), result.toMSecsSinceEpoch());
    QCOMPARE(edited.timeSpec(), result.timeSpec());
}

QTEST_GUILESS_MAIN(tst_DatetimeSpanRules)
#include "tst_DatetimeSpanRules.moc"
