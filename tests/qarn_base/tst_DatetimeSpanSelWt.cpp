#include <qarn_base/DatetimeSpanSelWt.h>

#include <QDateTimeEdit>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QtTest>

using qarn_base::DatetimeSpanSelWt;

constexpr qint64 ThreeYears = 94608000;

/// Runs in the time zone Europe/Berlin.
class tst_DatetimeSpanSelWt : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void isAPopupOnlyWhenAskedFor();
    void confirmsUntouchedTimesExactly();
    void confirmsAnEdit();
    void keepsTheSecondHourOfTheClockChange();
    void refusesATimeThatTheClockChangeSkips();
    void refusesEndBeforeStart();
    void refusesTooLongASpan();
    void refusalGoesWithTheNextEdit();
    void cancelAndEscapeConfirmNothing();
    void staysInsideTheScreen_data();
    void staysInsideTheScreen();
    void tabWalksTheFields();
    void startsFromNowWithoutTimes();

private:
    QDateTimeEdit* field(const char* name) const
    {
        return m_picker->findChild<QDateTimeEdit*>(QString::fromLatin1(name));
    }
    void click(const char* name) const
    {
        QTest::mouseClick(m_picker->findChild<QPushButton*>(QString::fromLatin1(name)), Qt::LeftButton);
    }
    QString reason() const { return m_picker->findChild<QLabel*>(QStringLiteral("reason"))->text(); }
    void open(const QDateTime& start, const QDateTime& end) const;
    static void typeYear(QDateTimeEdit* edit, const QString& year);

    std::unique_ptr<QWidget> m_window;
    DatetimeSpanSelWt* m_picker = nullptr;
};

void tst_DatetimeSpanSelWt::init()
{
    m_window = std::make_unique<QWidget>();
    m_window->resize(400, 300);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    m_picker = new DatetimeSpanSelWt(m_window.get(), true);
    m_picker->setMaxSpanSecs(ThreeYears);
}

void tst_DatetimeSpanSelWt::cleanup()
{
    m_window.reset();
}

void tst_DatetimeSpanSelWt::open(const QDateTime& start, const QDateTime& end) const
{
    m_picker->setInitDateTime(start, end);
    m_picker->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_picker));
}

void tst_DatetimeSpanSelWt::typeYear(QDateTimeEdit* edit, const QString& year)
{
    edit->setFocus();
    edit->setSelectedSection(QDateTimeEdit::YearSection);
    QTest::keyClicks(edit, year);
}

void tst_DatetimeSpanSelWt::isAPopupOnlyWhenAskedFor()
{
    QCOMPARE(m_picker->windowType(), Qt::Popup);
    QVERIFY(!m_picker->isVisible());
    DatetimeSpanSelWt embedded(m_window.get(), false);
    QVERIFY(!embedded.isWindow());
}

void tst_DatetimeSpanSelWt::confirmsUntouchedTimesExactly()
{
    const QDateTime start({2026, 11, 21}, {10, 0, 0, 123});
    const QDateTime end({2026, 12, 21}, {10, 0, 0, 987});
    QSignalSpy changed(m_picker, &DatetimeSpanSelWt::signalDatetimeSpanSelChanged);
    open(start, end);
    QCOMPARE(field("startDateTime")->text(), QStringLiteral("2026-11-21 10:00:00"));
    QCOMPARE(field("endDateTime")->text(), QStringLiteral("2026-12-21 10:00:00"));
    click("okBt");
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).toDateTime(), start);
    QCOMPARE(changed.at(0).at(1).toDateTime(), end);
    QVERIFY(!m_picker->isVisible());
}

void tst_DatetimeSpanSelWt::confirmsAnEdit()
{
    const QDateTime start({2026, 11, 21}, {10, 0, 0, 123});
    QSignalSpy changed(m_picker, &DatetimeSpanSelWt::signalDatetimeSpanSelChanged);
    open(start, QDateTime({2026, 12, 21}, {10, 0, 0, 5}));
    typeYear(field("endDateTime"), QStringLiteral("2027"));
    QTest::keyClick(field("endDateTime"), Qt::Key_Return);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).toDateTime(), start);
    QCOMPARE(changed.at(0).at(1).toDateTime(), QDateTime({2027, 12, 21}, {10, 0, 0}));
}

void tst_DatetimeSpanSelWt::keepsTheSecondHourOfTheClockChange()
{
    const QDateTime start = QDateTime({2026, 10, 25}, {1, 30}, Qt::UTC).toLocalTime();
    QCOMPARE(start.time(), QTime(2, 30));
    QSignalSpy changed(m_picker, &DatetimeSpanSelWt::signalDatetimeSpanSelChanged);
    open(start, QDateTime({2026, 10, 26}, {0, 0}));
    click("okBt");
    QCOMPARE(changed.at(0).at(0).toDateTime().toMSecsSinceEpoch(), start.toMSecsSinceEpoch());
}

