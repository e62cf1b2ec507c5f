#include <XCOMMON/ThreadRegistry.h>
#include <XCOMMON/XThread.h>

namespace XCOMMON
{

XThread::XThread(QObject* parent) : QThread(parent)
{
    ThreadRegistry& registry = ThreadRegistry::instance();
    registry.add(this);
    connect(
        this, &QThread::started, &registry, [this, &registry] { registry.setEnded(this, false); },
        Qt::DirectConnection);
    connect(
        this, &QThread::finished, &registry, [this, &registry] { registry.setEnded(this, true); },
        Qt::DirectConnection);
}

XThread::~XThread()
{
    wait();
    ThreadRegistry::instance().remove(this);
}

} // namespace XCOMMON
