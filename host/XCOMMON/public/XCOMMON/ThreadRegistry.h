#pragma once

#include <XCOMMON/Export.h>

#include <QObject>

#include <mutex>
#include <vector>

class QThread;

namespace XCOMMON
{

/// Counts the XThreads that run, so that the client can wait for them before it quits. Host only, any
/// thread.
class XCOMMON_EXPORT ThreadRegistry : public QObject
{
    Q_OBJECT
public:
    static ThreadRegistry& instance();

    int runningCount() const;

signals:
    void signalAllFinished(); ///< the last running thread has ended; emitted in its thread

private:
    friend class XThread;

    struct Entry {
        const QThread* thread;
        bool ended; ///< its run is over, although QThread::isRunning() may still say otherwise
    };

    ThreadRegistry();
    int countRunning() const;
    void add(const QThread* thread);
    void remove(const QThread* thread);
    void setEnded(const QThread* thread, bool ended);

    mutable std::mutex m_mutex;
    std::vector<Entry> m_entries;
};

} // namespace XCOMMON
