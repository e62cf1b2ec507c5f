#pragma once

#include <QObject>

class QWidget;

/// Keeps the client from quitting under running work: announces the quit, covers the window until the last
/// worker thread has ended, then says that the window may go.
class QuitGuard : public QObject
{
    Q_OBJECT
public:
    explicit QuitGuard(QWidget* window);

    /// True when nothing runs. False starts the waiting; signalMayQuit() follows.
    bool mayQuit();

signals:
    void signalMayQuit();

private:
    QWidget* m_window;
    bool m_waiting = false;
};
