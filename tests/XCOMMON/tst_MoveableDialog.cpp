#include <XCOMMON/MoveableDialog.h>

#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>
#include <QtTest>

using XCOMMON::MoveableDialog;

namespace
{

struct Dialog : MoveableDialog {
    using MoveableDialog::MoveableDialog;
    using MoveableDialog::setMoveAreaHeight;
};

void drag(QWidget& dialog, const QPoint& from, const QPoint& by, Qt::MouseButton button = Qt::LeftButton)
{
    const QPoint grip = dialog.mapToGlobal(from);
    const auto send = [&](QEvent::Type type, const QPoint& global, Qt::MouseButtons buttons) {
        QMouseEvent event(type, dialog.mapFromGlobal(global), global,
                          type == QEvent::MouseMove ? Qt::NoButton : button, buttons, Qt::NoModifier);
        QCoreApplication::sendEvent(&dialog, &event);
    };
    send(QEvent::MouseButtonPress, grip, button);
    send(QEvent::MouseMove, grip + by / 2, button);
    send(QEvent::MouseMove, grip + by, button);
    send(QEvent::MouseButtonRelease, grip + by, Qt::NoButton);
}

} // namespace

class tst_MoveableDialog : public QObject
{
    Q_OBJECT
private slots:
    void movesByItsUpperEdge();
    void staysWhenDraggedElsewhere();
    void stopsMovingWhenItLosesTheWindow();
    void opensOverItsParent();
    void opensInsideTheScreen();
    void fitsTheScreen();
    void keepsItsPlace();
    void rejectsOnEscape();
};

void tst_MoveableDialog::movesByItsUpperEdge()
{
    Dialog dialog;
    dialog.resize(300, 200);
    dialog.show();
    const QPoint start = dialog.pos();
    drag(dialog, QPoint(50, 10), QPoint(24, 36));
    QCOMPARE(dialog.pos(), start + QPoint(24, 36));

    dialog.setMoveAreaHeight(100);
    drag(dialog, QPoint(50, 99), QPoint(-10, -6));
    QCOMPARE(dialog.pos(), start + QPoint(14, 30));
}

void tst_MoveableDialog::staysWhenDraggedElsewhere()
{
    Dialog dialog;
    dialog.resize(300, 200);
    dialog.show();
    const QPoint start = dialog.pos();
    drag(dialog, QPoint(50, 35), QPoint(20, 20));
    drag(dialog, QPoint(50, 10), QPoint(20, 20), Qt::RightButton);
    QCOMPARE(dialog.pos(), start);
}

void tst_MoveableDialog::stopsMovingWhenItLosesTheWindow()
{
    Dialog dialog;
    dialog.resize(300, 200);
    dialog.show();
    const QPoint start = dialog.pos();
    QTest::mousePress(&dialog, Qt::LeftButton, Qt::NoModifier, QPoint(50, 10));
    QEvent lost(QEvent::WindowDeactivate);
    QCoreApplication::sendEvent(&dialog, &lost);
    QMouseEvent move(QEvent::MouseMove, QPointF(90, 90), dialog.mapToGlobal(QPoint(90, 90)), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&dialog, &move);
    QCOMPARE(dialog.pos(), start);
}

void tst_MoveableDialog::opensOverItsParent()
{
    QWidget window;
    window.setGeometry(150, 120, 500, 400);
    auto* child = new QWidget(&window);
    window.show();
    Dialog dialog(child);
    dialog.resize(200, 100);
    dialog.show();
    const QPoint offset = dialog.geometry().center() - window.geometry().center();
    QVERIFY2(offset.manhattanLength() <= 2,
             qPrintable(QStringLiteral("%1,%2").arg(offset.x()).arg(offset.y())));
}

void tst_MoveableDialog::opensInsideTheScreen()
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QWidget window;
    window.setGeometry(screen.right() - 30, screen.bottom() - 30, 200, 200);
    window.show();
    Dialog dialog(&window);
    dialog.resize(300, 200);
    dialog.show();
    QVERIFY(screen.contains(dialog.geometry()));
}

void tst_MoveableDialog::fitsTheScreen()
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    Dialog dialog;
    auto* layout = new QVBoxLayout(&dialog);
    auto* wide = new QLabel(QStringLiteral("wide"));
    wide->setMinimumWidth(screen.width() + 500);
    layout->addWidget(wide);
    dialog.setFixedSize(screen.size() * 2);
    dialog.show();
    QVERIFY(screen.contains(dialog.geometry()));
}

void tst_MoveableDialog::keepsItsPlace()
{
    Dialog dialog;
    dialog.resize(300, 200);
    dialog.show();
    dialog.move(17, 23);
    dialog.hide();
    dialog.show();
    QCOMPARE(dialog.pos(), QPoint(17, 23));
}

void tst_MoveableDialog::rejectsOnEscape()
{
    Dialog dialog;
    dialog.show();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
}

QTEST_MAIN(tst_MoveableDialog)
#include "tst_MoveableDialog.moc"
