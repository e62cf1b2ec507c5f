#include <XCOMMON/XWidget.h>

#include <QtTest>

using XCOMMON::XWidget;

class tst_XWidget : public QObject
{
    Q_OBJECT
private slots:
    void paintsItsColor();
    void paintsWhatItsStyleSheetSays();

private:
    static QColor middleOf(QWidget& widget) { return widget.grab().toImage().pixelColor(20, 20); }
};

void tst_XWidget::paintsItsColor()
{
    XWidget widget;
    widget.resize(40, 40);
    widget.setBackgroundColor(QColor("#172335"));
    QCOMPARE(middleOf(widget), QColor("#172335"));
    widget.setStyleSheet(QStringLiteral("QLabel { color: red; }"));
    QCOMPARE(middleOf(widget), QColor("#172335"));
    widget.setBackgroundColor(QColor("#0b121e"));
    QCOMPARE(middleOf(widget), QColor("#0b121e"));

    QWidget parent;
    parent.resize(40, 40);
    auto* child = new XWidget(&parent);
    child->resize(40, 40);
    const QColor below = middleOf(parent);
    child->setBackgroundColor(QColor("#ff0000"));
    QCOMPARE(middleOf(parent), QColor("#ff0000"));
    child->setBackgroundColor(QColor());
    QCOMPARE(middleOf(parent), below);
}

void tst_XWidget::paintsWhatItsStyleSheetSays()
{
    XWidget widget;
    widget.resize(40, 40);
    widget.setStyleSheet(QStringLiteral("XCOMMON--XWidget { background-color: #293a56; }"));
    QCOMPARE(middleOf(widget), QColor("#293a56"));
}

QTEST_MAIN(tst_XWidget)
#include "tst_XWidget.moc"
