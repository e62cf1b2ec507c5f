#include <qarn_base/TableOperWt.h>

#include "HostColors.h"

namespace qarn_base
{

TableOperWt::TableOperWt(QWidget* parent) : QWidget(parent)
{
    setMouseTracking(true); // so that moves over it reach the table
}

void TableOperWt::setWtStyle(WidgetStyle style)
{
    // In the normal state the row shines through, whatever its own colour is.
    setAutoFillBackground(style != NormalStyle);
    QPalette palette;
    if (style != NormalStyle)
        palette.setColor(QPalette::Window, style == HoverStyle ? colors::Hover : colors::Selected);
    setPalette(palette);
}

} // namespace qarn_base
