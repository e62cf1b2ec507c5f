#include <qarn_base/CommonDialog.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QtTest>

using qarn_base::CommonDialog;

class QuitCountingDialog : public CommonDialog
{
public:
    using CommonDialog::CommonDialog;
    int quits = 0;

protected:
    void quitSystem() override
    {
        ++quits;
        CommonDialog::quitSystem();
    }
};

/// As a designer form does it: fixed size, contents below the title bar.
class LargeDialog : public CommonDialog
{
public:
    LargeDialog(int width, int height)
    {
        auto* layout = new QVBoxLayout(this);
        layout->setContentsMargins(1, 35, 1, 1);
        top = new QLineEdit(this);
        top->setFixedSize(200, 28);
        auto* filler = new QWidget(this);
        filler->setFixedHeight(height - 200);
        okBt = new QPushButton(QStringLiteral("Ok"), this);
        okBt->setObjectName(QStringLiteral("okBt"));
        layout->addWidget(top);
        layout->addWidget(filler);
        layout->addWidget(okBt);
        setFixedSize(width, height);
        connect(okBt, &QPushButton::clicked, this, &QDialog::accept);
    }

    QLineEdit* top;
    QPushButton* okBt;
};

class tst_CommonDialog : public QObject
{
    Q_OBJECT
private slots:
    void showsItsTitle();
    void closeButtonAsksQuitSystem();
    void escapeRejects();
    void minMaxButtonsOnlyWhenAskedFor();
    void maximizesAndRestores();
    void modalFlag();
    void movesByItsTitleBar();
    void titleBarLiesOverTheForm();
    void titleBarComesLastInTabOrder();
    void scrollsWhereTheScreenIsSmall();
    void keepsItsSizeWhereItFits();
};

template <class Child>
Child* find(const QWidget& in, const char* name)
{
    auto* child = in.findChild<Child*>(QString::fromLatin1(name));
    if (child == nullptr)
        qFatal("no child %s", name);
    return child;
}

void tst_CommonDialog::showsItsTitle()
{
    CommonDialog dialog;
    dialog.setTitle(QStringLiteral("<b>Add Person</b>"));
    QCOMPARE(find<QLabel>(dialog, "title")->text(), QStringLiteral("<b>Add Person</b>"));
    QCOMPARE(find<QLabel>(dialog, "title")->textFormat(), Qt::PlainText);
    QCOMPARE(dialog.windowTitle(), QStringLiteral("<b>Add Person</b>"));
}

void tst_CommonDialog::closeButtonAsksQuitSystem()
{
    QuitCountingDialog dialog;
    QSignalSpy rejected(&dialog, &QDialog::rejected);
    dialog.resize(400, 300);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QTest::mouseClick(find<QPushButton>(dialog, "closeBt"), Qt::LeftButton);
    QCOMPARE(dialog.quits, 1);
    QCOMPARE(rejected.count(), 1);
    QVERIFY(!dialog.isVisible());
}

void tst_CommonDialog::escapeRejects()
{
    CommonDialog dialog;
    QSignalSpy rejected(&dialog, &QDialog::rejected);
    dialog.show();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QCOMPARE(rejected.count(), 1);
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
}

void tst_CommonDialog::minMaxButtonsOnlyWhenAskedFor()
{
    CommonDialog plain(nullptr, false, true);
    CommonDialog full(nullptr, true, true);
    plain.show();
    full.show();
    QVERIFY(!find<QPushButton>(plain, "maximizeBt")->isVisible());
    QVERIFY(!find<QPushButton>(plain, "minimizeBt")->isVisible());
    QVERIFY(find<QPushButton>(plain, "closeBt")->isVisible());
    QVERIFY(find<QPushButton>(full, "maximizeBt")->isVisible());
    QVERIFY(find<QPushButton>(full, "minimizeBt")->isVisible());
}

