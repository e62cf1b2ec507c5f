#include <qarn_base/TimeSpaceLineEt.h>

#include <QSignalSpy>
#include <QToolButton>
#include <QtTest>

using qarn_base::TimeSpaceLineEt;

class tst_TimeSpaceLineEt : public QObject
{
    Q_OBJECT
private slots:
    void describesThePeriod();
    void givesBackExactlyWhatWasSet_data();
    void givesBackExactlyWhatWasSet();
    void emptyWithoutAPeriod();
    void canBePressedButNotTyped();
};

void tst_TimeSpaceLineEt::describesThePeriod()
{
    TimeSpaceLineEt field;
    field.setDateTimeSpace(QDateTime({2026, 11, 21}, {10, 0, 0}), QDateTime({2026, 12, 21}, {10, 0, 5}));
    QCOMPARE(field.text(), QStringLiteral("11-21 10:00:00 - 12-21 10:00:05"));
    field.setUsingYearInTimeSpaceDescription(true);
    QCOMPARE(field.text(), QStringLiteral("2026-11-21 10:00:00 - 2026-12-21 10:00:05"));
}

void tst_TimeSpaceLineEt::givesBackExactlyWhatWasSet_data()
{
    QTest::addColumn<QDateTime>("start");
    QTest::addColumn<QDateTime>("end");
    QTest::newRow("milliseconds") << QDateTime({2026, 1, 1}, {0, 0, 0, 1})
                                  << QDateTime({2026, 1, 1}, {0, 0, 0, 999});
    QTest::newRow("second 02:30 of the clock change")
        << QDateTime({2026, 10, 25}, {1, 30}, Qt::UTC).toLocalTime() << QDateTime({2026, 10, 26}, {0, 0});
    QTest::newRow("UTC") << QDateTime({2026, 6, 1}, {12, 0}, Qt::UTC)
                         << QDateTime({2026, 7, 1}, {12, 0}, Qt::UTC);
    QTest::newRow("end before start") << QDateTime({2026, 6, 2}, {0, 0}) << QDateTime({2026, 6, 1}, {0, 0});
}

void tst_TimeSpaceLineEt::givesBackExactlyWhatWasSet()
{
    QFETCH(QDateTime, start);
    QFETCH(QDateTime, end);
    TimeSpaceLineEt field;
    field.setDateTimeSpace(start, end);
    QCOMPARE(field.getStartTime(), start);
    QCOMPARE(field.getStartTime().toMSecsSinceEpoch(), start.toMSecsSinceEpoch());
    QCOMPARE(field.getStartTime().timeSpec(), start.timeSpec());
    QCOMPARE(field.getEndTime(), end);
    QCOMPARE(field.getDateTimeSpace(), qMakePair(start, end));
}

void tst_TimeSpaceLineEt::emptyWithoutAPeriod()
{
    TimeSpaceLineEt field;
    QVERIFY(field.text().isEmpty());
    QVERIFY(!field.getStartTime().isValid());
    field.setDateTimeSpace(QDateTime({2026, 1, 1}, {0, 0}), QDateTime());
    QVERIFY(field.text().isEmpty());
}

void tst_TimeSpaceLineEt::canBePressedButNotTyped()
{
    TimeSpaceLineEt field;
    field.resize(300, 28);
    field.setDateTimeSpace(QDateTime({2026, 11, 21}, {10, 0}), QDateTime({2026, 12, 21}, {10, 0}));
    const QString text = field.text();
    field.show();
    QVERIFY(QTest::qWaitForWindowActive(&field));
    QSignalSpy clicked(&field, &TimeSpaceLineEt::signalClicked);
    QTest::mouseClick(&field, Qt::LeftButton, Qt::NoModifier, QPoint(2, 2));
    QTest::mouseClick(&field, Qt::LeftButton, Qt::NoModifier, QPoint(297, 25));
    QCOMPARE(clicked.count(), 2);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space})
        QTest::keyClick(&field, key);
    QCOMPARE(clicked.count(), 5);
    QTest::mouseClick(field.findChild<QToolButton*>(), Qt::LeftButton);
    QCOMPARE(clicked.count(), 6);
    QTest::mouseClick(&field, Qt::RightButton);
    QTest::keyClicks(&field, QStringLiteral("abc"));
    QCOMPARE(clicked.count(), 6);
    QCOMPARE(field.text(), text);
}

QTEST_MAIN(tst_TimeSpaceLineEt)
#include "tst_TimeSpaceLineEt.moc"
