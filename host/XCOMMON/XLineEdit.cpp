#include <XCOMMON/XLineEdit.h>

#include <QHelpEvent>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QToolTip>

namespace XCOMMON
{

namespace
{

constexpr int TextMargin = 2; ///< pixels that QLineEdit keeps free at either side of its text

bool isCutOff(const QLineEdit& edit, const QStyleOptionFrame& option)
{
    const QRect room = edit.style()
                           ->subElementRect(QStyle::SE_LineEditContents, &option, &edit)
                           .marginsRemoved(edit.textMargins());
    return edit.fontMetrics().horizontalAdvance(edit.displayText()) > room.width() - 2 * TextMargin;
}

} // namespace

XLineEdit::XLineEdit(QWidget* parent) : QLineEdit(parent) {}

bool XLineEdit::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip || !toolTip().isEmpty() || echoMode() != Normal)
        return QLineEdit::event(event);
    QStyleOptionFrame option;
    initStyleOption(&option);
    if (isCutOff(*this, option))
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text().toHtmlEscaped(), this);
    else
        QToolTip::hideText();
    return true;
}

} // namespace XCOMMON
