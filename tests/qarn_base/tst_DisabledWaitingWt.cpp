#include <qarn_base/DisabledWaitingWt.h>
#include <qarn_base/DisabledWaitingWtManager.h>

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QShortcut>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QtTest>

using qarn_base::DisabledWaitingWt;
using qarn_base::DisabledWaitingWtManager;

/// A window with a page to cover and a button beside it.
class tst_DisabledWaitingWt : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void showsItsTexts();
    void identitiesDiffer();
    void coversAndFollowsItsParent();
    void staysAboveWhatIsAddedLater();
    void takesMouseAndKeys();
    void blocksShortcuts();
    void leavesTheRestAlone();
    void movesTheFocusAndGivesItBack();
    void focusGivenByCodeIsCaught();
    void tabStaysOutside();
    void twoOverlaysGetAlong();
    void survivesTheEndOfItsParent();
    void managerForgetsWhatIsGone();
    void animates();

private:
    DisabledWaitingWt* cover();
    void typeIntoTheWindow() const
    {
        for (const char key : {'a', 'b', 'c'})
            QTest::keyClick(m_window->windowHandle(), key);
    }

    std::unique_ptr<QWidget> m_window;
    QWidget* m_page = nullptr;
    QLineEdit* m_edit = nullptr;
    QPushButton* m_inside = nullptr;
    QPushButton* m_outside = nullptr;
};

void tst_DisabledWaitingWt::init()
{
    m_window = std::make_unique<QWidget>();
    m_page = new QWidget(m_window.get());
    m_outside = new QPushButton(QStringLiteral("outside"), m_window.get());
    auto* layout = new QVBoxLayout(m_window.get());
    layout->addWidget(m_page, 1);
    layout->addWidget(m_outside);
    m_edit = new QLineEdit(m_page);
    m_inside = new QPushButton(QStringLiteral("&inside"), m_page);
    auto* pageLayout = new QVBoxLayout(m_page);
    pageLayout->addWidget(m_edit);
    pageLayout->addWidget(m_inside);
    m_window->resize(500, 400);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    m_edit->setFocus();
}

void tst_DisabledWaitingWt::cleanup()
{
    m_window.reset();
}

DisabledWaitingWt* tst_DisabledWaitingWt::cover()
{
    auto* overlay = new DisabledWaitingWt(m_page, QStringLiteral("Importing"), QString(), false);
    overlay->show();
    return overlay;
}

void tst_DisabledWaitingWt::showsItsTexts()
{
    DisabledWaitingWt* overlay = cover();
    auto* description = overlay->findChild<QLabel*>(QStringLiteral("description"));
    QCOMPARE(overlay->findChild<QLabel*>(QStringLiteral("caption"))->text(), QStringLiteral("Importing"));
    QVERIFY(description->text().isEmpty());
    overlay->updateDescription(QStringLiteral("<i>12</i> of 500"));
    QCOMPARE(description->text(), QStringLiteral("<i>12</i> of 500"));
    QCOMPARE(description->textFormat(), Qt::PlainText);
}

void tst_DisabledWaitingWt::identitiesDiffer()
{
    const QUuid first = cover()->getUuid();
    QVERIFY(!first.isNull());
    QVERIFY(first != cover()->getUuid());
}

void tst_DisabledWaitingWt::coversAndFollowsItsParent()
{
    DisabledWaitingWt* overlay = cover();
    QCOMPARE(overlay->geometry(), m_page->rect());
    m_window->resize(800, 600);
    QTRY_COMPARE(overlay->size(), m_page->size());
    QCOMPARE(m_page->childAt(m_inside->geometry().center()), overlay);
}

void tst_DisabledWaitingWt::staysAboveWhatIsAddedLater()
{
    DisabledWaitingWt* overlay = cover();
    auto* late = new QPushButton(m_page);
    late->setGeometry(0, 0, 50, 50);
    late->show();
    QTRY_COMPARE(m_page->childAt(10, 10), overlay);
}

void tst_DisabledWaitingWt::takesMouseAndKeys()
{
    QSignalSpy pressed(m_inside, &QPushButton::clicked);
    DisabledWaitingWt* overlay = cover();
    QTRY_VERIFY(overlay->hasFocus());
    const QPoint at = m_inside->mapTo(m_window.get(), m_inside->rect().center());
    QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, Qt::NoModifier, at);
    typeIntoTheWindow();
    QTest::keyClick(m_inside, Qt::Key_Space);
    QTest::keyClicks(m_edit, QStringLiteral("abc"));
    QCOMPARE(pressed.count(), 0);
    QVERIFY(m_edit->text().isEmpty());

    DisabledWaitingWtManager::instance().destroyDisabledWaitingWt(overlay->getUuid());
    typeIntoTheWindow();
    QCOMPARE(m_edit->text(), QStringLiteral("abc"));
    QTest::mouseClick(m_inside, Qt::LeftButton);
    QCOMPARE(pressed.count(), 1);
}

