#pragma once

#include <QMutex>

class QEventLoop;

namespace qarn_personMgr
{

/// Where a worker thread waits, phase after phase, while it works on one channel. It may be opened before
/// the wait begins, more than once, by handlers of earlier phases, and after the loop is gone: a bare
/// QEventLoop::quit() would be lost in the first case and would hit a dead loop in the last.
class ChannelGate
{
public:
    int startPhase();     ///< closes the gate; gives what opens it again
    void open(int phase); ///< nothing when that phase is over; any thread
    void openForGood();   ///< for this phase and all that follow; any thread
    /// Runs the loop until the gate is open. False when the loop was ended from elsewhere.
    bool wait(QEventLoop& loop);

private:
    void openLocked();

    QMutex m_mutex;
    QEventLoop* m_loop = nullptr; ///< the one that waits now
    int m_phase = 0;
    bool m_open = false;
    bool m_openForGood = false;
};

} // namespace qarn_personMgr
