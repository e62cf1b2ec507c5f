#include "sync/ChannelGate.h"

#include <QEventLoop>
#include <QMutexLocker>

namespace qarn_personMgr
{

int ChannelGate::startPhase()
{
    const QMutexLocker locker(&m_mutex);
    m_open = m_openForGood;
    return ++m_phase;
}

void ChannelGate::open(int phase)
{
    const QMutexLocker locker(&m_mutex);
    if (phase == m_phase)
        openLocked();
}

void ChannelGate::openForGood()
{
    const QMutexLocker locker(&m_mutex);
    m_openForGood = true;
    openLocked();
}

void ChannelGate::openLocked()
{
    // Posted, not called: a posted quit waits for exec() to begin. Posted once: a second one would end the
    // next phase, which waits with the same loop.
    if (m_loop != nullptr && !m_open)
        QMetaObject::invokeMethod(m_loop, &QEventLoop::quit, Qt::QueuedConnection);
    m_open = true;
}

bool ChannelGate::wait(QEventLoop& loop)
{
    {
        const QMutexLocker locker(&m_mutex);
        if (m_open)
            return true;
        m_loop = &loop;
    }
    loop.exec();
    const QMutexLocker locker(&m_mutex);
    m_loop = nullptr;
    return m_open;
}

} // namespace qarn_personMgr