void tst_DisabledWaitingWt::blocksShortcuts()
{
    auto* shortcut = new QShortcut(QKeySequence(Qt::Key_F5), m_page);
    auto* outer = new QShortcut(QKeySequence(Qt::Key_F6), m_window.get());
    auto* action = new QAction(m_page);
    action->setShortcut(QKeySequence(Qt::Key_F7));
    m_page->addAction(action);
    QSignalSpy activated(shortcut, &QShortcut::activated);
    QSignalSpy outerActivated(outer, &QShortcut::activated);
    QSignalSpy triggered(action, &QAction::triggered);
    QSignalSpy mnemonic(m_inside, &QPushButton::clicked);
    const auto typeAll = [this] {
        for (const Qt::Key key : {Qt::Key_F5, Qt::Key_F6, Qt::Key_F7})
            QTest::keyClick(m_window->windowHandle(), key);
        QTest::keyClick(m_window->windowHandle(), Qt::Key_I, Qt::AltModifier);
    };
    typeAll();
    QTRY_COMPARE(activated.count() + triggered.count() + mnemonic.count() + outerActivated.count(), 4);

    DisabledWaitingWt* overlay = cover();
    QTRY_VERIFY(overlay->hasFocus());
    typeAll();
    QTest::qWait(150); // a button pressed by its mnemonic reports it after 100 ms
    QCOMPARE(activated.count(), 1);
    QCOMPARE(triggered.count(), 1);
    QCOMPARE(mnemonic.count(), 1);
    QCOMPARE(outerActivated.count(), 2);
}

void tst_DisabledWaitingWt::leavesTheRestAlone()
{
    QSignalSpy pressed(m_outside, &QPushButton::clicked);
    cover();
    QTest::mouseClick(m_outside, Qt::LeftButton);
    QCOMPARE(pressed.count(), 1);
}

void tst_DisabledWaitingWt::movesTheFocusAndGivesItBack()
{
    DisabledWaitingWt* overlay = cover();
    QTRY_VERIFY(overlay->hasFocus());
    DisabledWaitingWtManager::instance().destroyDisabledWaitingWt(overlay->getUuid());
    QVERIFY(m_edit->hasFocus());

    overlay = cover();
    QTRY_VERIFY(overlay->hasFocus());
    m_outside->setFocus();
    DisabledWaitingWtManager::instance().destroyDisabledWaitingWt(overlay->getUuid());
    QVERIFY(m_outside->hasFocus());
}

void tst_DisabledWaitingWt::focusGivenByCodeIsCaught()
{
    DisabledWaitingWt* overlay = cover();
    QTRY_VERIFY(overlay->hasFocus());
    m_inside->setFocus();
    QTRY_VERIFY(overlay->hasFocus());
    DisabledWaitingWtManager::instance().destroyDisabledWaitingWt(overlay->getUuid());
    QVERIFY(m_inside->hasFocus());
}

void tst_DisabledWaitingWt::tabStaysOutside()
{
    DisabledWaitingWt* overlay = cover();
    QTRY_VERIFY(overlay->hasFocus());
    QTest::keyClick(m_window->windowHandle(), Qt::Key_Tab);
    QVERIFY(m_outside->hasFocus());
    QTest::keyClick(m_window->windowHandle(), Qt::Key_Tab);
    QTRY_VERIFY(overlay->hasFocus());
    QTest::keyClick(m_window->windowHandle(), Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(m_outside->hasFocus());
}

void tst_DisabledWaitingWt::twoOverlaysGetAlong()
{
    DisabledWaitingWt* first = cover();
    DisabledWaitingWt* second = cover();
    QCoreApplication::processEvents();
    QVERIFY(first->hasFocus() || second->hasFocus());
    DisabledWaitingWtManager::instance().destroyDisabledWaitingWt(second->getUuid());
    QSignalSpy pressed(m_inside, &QPushButton::clicked);
    QTest::mouseClick(m_inside, Qt::LeftButton);
    QCOMPARE(pressed.count(), 0);
    DisabledWaitingWtManager::instance().destroyDisabledWaitingWt(first->getUuid());
    QTest::mouseClick(m_inside, Qt::LeftButton);
    QCOMPARE(pressed.count(), 1);
}

void tst_DisabledWaitingWt::survivesTheEndOfItsParent()
{
    const QPointer<DisabledWaitingWt> overlay = cover();
    const QUuid uuid = overlay->getUuid();
    m_window.reset();
    QVERIFY(overlay.isNull());
    init();
    DisabledWaitingWt* next = cover();
    DisabledWaitingWtManager::instance().destroyDisabledWaitingWt(uuid);
    QCoreApplication::processEvents();
    QVERIFY2(next->isVisible(), "the identity of one that has gone stands for no other");
}

void tst_DisabledWaitingWt::managerForgetsWhatIsGone()
{
    QPointer<DisabledWaitingWt> overlay = cover();
    const QUuid uuid = overlay->getUuid();
    DisabledWaitingWtManager::instance().destroyDisabledWaitingWt(QUuid::createUuid());
    QVERIFY(overlay->isVisible());
    DisabledWaitingWtManager::instance().destroyDisabledWaitingWt(uuid);
    QVERIFY(!overlay->isVisible());
    QTRY_VERIFY(overlay.isNull());
    DisabledWaitingWtManager::instance().destroyDisabledWaitingWt(uuid);
}

void tst_DisabledWaitingWt::animates()
{
    DisabledWaitingWt* overlay = cover();
    const QImage before = overlay->grab().toImage();
    QTRY_VERIFY(overlay->grab().toImage() != before);
}

QTEST_MAIN(tst_DisabledWaitingWt)
#include "tst_DisabledWaitingWt.moc"
