#include <XCOMMON/PEWidget.h>

#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

namespace XCOMMON
{

PEWidget::PEWidget(QWidget* parent) : QWidget(parent) {}

void PEWidget::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
}

void PEWidget::mouseReleaseEvent(QMouseEvent* event)
{
    event->accept();
}

void PEWidget::mouseDoubleClickEvent(QMouseEvent* event)
{
    event->accept();
}

} // namespace XCOMMON
