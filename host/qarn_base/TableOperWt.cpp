#include <qarn_base/TableOperWt.h>

#include <qarn_base/HostColors.h>

#include <QPainter>

namespace qarn_base
{

TableOperWt::TableOperWt(QWidget* parent) : QWidget(parent)
{
    setMouseTracking(true); // so that moves over it reach the table
}

void TableOperWt::setWtStyle(WidgetStyle style)
{
    m_style = style;
    update();
}

void TableOperWt::paintEvent(QPaintEvent*)
{
    // In the normal state the row shines through, whatever its own colour is.
    if (m_style != NormalStyle)
        QPainter(this).fillRect(rect(), m_style == HoverStyle ? colors::Hover : colors::Selected);
}

} // namespace qarn_base