void tst_DatetimeSpanSelWt::refusesATimeThatTheClockChangeSkips()
{
    QSignalSpy changed(m_picker, &DatetimeSpanSelWt::signalDatetimeSpanSelChanged);
    open(QDateTime({2026, 3, 28}, {2, 30}), QDateTime({2026, 4, 28}, {10, 0}));
    field("startDateTime")->setFocus();
    field("startDateTime")->setSelectedSection(QDateTimeEdit::DaySection);
    QTest::keyClicks(field("startDateTime"), QStringLiteral("29"));
    click("okBt");
    QCOMPARE(changed.count(), 0);
    QCOMPARE(field("startDateTime")->text(), QStringLiteral("2026-03-29 02:30:00"));
    QVERIFY2(reason().contains(QStringLiteral("clock change")), qPrintable(reason()));
    field("startDateTime")->setSelectedSection(QDateTimeEdit::HourSection);
    QTest::keyClicks(field("startDateTime"), QStringLiteral("03"));
    click("okBt");
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).toDateTime(), QDateTime({2026, 3, 29}, {3, 30}));
}

void tst_DatetimeSpanSelWt::refusesEndBeforeStart()
{
    QSignalSpy changed(m_picker, &DatetimeSpanSelWt::signalDatetimeSpanSelChanged);
    open(QDateTime({2026, 11, 21}, {10, 0}), QDateTime({2026, 12, 21}, {10, 0}));
    typeYear(field("endDateTime"), QStringLiteral("2025"));
    click("okBt");
    QCOMPARE(changed.count(), 0);
    QVERIFY(m_picker->isVisible());
    QVERIFY2(reason().contains(QStringLiteral("before")), qPrintable(reason()));
}

void tst_DatetimeSpanSelWt::refusesTooLongASpan()
{
    QSignalSpy changed(m_picker, &DatetimeSpanSelWt::signalDatetimeSpanSelChanged);
    open(QDateTime({2026, 11, 21}, {10, 0}), QDateTime({2026, 12, 21}, {10, 0}));
    typeYear(field("endDateTime"), QStringLiteral("2030"));
    click("okBt");
    QCOMPARE(changed.count(), 0);
    QVERIFY2(reason().contains(QStringLiteral("1095 days")), qPrintable(reason()));
    m_picker->setMaxSpanSecs(0);
    click("okBt");
    QCOMPARE(changed.count(), 1);
}

void tst_DatetimeSpanSelWt::refusalGoesWithTheNextEdit()
{
    open(QDateTime({2026, 11, 21}, {10, 0}), QDateTime({2026, 11, 20}, {10, 0}));
    click("okBt");
    QVERIFY(!reason().isEmpty());
    typeYear(field("endDateTime"), QStringLiteral("2027"));
    QVERIFY(reason().isEmpty());
}

void tst_DatetimeSpanSelWt::cancelAndEscapeConfirmNothing()
{
    QSignalSpy changed(m_picker, &DatetimeSpanSelWt::signalDatetimeSpanSelChanged);
    open(QDateTime({2026, 11, 21}, {10, 0}), QDateTime({2026, 12, 21}, {10, 0}));
    click("cancelBt");
    QVERIFY(!m_picker->isVisible());
    m_picker->show();
    QTest::keyClick(field("startDateTime"), Qt::Key_Escape);
    QVERIFY(!m_picker->isVisible());
    QCOMPARE(changed.count(), 0);
}

void tst_DatetimeSpanSelWt::staysInsideTheScreen_data()
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QTest::addColumn<QPoint>("at");
    QTest::newRow("lower right") << screen.bottomRight();
    QTest::newRow("upper left") << screen.topLeft() - QPoint(50, 50);
    QTest::newRow("middle") << screen.center();
}

void tst_DatetimeSpanSelWt::staysInsideTheScreen()
{
    QFETCH(QPoint, at);
    m_picker->move(at);
    open(QDateTime({2026, 11, 21}, {10, 0}), QDateTime({2026, 12, 21}, {10, 0}));
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QVERIFY(screen.contains(m_picker->geometry()));
    if (screen.contains(QRect(at, m_picker->size())))
        QCOMPARE(m_picker->pos(), at);
}

void tst_DatetimeSpanSelWt::tabWalksTheFields()
{
    open(QDateTime({2026, 11, 21}, {10, 0}), QDateTime({2026, 12, 21}, {10, 0}));
    QCOMPARE(m_picker->focusWidget(), field("startDateTime"));
    for (int section = 0; section < 6; ++section)
        QTest::keyClick(m_picker->focusWidget(), Qt::Key_Tab);
    QCOMPARE(m_picker->focusWidget(), field("endDateTime"));
}

void tst_DatetimeSpanSelWt::startsFromNowWithoutTimes()
{
    QSignalSpy changed(m_picker, &DatetimeSpanSelWt::signalDatetimeSpanSelChanged);
    const QDateTime before = QDateTime::currentDateTime();
    open(QDateTime(), QDateTime());
    click("okBt");
    QCOMPARE(changed.count(), 1);
    QVERIFY(changed.at(0).at(0).toDateTime() >= before);
}

QTEST_MAIN(tst_DatetimeSpanSelWt)
#include "tst_DatetimeSpanSelWt.moc"
