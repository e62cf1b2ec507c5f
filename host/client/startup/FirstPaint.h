#pragma once

#include <QObject>

class QWidget;

/// Says once when a window has painted itself for the first time, children included. Belongs to the window.
class FirstPaint : public QObject
{
    Q_OBJECT
public:
    explicit FirstPaint(QWidget* window);

signals:
    void signalPainted();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};
