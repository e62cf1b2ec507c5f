#include <XCOMMON/XLineEdit.h>

#include <QHelpEvent>
#include <QToolTip>
#include <QtTest>

using XCOMMON::XLineEdit;

namespace
{

QString toolTipOf(QWidget& widget)
{
    QToolTip::hideText();
    QHelpEvent event(QEvent::ToolTip, QPoint(5, 5), widget.mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(&widget, &event);
    return QToolTip::text();
}

} // namespace

class tst_XLineEdit : public QObject
{
    Q_OBJECT
private slots:
    void showsACutTextAsToolTip();
};

void tst_XLineEdit::showsACutTextAsToolTip()
{
    XLineEdit edit;
    edit.setFixedWidth(120);
    edit.show();
    const QString path = QStringLiteral("/home/anna/a directory with a long name/<faces>");
    edit.setText(path);
    QCOMPARE(toolTipOf(edit), path.toHtmlEscaped()); // read as rich text, so that nothing of it is lost
    edit.setText(QStringLiteral("short"));
    QTRY_COMPARE(toolTipOf(edit), QString());
    edit.setToolTip(QStringLiteral("its own"));
    edit.setText(path);
    QCOMPARE(toolTipOf(edit), QStringLiteral("its own"));
    edit.setToolTip(QString());
    edit.setEchoMode(QLineEdit::Password);
    QTRY_COMPARE(toolTipOf(edit), QString());
}

QTEST_MAIN(tst_XLineEdit)
#include "tst_XLineEdit.moc"
