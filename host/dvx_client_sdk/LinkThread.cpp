#include "LinkThread.h"

#include "DeviceLink.h"

#include <dvx_client_sdk/ClientSignals.h>
#include <dvx_client_sdk/ResponseCodes.h>
#include <qarn_data/DeviceRegistry.h>

#include <QCoreApplication>
#include <QMutexLocker>

namespace dvx_sdk
{

namespace
{

void stopWithApplication()
{
    LinkThread::instance().stop();
}

} // namespace

LinkThread::LinkThread()
{
    // Made first, so that they outlive the link.
    ClientSignals::instance();
    qarn_data::DeviceRegistry::instance();
    m_thread.setObjectName(QStringLiteral("dvx_client_sdk"));
    qAddPostRoutine(stopWithApplication);
}

LinkThread::~LinkThread()
{
    stop();
}

LinkThread& LinkThread::instance()
{
    static LinkThread linkThread;
    return linkThread;
}

void LinkThread::start()
{
    m_link = std::make_unique<DeviceLink>();
    m_link->moveToThread(&m_thread);
    m_thread.start();
}

bool LinkThread::post(const std::function<void(DeviceLink&)>& task)
{
    const QMutexLocker locker(&m_mutex);
    if (m_stopped)
        return false;
    if (m_link == nullptr)
        start();
    DeviceLink* link = m_link.get();
    return QMetaObject::invokeMethod(
        link, [task, link] { task(*link); }, Qt::QueuedConnection);
}

void LinkThread::stop()
{
    DeviceLink* link = nullptr;
    {
        // Not held any longer: who is told of an end may send another request at once.
        const QMutexLocker locker(&m_mutex);
        m_stopped = true;
        link = m_link.release();
    }
    if (link == nullptr)
        return;
    // Comes after every task that was posted before, so each of those has its answer.
    const auto endLink = [link] {
        link->endAll(ShuttingDown);
        std::unique_ptr<DeviceLink> owner(link); // its sockets must go in their own thread
        QThread::currentThread()->quit();
    };
    QMetaObject::invokeMethod(link, endLink, Qt::QueuedConnection);
    m_thread.wait();
}

} // namespace dvx_sdk
