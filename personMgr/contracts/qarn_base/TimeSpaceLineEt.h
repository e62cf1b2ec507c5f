#pragma once

#include <XCOMMON/XLineEdit.h>
#include <qarn_base/Export.h>

#include <QDateTime>
#include <QPair>

namespace qarn_base
{

/// Read-only field that shows a period: a click anywhere, Return or Space asks to change it.
class QARN_BASE_EXPORT TimeSpaceLineEt : public XCOMMON::XLineEdit
{
    Q_OBJECT
public:
    explicit TimeSpaceLineEt(QWidget* parent = nullptr);

    void setDateTimeSpace(const QDateTime& start, const QDateTime& end);
    QPair<QDateTime, QDateTime> getDateTimeSpace() const; ///< start and end as they were set
    QDateTime getStartTime() const;
    QDateTime getEndTime() const;
    void setUsingYearInTimeSpaceDescription(bool usingYear); ///< off at first: month and day only

signals:
    void signalClicked();

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void updateDescription();

    QDateTime m_start;
    QDateTime m_end;
    bool m_usingYear = false;
};

} // namespace qarn_base
