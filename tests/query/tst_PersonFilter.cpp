#include "query/PersonFilter.h"
#include "query/PersonQueryCondition.h"

#include <qarn_data/PersonInfo.h>

#include <QTimeZone>
#include <QtTest>

using namespace qarn_personMgr;
using qarn_data::PersonInfo;

class tst_PersonFilter : public QObject
{
    Q_OBJECT
private slots:
    void findsFragments_data();
    void findsFragments();
    void knowsThePeriod_data();
    void knowsThePeriod();
    void agreesWithAPlainComparison();
    void readsTheClockAgain();
    void appliesEveryCondition_data();
    void appliesEveryCondition();
    void tellsWhetherAConditionSelects();
};

void tst_PersonFilter::findsFragments_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("fragment");
    QTest::addColumn<bool>("found");

    QTest::newRow("inside") << "xaby"
                            << "ab" << true;
    QTest::newRow("other case") << "XABY"
                                << "ab" << false;
    QTest::newRow("whole") << "ab"
                           << "ab" << true;
    QTest::newRow("at the end") << "xab"
                                << "ab" << true;
    QTest::newRow("longer than the text") << "a"
                                          << "ab" << false;
    QTest::newRow("empty fragment") << "xaby"
                                    << "" << true;
    QTest::newRow("empty text") << ""
                                << "a" << false;
    QTest::newRow("both empty") << ""
                                << "" << true;
    QTest::newRow("no wildcards") << "xaby"
                                  << "x*y" << false;
    QTest::newRow("Chinese") << QString::fromUtf8("欧阳娜娜") << QString::fromUtf8("阳娜") << true;
    QTest::newRow("emoji") << QString::fromUtf8("a😀b") << QString::fromUtf8("😀") << true;
    QTest::newRow("blank inside") << "a b"
                                  << " " << true;
}

void tst_PersonFilter::findsFragments()
{
    QFETCH(QString, text);
    QFETCH(QString, fragment);
    QTEST(containsFragment(text, fragment), "found");
}

void tst_PersonFilter::knowsThePeriod_data()
{
    QTest::addColumn<QDateTime>("start");
    QTest::addColumn<QDateTime>("end");
    QTest::addColumn<bool>("valid");

    const QDateTime now(QDate(2026, 3, 20), QTime(12, 0, 0, 500));
    QTest::newRow("around now") << now.addSecs(-1) << now.addSecs(1) << true;
    QTest::newRow("starts now") << now << now.addDays(1) << true;
    QTest::newRow("starts in a moment") << now.addMSecs(1) << now.addDays(1) << false;
    QTest::newRow("starts in a second") << now.addSecs(1) << now.addDays(1) << false;
    QTest::newRow("ends now") << now.addDays(-1) << now << true;
    QTest::newRow("ends in this second") << now.addDays(-1) << now.addMSecs(-500) << true;
    QTest::newRow("ended a second ago") << now.addDays(-1) << now.addSecs(-1) << false;
    QTest::newRow("ended with the last second") << now.addDays(-1) << now.addMSecs(-501) << false;
    QTest::newRow("an instant") << now << now << true;
    QTest::newRow("end before start") << now.addDays(1) << now.addDays(-1) << false;
    QTest::newRow("across the change of time") << now.addDays(-90) << now.addDays(90) << true;
    QTest::newRow("long ago") << now.addYears(-3) << now.addYears(-2) << false;
    QTest::newRow("years ahead") << now.addYears(2) << now.addYears(3) << false;
    QTest::newRow("UTC, ends now") << now.toUTC().addSecs(-1) << now.toUTC() << true;
    QTest::newRow("UTC, ended") << now.toUTC().addDays(-1) << now.toUTC().addSecs(-1) << false;
    const QTimeZone east("Pacific/Kiritimati");
    QTest::newRow("far zone, starts now") << now.toTimeZone(east) << now.addDays(1).toTimeZone(east) << true;
    QTest::newRow("far zone, starts soon") << now.addSecs(1).toTimeZone(east) << now.addDays(1) << false;
    QTest::newRow("no start") << QDateTime() << now.addDays(1) << true;
    QTest::newRow("no end") << now.addDays(-1) << QDateTime() << false;
    QTest::newRow("end of time") << now << QDateTime(QDate(9999, 12, 31), QTime(23, 59, 59)) << true;
}