void tst_CommonDialog::maximizesAndRestores()
{
    CommonDialog dialog(nullptr, true, false);
    dialog.resize(300, 200);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QPushButton* maximizeBt = find<QPushButton>(dialog, "maximizeBt");
    QTest::mouseClick(maximizeBt, Qt::LeftButton);
    QTRY_VERIFY(dialog.isMaximized());
    QTest::mouseClick(maximizeBt, Qt::LeftButton);
    QTRY_VERIFY(!dialog.isMaximized());
    QTest::mouseClick(find<QPushButton>(dialog, "minimizeBt"), Qt::LeftButton);
    QTRY_VERIFY(dialog.isMinimized());
}

void tst_CommonDialog::modalFlag()
{
    QVERIFY(CommonDialog(nullptr, false, true).isModal());
    QVERIFY(!CommonDialog(nullptr, false, false).isModal());
}

void tst_CommonDialog::movesByItsTitleBar()
{
    CommonDialog dialog;
    dialog.resize(300, 200);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const QPoint before = dialog.pos();
    QLabel* title = find<QLabel>(dialog, "title");
    const QPoint grip(20, 10);
    QTest::mousePress(title, Qt::LeftButton, Qt::NoModifier, grip);
    QMouseEvent drag(QEvent::MouseMove, grip + QPoint(30, 40), title->mapToGlobal(grip) + QPoint(30, 40),
                     Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(title, &drag);
    QTest::mouseRelease(title, Qt::LeftButton, Qt::NoModifier, grip);
    QCOMPARE(dialog.pos(), before + QPoint(30, 40));
}

void tst_CommonDialog::titleBarLiesOverTheForm()
{
    CommonDialog dialog;
    auto* form = new QWidget(&dialog); // made after the title bar, as by setupUi()
    form->setGeometry(0, 0, 300, 200);
    dialog.resize(300, 200);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QPushButton* closeBt = find<QPushButton>(dialog, "closeBt");
    QCOMPARE(dialog.childAt(closeBt->mapTo(&dialog, closeBt->rect().center())), closeBt);
    QVERIFY(closeBt->mapTo(&dialog, QPoint(0, 0)).y() + closeBt->height() <= CommonDialog::TitleBarHeight);
}

void tst_CommonDialog::titleBarComesLastInTabOrder()
{
    LargeDialog dialog(400, 300);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QCOMPARE(dialog.focusWidget(), dialog.top);
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    QCOMPARE(dialog.focusWidget(), dialog.okBt);
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    QCOMPARE(dialog.focusWidget(), find<QPushButton>(dialog, "closeBt"));
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    QCOMPARE(dialog.focusWidget(), dialog.top);
}

void tst_CommonDialog::scrollsWhereTheScreenIsSmall()
{
    const QSize screen = QGuiApplication::primaryScreen()->availableSize();
    LargeDialog dialog(500, screen.height() + 300);
    dialog.top->setFocus();
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QVERIFY(dialog.height() <= screen.height());
    QVERIFY(dialog.width() <= screen.width());
    QCOMPARE(dialog.focusWidget(), dialog.top);

    const auto inSight = [&dialog](const QWidget* widget) {
        return dialog.rect().contains(QRect(widget->mapTo(&dialog, QPoint(0, 0)), widget->size())) &&
               !widget->visibleRegion().isEmpty();
    };
    QVERIFY(inSight(dialog.top));
    QVERIFY(!inSight(dialog.okBt));
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    QCOMPARE(dialog.focusWidget(), dialog.okBt);
    QVERIFY(inSight(dialog.okBt));
    QTest::mouseClick(dialog.okBt, Qt::LeftButton);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

void tst_CommonDialog::keepsItsSizeWhereItFits()
{
    LargeDialog dialog(500, 400);
    dialog.show();
    QCOMPARE(dialog.size(), QSize(500, 400));
    QVERIFY(dialog.findChild<QScrollArea*>() == nullptr);
    dialog.hide();
    dialog.show();
    QCOMPARE(dialog.size(), QSize(500, 400));
}

QTEST_MAIN(tst_CommonDialog)
#include "tst_CommonDialog.moc"
