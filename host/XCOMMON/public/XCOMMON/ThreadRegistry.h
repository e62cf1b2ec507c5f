#pragma once

#include <XCOMMON/Export.h>

#include <QObject>

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
    ThreadRegistry();
};

} // namespace XCOMMON
