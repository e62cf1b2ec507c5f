#pragma once

#include <QBasicTimer>
#include <QWidget>

namespace qarn_base
{

/// A turning arc. Repaints only itself, and only while it can be seen.
class BusyIndicator : public QWidget
{
    Q_OBJECT
public:
    explicit BusyIndicator(QWidget* parent);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QBasicTimer m_timer;
    int m_step = 0;
};

} // namespace qarn_base
