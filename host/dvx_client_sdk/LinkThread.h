#pragma once

#include <QMutex>
#include <QThread>

#include <functional>
#include <memory>

namespace dvx_sdk
{

class DeviceLink;

/// The thread in which all devices are talked to. Starts with the first request and ends with the program.
class LinkThread
{
public:
    static LinkThread& instance();
    ~LinkThread();

    QThread* thread() { return &m_thread; }
    /// Runs the task in the link's thread. False when the link has ended; any thread.
    bool post(const std::function<void(DeviceLink& link)>& task);
    /// Ends the running requests with their answers, then the thread.
    void stop();

private:
    LinkThread();
    void start();

    QMutex m_mutex;
    QThread m_thread;
    std::unique_ptr<DeviceLink> m_link; ///< lives in m_thread; null before the start and after the end
    bool m_stopped = false;
};

} // namespace dvx_sdk
