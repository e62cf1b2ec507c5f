#include "startup/FirstPaint.h"

#include <QEvent>
#include <QWidget>

FirstPaint::FirstPaint(QWidget* window) : QObject(window)
{
    window->installEventFilter(this);
}

bool FirstPaint::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Paint) {
        watched->removeEventFilter(this);
        // Queued: the children paint after the window, before control is back in the event loop.
        QMetaObject::invokeMethod(this, &FirstPaint::signalPainted, Qt::QueuedConnection);
    }
    return false;
}
