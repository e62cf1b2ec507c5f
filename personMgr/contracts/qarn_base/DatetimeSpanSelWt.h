#pragma once

#include <qarn_base/Export.h>

#include <QDateTime>
#include <QWidget>
#include <memory>

namespace qarn_base
{

/// Picker of a date-time span: "startDateTime", "endDateTime", "okBt", "cancelBt". Refuses an end before
/// the start and a span over the maximum, and shows the reason.
class QARN_BASE_EXPORT DatetimeSpanSelWt : public QWidget
{
    Q_OBJECT
public:
    explicit DatetimeSpanSelWt(QWidget* parent = nullptr, bool popup = true);
    ~DatetimeSpanSelWt() override;

    void setInitDateTime(const QDateTime& start, const QDateTime& end);
    void setMaxSpanSecs(qint64 seconds); ///< 0, as at first: no limit

signals:
    void signalDatetimeSpanSelChanged(const QDateTime& start, const QDateTime& end); ///< confirmed by Ok

protected:
    void showEvent(QShowEvent* event) override; ///< moved inside the screen
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void confirm();

    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace qarn_base