void tst_PersonFilter::knowsThePeriod()
{
    QFETCH(QDateTime, start);
    QFETCH(QDateTime, end);
    const QDateTime now(QDate(2026, 3, 20), QTime(12, 0, 0, 500));
    QTEST(isWithin(start, end, now), "valid");
}

/// The shortcut by calendar days must never change the answer, wherever in the year now and bounds lie.
void tst_PersonFilter::agreesWithAPlainComparison()
{
    const QDateTime first(QDate(2025, 1, 1), QTime(0, 0), Qt::UTC);
    for (int day = 0; day < 730; day += 7) {
        const QDateTime now = first.addDays(day).addSecs(day * 3607).toLocalTime();
        for (qint64 hours = -24 * 200; hours <= 24 * 200; hours += 11) {
            const QDateTime bound = now.addSecs(hours * 3600);
            const QDateTime other = hours % 2 == 0 ? bound : bound.toUTC();
            const QByteArray message = now.toString(Qt::ISODate).toUtf8() + " " + QByteArray::number(hours);
            QVERIFY2(isWithin(other, now.addYears(2), now) == (hours <= 0), message);
            QVERIFY2(isWithin(now.addYears(-2), other, now) == (hours >= 0), message);
        }
    }
}

void tst_PersonFilter::readsTheClockAgain()
{
    PresentMoment moment;
    const QDateTime before = QDateTime::currentDateTime();
    const QDateTime first = moment.read();
    QVERIFY(first >= before);
    QCOMPARE(first.timeSpec(), Qt::LocalTime);
    QTRY_VERIFY(moment.read() > first);
    QVERIFY(moment.read() <= QDateTime::currentDateTime());
}

void tst_PersonFilter::appliesEveryCondition_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("serialNum");
    QTest::addColumn<int>("validType");
    QTest::addColumn<bool>("validNow");
    QTest::addColumn<bool>("matching");

    QTest::newRow("no filter") << ""
                               << "" << 0 << true << true;
    QTest::newRow("name") << "rch"
                          << "" << 0 << true << true;
    QTest::newRow("other name") << "RCH"
                                << "" << 0 << true << false;
    QTest::newRow("serial number") << ""
                                   << "-7" << 0 << true << true;
    QTest::newRow("other serial number") << ""
                                         << "b-7" << 0 << true << false;
    QTest::newRow("both, one missing") << "rch"
                                       << "C" << 0 << true << false;
    QTest::newRow("valid only, valid") << ""
                                       << "" << 2 << true << true;
    QTest::newRow("valid only, invalid") << ""
                                         << "" << 2 << false << false;
    QTest::newRow("invalid only, valid") << ""
                                         << "" << 1 << true << false;
    QTest::newRow("invalid only, invalid") << ""
                                           << "" << 1 << false << true;
    QTest::newRow("unknown type, invalid") << ""
                                           << "" << 3 << false << true;
    QTest::newRow("negative type, invalid") << ""
                                            << "" << -1 << false << true;
    QTest::newRow("name and valid") << "Ma"
                                    << "" << 2 << false << false;
}

void tst_PersonFilter::appliesEveryCondition()
{
    QFETCH(QString, name);
    QFETCH(QString, serialNum);
    QFETCH(int, validType);
    QFETCH(bool, validNow);

    PersonInfo person;
    person.name = QStringLiteral("March Mary");
    person.serialNum = QStringLiteral("AB-77");
    person.validStartTime = QDateTime::currentDateTime().addDays(validNow ? -1 : 1);
    person.validEndTime = person.validStartTime.addDays(30);

    PersonQueryCondition condition;
    condition.name = name;
    condition.serialNum = serialNum;
    condition.validType = validType;
    PresentMoment now;
    QTEST(matches(person, condition, now), "matching");
}

void tst_PersonFilter::tellsWhetherAConditionSelects()
{
    PersonQueryCondition condition;
    QVERIFY(!isSelective(condition));
    condition.validType = 7;
    QVERIFY(!isSelective(condition));
    for (int type : {InvalidPersons, ValidPersons}) {
        condition.validType = type;
        QVERIFY(isSelective(condition));
    }
    condition = PersonQueryCondition();
    condition.name = QStringLiteral("a");
    QVERIFY(isSelective(condition));
    condition = PersonQueryCondition();
    condition.serialNum = QStringLiteral("a");
    QVERIFY(isSelective(condition));
}

QTEST_GUILESS_MAIN(tst_PersonFilter)
#include "tst_PersonFilter.moc"
