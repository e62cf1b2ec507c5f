#include <qarn_base/TimeSpaceLineEt.h>

#include "FieldClick.h"

#include <QAction>

namespace qarn_base
{

TimeSpaceLineEt::TimeSpaceLineEt(QWidget* parent) : XCOMMON::XLineEdit(parent)
{
    setReadOnly(true);
    setCursor(Qt::PointingHandCursor);
    const QAction* icon = addAction(QIcon(QStringLiteral(":/images/images/calendar.png")), TrailingPosition);
    connect(icon, &QAction::triggered, this, &TimeSpaceLineEt::signalClicked);
    setAccessibleDescription(tr("Press Return to change the period"));
}

void TimeSpaceLineEt::setDateTimeSpace(const QDateTime& start, const QDateTime& end)
{
    m_start = start;
    m_end = end;
    updateDescription();
}

QPair<QDateTime, QDateTime> TimeSpaceLineEt::getDateTimeSpace() const
{
    return {m_start, m_end};
}

QDateTime TimeSpaceLineEt::getStartTime() const
{
    return m_start;
}

QDateTime TimeSpaceLineEt::getEndTime() const
{
    return m_end;
}

void TimeSpaceLineEt::setUsingYearInTimeSpaceDescription(bool usingYear)
{
    m_usingYear = usingYear;
    updateDescription();
}

void TimeSpaceLineEt::updateDescription()
{
    if (!m_start.isValid() || !m_end.isValid()) {
        clear();
        return;
    }
    const QString format =
        m_usingYear ? QStringLiteral("yyyy-MM-dd HH:mm:ss") : QStringLiteral("MM-dd HH:mm:ss");
    setText(QStringLiteral("%1 - %2").arg(m_start.toString(format), m_end.toString(format)));
    setCursorPosition(0);
}

void TimeSpaceLineEt::mouseReleaseEvent(QMouseEvent* event)
{
    XCOMMON::XLineEdit::mouseReleaseEvent(event);
    if (isClick(*event, rect()))
        emit signalClicked();
}

void TimeSpaceLineEt::keyPressEvent(QKeyEvent* event)
{
    if (isPressKey(*event)) {
        event->accept();
        emit signalClicked();
        return;
    }
    XCOMMON::XLineEdit::keyPressEvent(event);
}

} // namespace qarn_base
