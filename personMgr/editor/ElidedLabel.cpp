#include "editor/ElidedLabel.h"

#include <QPainter>
#include <QStyle>
#include <QTextDocument>

namespace qarn_personMgr
{

ElidedLabel::ElidedLabel(const QString& text, QWidget* parent) : QLabel(text, parent)
{
    setTextFormat(Qt::PlainText); // an operator's text is no mark-up
    setToolTip(Qt::mightBeRichText(text) ? text.toHtmlEscaped().prepend(QLatin1String("<span>")) : text);
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {0, QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QRect area = contentsRect();
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, area.width());
    style()->drawItemText(&painter, area, static_cast<int>(alignment()), palette(), isEnabled(), shown,
                          foregroundRole());
}

} // namespace qarn_personMgr
