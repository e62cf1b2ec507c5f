#include "LocalTimes.h"

#include <QtTest>

#include <ctime>

using namespace qarn_data;

namespace
{

int offsetAt(const QDateTime& utc)
{
    return utc.toLocalTime().offsetFromUtc();
}

/// Extremes, a few moments of every day of some years, and many around every change of the clock, so that
/// each hour that comes twice or not at all is met.
QVector<qint64> interestingMoments()
{
    constexpr qint64 sparse = 11 * 3600 * 1000 + 1234567;
    constexpr qint64 dense = 13 * 60 * 1000 + 1234;
    QVector<qint64> moments{0, -1, 1, -86400000, 253402300799999, -62135596800000};
    QDateTime day(QDate(2011, 12, 1), QTime(0, 0), Qt::UTC);
    for (; day.date() < QDate(2016, 1, 1); day = day.addDays(1)) {
        const bool changes = offsetAt(day.addDays(-1)) != offsetAt(day.addDays(2));
        const qint64 start = day.toMSecsSinceEpoch();
        for (qint64 moment = start; moment < start + 86400000; moment += changes ? dense : sparse)
            moments.append(moment);
    }
    return moments;
}

} // namespace

/// Whatever the shortcuts, every conversion gives what Qt gives.
class tst_LocalTimes : public QObject
{
    Q_OBJECT
private slots:
    void agreesWithQt_data();
    void agreesWithQt();
    void convertsOtherSpecs();
    void cleanup();
};

void tst_LocalTimes::cleanup()
{
    qputenv("TZ", "Europe/Berlin");
    tzset();
}

void tst_LocalTimes::agreesWithQt_data()
{
    QTest::addColumn<QByteArray>("zone");
    for (const char* zone :
         {"Europe/Berlin", "UTC", "America/St_Johns", "Asia/Kathmandu", "Australia/Lord_Howe", "Pacific/Apia",
          "Africa/Casablanca", "America/Sao_Paulo", "America/Havana", "Atlantic/Azores"})
        QTest::newRow(zone) << QByteArray(zone);
}

void tst_LocalTimes::agreesWithQt()
{
    QFETCH(QByteArray, zone);
    qputenv("TZ", zone);
    tzset();
    LocalTimes times;
    const QVector<qint64> moments = interestingMoments();
    for (const qint64 moment : moments) {
        const QDateTime expected = QDateTime::fromMSecsSinceEpoch(moment);
        const QDateTime time = times.fromMSecs(moment);
        QCOMPARE(time, expected);
        QCOMPARE(time.date(), expected.date());
        QCOMPARE(time.time(), expected.time());
        QCOMPARE(time.timeSpec(), Qt::LocalTime);
        QCOMPARE(time.isDaylightTime(), expected.isDaylightTime());
        QCOMPARE(times.toMSecs(time), expected.toMSecsSinceEpoch());
    }
}

void tst_LocalTimes::convertsOtherSpecs()
{
    LocalTimes times;
    for (int round = 0; round < 3; ++round) {
        const QDateTime utc(QDate(2024, 6, 1), QTime(12, 0), Qt::UTC);
        QCOMPARE(times.toMSecs(utc), utc.toMSecsSinceEpoch());
        QCOMPARE(times.toMSecs(utc.toOffsetFromUtc(3600)), utc.toMSecsSinceEpoch());
        QCOMPARE(times.toMSecs(utc.toLocalTime()), utc.toMSecsSinceEpoch());
    }
}

QTEST_GUILESS_MAIN(tst_LocalTimes)
#include "tst_LocalTimes.moc"
