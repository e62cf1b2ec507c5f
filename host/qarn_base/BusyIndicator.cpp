#include "BusyIndicator.h"

#include <qarn_base/HostColors.h>

#include <QPainter>
#include <QTimerEvent>

namespace qarn_base
{

namespace
{
constexpr int Side = 36;     ///< pixels
constexpr int Steps = 12;    ///< a turn
constexpr int StepTime = 80; ///< milliseconds
} // namespace

BusyIndicator::BusyIndicator(QWidget* parent) : QWidget(parent)
{
    setFixedSize(Side, Side);
}

void BusyIndicator::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    m_timer.start(StepTime, this);
}

void BusyIndicator::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    m_timer.stop();
}

void BusyIndicator::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_timer.timerId()) {
        QWidget::timerEvent(event);
        return;
    }
    m_step = (m_step + 1) % Steps;
    update();
}

void BusyIndicator::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF circle = QRectF(rect()).adjusted(3, 3, -3, -3);
    painter.setPen(QPen(colors::Line, 3));
    painter.drawEllipse(circle);
    painter.setPen(QPen(colors::Accent, 3, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(circle, -m_step * 360 * 16 / Steps, 90 * 16);
}

} // namespace qarn_base
