#include "Checkpointer.h"

#include "SqlStore.h"
#include "SqliteDialect.h"

#include <QLoggingCategory>

namespace qarn_data
{

namespace
{

Q_LOGGING_CATEGORY(logData, "qarn.data")

/// Gathers writes, and leaves the disk time to be done within a second.
constexpr unsigned long gatherMs = 400;

} // namespace

Checkpointer::Checkpointer(const QString& location) : m_location(location)
{
    start(QThread::LowPriority);
}

Checkpointer::~Checkpointer()
{
    {
        const QMutexLocker locker(&m_mutex);
        m_isStopping = true;
        m_changed.wakeAll();
    }
    wait();
}

void Checkpointer::noteWrite()
{
    const QMutexLocker locker(&m_mutex);
    if (!m_isDue) {
        m_isDue = true;
        m_changed.wakeAll();
    }
}

bool Checkpointer::waitForWrite()
{
    QMutexLocker locker(&m_mutex);
    while (!m_isDue && !m_isStopping)
        m_changed.wait(&m_mutex);
    if (m_isDue && !m_isStopping)
        m_changed.wait(&m_mutex, gatherMs);
    const bool due = m_isDue;
    m_isDue = false;
    return due;
}

void Checkpointer::run()
{
    SqlStore store(std::make_unique<SqliteDialect>());
    QString reason;
    if (!store.openBeside(m_location, &reason)) {
        qCWarning(logData) << "no checkpoints of" << m_location << reason;
        return;
    }
    while (waitForWrite()) {
        if (!store.checkpoint())
            qCWarning(logData) << "checkpoint of" << m_location << store.cause();
    }
}

} // namespace qarn_data
