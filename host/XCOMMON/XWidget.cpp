#include <XCOMMON/XWidget.h>

#include <QPainter>
#include <QStyle>
#include <QStyleOption>

namespace XCOMMON
{

XWidget::XWidget(QWidget* parent) : QWidget(parent) {}

void XWidget::setBackgroundColor(const QColor& color)
{
    m_backgroundColor = color;
    update();
}

void XWidget::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
    if (m_backgroundColor.isValid())
        painter.fillRect(rect(), m_backgroundColor);
}

} // namespace XCOMMON
