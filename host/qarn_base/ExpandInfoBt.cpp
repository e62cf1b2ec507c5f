#include <qarn_base/ExpandInfoBt.h>

#include <qarn_base/HostColors.h>

#include <QPainter>
#include <QPainterPath>

namespace qarn_base
{

namespace
{
constexpr int ArrowSide = 8; ///< pixels
constexpr int Gap = 8;       ///< between arrow, text and rule
} // namespace

ExpandInfoBt::ExpandInfoBt(QWidget* parent) : QPushButton(parent)
{
    setCheckable(true);
    setAutoDefault(false);
    setCursor(Qt::PointingHandCursor);
    setMinimumHeight(28);
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QPushButton::clicked, this, &ExpandInfoBt::signalExpand);
}

void ExpandInfoBt::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor color = !isEnabled() ? colors::QuietText : underMouse() ? QColor(Qt::white) : colors::Text;

    painter.save();
    painter.translate(2 + ArrowSide / 2.0, height() / 2.0);
    if (isChecked())
        painter.rotate(90);
    QPainterPath arrow(QPointF(-ArrowSide / 4.0, -ArrowSide / 2.0));
    arrow.lineTo(ArrowSide / 4.0, 0);
    arrow.lineTo(-ArrowSide / 4.0, ArrowSide / 2.0);
    painter.setPen(QPen(color, 1.5));
    painter.drawPath(arrow);
    painter.restore();

    const int textLeft = 2 + ArrowSide + Gap;
    const int textWidth = qMin(fontMetrics().horizontalAdvance(text()), width() - textLeft);
    const QRect textRect(textLeft, 0, textWidth, height());
    painter.setPen(color);
    painter.drawText(textRect, Qt::AlignVCenter | Qt::AlignLeft,
                     fontMetrics().elidedText(text(), Qt::ElideRight, textWidth));
    painter.fillRect(QRect(textRect.right() + Gap, height() / 2, width(), 1), colors::Line);
    if (hasFocus()) {
        painter.setPen(colors::Accent);
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 2, 2);
    }
}

} // namespace qarn_base
