#include "table/RowButton.h"

#include "shared/Colors.h"

#include <QPainter>
#include <QPixmap>

namespace qarn_personMgr
{
namespace
{

constexpr qreal frameRadius = 2; // pixels

} // namespace

RowButton::RowButton(QWidget* parent) : QPushButton(parent) {}

void RowButton::setImages(const QString& normal, const QString& hover)
{
    m_normal = normal;
    m_hover = hover;
    update();
}

void RowButton::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.drawPixmap(rect(), QPixmap(underMouse() ? m_hover : m_normal));
    if (!hasFocus())
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor(Colors::Focus));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), frameRadius, frameRadius);
}

void RowButton::enterEvent(QEvent* event)
{
    QPushButton::enterEvent(event);
    update();
}

void RowButton::leaveEvent(QEvent* event)
{
    QPushButton::leaveEvent(event);
    update();
}

} // namespace qarn_personMgr
