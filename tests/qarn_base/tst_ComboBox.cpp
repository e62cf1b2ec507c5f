#include <qarn_base/ComboBox.h>

#include <QLineEdit>
#include <QtTest>

using qarn_base::ComboBox;

class tst_ComboBox : public QObject
{
    Q_OBJECT
private slots:
    void wheelNeedsTheFocus();
    void keysChooseAnItem();
};

static void turnWheel(QWidget* widget)
{
    const QPoint at = widget->rect().center();
    QWheelEvent wheel(at, widget->mapToGlobal(at), QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &wheel);
}

void tst_ComboBox::wheelNeedsTheFocus()
{
    QWidget window;
    auto* other = new QLineEdit(&window);
    auto* box = new ComboBox(&window);
    box->addItems({QStringLiteral("Male"), QStringLiteral("Female")});
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    other->setFocus();
    turnWheel(box);
    QCOMPARE(box->currentIndex(), 0);
    QVERIFY(!box->hasFocus());
    box->setFocus();
    turnWheel(box);
    QCOMPARE(box->currentIndex(), 1);
}

void tst_ComboBox::keysChooseAnItem()
{
    ComboBox box;
    box.addItems({QStringLiteral("Male"), QStringLiteral("Female")});
    box.show();
    QTest::keyClick(&box, Qt::Key_Down);
    QCOMPARE(box.currentText(), QStringLiteral("Female"));
}

QTEST_MAIN(tst_ComboBox)
#include "tst_ComboBox.moc"
