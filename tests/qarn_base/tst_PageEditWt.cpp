#include <qarn_base/PageEditWt.h>

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QtTest>

using qarn_base::PageEditWt;

class tst_PageEditWt : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup() { m_bar.reset(); }

    void startsWithFiftyRowsAndNoPage();
    void showsWhatItIsTold_data();
    void showsWhatItIsTold();
    void buttonsAskForPages();
    void askingDoesNotTurnThePage();
    void returnJumps();
    void numberFallsBackWithoutReturn();
    void numberStaysInRange();
    void pageSizeOnlyAnnounces();
    void everyControlHasANameAndTheFocus();
    void wheelOverTheSizeChangesNothing();

private:
    template <class Child>
    Child* find(const char* name) const
    {
        return m_bar->findChild<Child*>(QString::fromLatin1(name));
    }
    void click(const char* name) const { QTest::mouseClick(find<QPushButton>(name), Qt::LeftButton); }

    std::unique_ptr<PageEditWt> m_bar;
};

void tst_PageEditWt::init()
{
    m_bar = std::make_unique<PageEditWt>();
    m_bar->show();
    QVERIFY(QTest::qWaitForWindowActive(m_bar.get()));
}

void tst_PageEditWt::startsWithFiftyRowsAndNoPage()
{
    QCOMPARE(m_bar->getPageSize(), 50);
    QCOMPARE(m_bar->getCurPageNum(), 0);
    QStringList sizes;
    for (int i = 0; i < find<QComboBox>("pageSize")->count(); ++i)
        sizes.append(find<QComboBox>("pageSize")->itemText(i));
    QCOMPARE(sizes, (QStringList{"20", "50", "100", "200"}));
}

void tst_PageEditWt::showsWhatItIsTold_data()
{
    QTest::addColumn<int>("total");
    QTest::addColumn<int>("page");
    QTest::addColumn<int>("pages");
    QTest::addColumn<bool>("back");
    QTest::addColumn<bool>("forth");
    QTest::newRow("nobody") << 0 << 0 << 0 << false << false;
    QTest::newRow("one") << 1 << 1 << 1 << false << false;
    QTest::newRow("just one page") << 50 << 1 << 1 << false << false;
    QTest::newRow("one more, first") << 51 << 1 << 2 << false << true;
    QTest::newRow("one more, last") << 51 << 2 << 2 << true << false;
    QTest::newRow("in the middle") << 1000 << 7 << 20 << true << true;
}

void tst_PageEditWt::showsWhatItIsTold()
{
    QFETCH(int, total);
    QFETCH(int, page);
    QFETCH(int, pages);
    QFETCH(bool, back);
    QFETCH(bool, forth);
    m_bar->updateTotalCnt(300, 3);
    m_bar->updateTotalCnt(total, page);
    QCOMPARE(m_bar->getCurPageNum(), page);
    QCOMPARE(find<QSpinBox>("curPage")->value(), page);
    QCOMPARE(find<QLabel>("pageCount")->text(), QString::number(pages));
    QCOMPARE(find<QLabel>("totalCnt")->text(), QString::number(total));
    QCOMPARE(find<QPushButton>("firstBt")->isEnabled(), back);
    QCOMPARE(find<QPushButton>("prevBt")->isEnabled(), back);
    QCOMPARE(find<QPushButton>("nextBt")->isEnabled(), forth);
    QCOMPARE(find<QPushButton>("lastBt")->isEnabled(), forth);
}

void tst_PageEditWt::buttonsAskForPages()
{
    m_bar->updateTotalCnt(1000, 7);
    QSignalSpy asked(m_bar.get(), &PageEditWt::signalGotoPage);
    for (const char* name : {"firstBt", "prevBt", "nextBt", "lastBt"})
        click(name);
    QList<int> pages;
    for (const QList<QVariant>& call : asked) {
        pages.append(call.at(0).toInt());
        QCOMPARE(call.at(1).toInt(), 50);
    }
    QCOMPARE(pages, (QList<int>{1, 6, 8, 20}));
}

void tst_PageEditWt::askingDoesNotTurnThePage()
{
    m_bar->updateTotalCnt(1000, 7);
    click("nextBt");
    QCOMPARE(m_bar->getCurPageNum(), 7);
    QCOMPARE(find<QSpinBox>("curPage")->value(), 7);
}

void tst_PageEditWt::returnJumps()
{
    m_bar->updateTotalCnt(1000, 7);
    connect(m_bar.get(), &PageEditWt::signalGotoPage, m_bar.get(),
            [this](int page) { m_bar->updateTotalCnt(1000, page); });
    QSignalSpy asked(m_bar.get(), &PageEditWt::signalGotoPage);
    auto* number = find<QSpinBox>("curPage");
    number->setFocus();
    number->selectAll();
    QTest::keyClicks(number, QStringLiteral("12"));
    QCOMPARE(asked.count(), 0);
    QTest::keyClick(number, Qt::Key_Return);
    QCOMPARE(asked.count(), 1);
    QCOMPARE(asked.at(0).at(0).toInt(), 12);
    QCOMPARE(asked.at(0).at(1).toInt(), 50);
    QCOMPARE(m_bar->getCurPageNum(), 12);
    QCOMPARE(number->value(), 12);
}

void tst_PageEditWt::numberFallsBackWithoutReturn()
{
    m_bar->updateTotalCnt(1000, 7);
    QSignalSpy asked(m_bar.get(), &PageEditWt::signalGotoPage);
    auto* number = find<QSpinBox>("curPage");
    number->setFocus();
    number->selectAll();
    QTest::keyClicks(number, QStringLiteral("3"));
    find<QComboBox>("pageSize")->setFocus();
    QCOMPARE(number->value(), 7);
    QCOMPARE(asked.count(), 0);
}

void tst_PageEditWt::numberStaysInRange()
{
    m_bar->updateTotalCnt(1000, 7);
    QSignalSpy asked(m_bar.get(), &PageEditWt::signalGotoPage);
    auto* number = find<QSpinBox>("curPage");
    number->setFocus();
    number->selectAll();
    QTest::keyClicks(number, QStringLiteral("99"));
    QTest::keyClick(number, Qt::Key_Return);
    for (const QList<QVariant>& call : asked)
        QVERIFY(call.at(0).toInt() >= 1 && call.at(0).toInt() <= 20);
}

void tst_PageEditWt::pageSizeOnlyAnnounces()
{
    m_bar->updateTotalCnt(1000, 7);
    QSignalSpy asked(m_bar.get(), &PageEditWt::signalGotoPage);
    QSignalSpy sizes(m_bar.get(), &PageEditWt::signalPageSizeChanged);
    find<QComboBox>("pageSize")->setFocus();
    QTest::keyClick(find<QComboBox>("pageSize"), Qt::Key_Down);
    QCOMPARE(sizes.count(), 1);
    QCOMPARE(sizes.at(0).at(0).toInt(), 100);
    QCOMPARE(m_bar->getPageSize(), 100);
    QCOMPARE(asked.count(), 0);
    m_bar->updateTotalCnt(1000, 1);
    QCOMPARE(find<QLabel>("pageCount")->text(), QStringLiteral("10"));
}

void tst_PageEditWt::everyControlHasANameAndTheFocus()
{
    m_bar->updateTotalCnt(1000, 7);
    for (const char* name : {"firstBt", "prevBt", "curPage", "nextBt", "lastBt", "pageSize"}) {
        const auto* control = find<QWidget>(name);
        QVERIFY2(!control->accessibleName().isEmpty(), name);
        QVERIFY2(control->focusPolicy() & Qt::TabFocus, name);
    }
    QStringList walked;
    find<QWidget>("firstBt")->setFocus();
    for (int i = 0; i < 6; ++i) {
        walked.append(m_bar->focusWidget()->objectName());
        QTest::keyClick(m_bar->focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(walked, (QStringList{"firstBt", "prevBt", "curPage", "nextBt", "lastBt", "pageSize"}));
}

void tst_PageEditWt::wheelOverTheSizeChangesNothing()
{
    m_bar->updateTotalCnt(1000, 7);
    find<QSpinBox>("curPage")->setFocus();
    auto* size = find<QComboBox>("pageSize");
    const QPoint at = size->rect().center();
    QWheelEvent wheel(at, size->mapToGlobal(at), QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(size, &wheel);
    QCOMPARE(m_bar->getPageSize(), 50);
}

QTEST_MAIN(tst_PageEditWt)
#include "tst_PageEditWt.moc"
