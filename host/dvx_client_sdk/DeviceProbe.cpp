#include <dvx_client_sdk/DeviceProbe.h>

#include "DeviceLink.h"
#include "LinkThread.h"
#include "ProbeJob.h"

#include <dvx_client_sdk/ResponseCodes.h>

#include <memory>

namespace dvx_sdk
{

DeviceProbe::DeviceProbe(QObject* parent) : QObject(parent)
{
    qRegisterMetaType<ProbeResult>("dvx_sdk::ProbeResult");
}

void DeviceProbe::start(const qarn_data::Device& device)
{
    auto job = std::make_unique<ProbeJob>(device);
    // Queued into this thread; a probe that goes before its answer is simply not told.
    connect(job.get(), &ProbeJob::signalDone, this, &DeviceProbe::signalFinished, Qt::QueuedConnection);
    job->moveToThread(LinkThread::instance().thread());
    ProbeJob* probing = job.get();
    if (LinkThread::instance().post([probing](DeviceLink& link) { link.run(probing); })) {
        job.release(); // the link's now
        return;
    }
    const auto refuse = [this] { emit signalFinished({ShuttingDown, {}, {}, 0, {}}); };
    QMetaObject::invokeMethod(this, refuse, Qt::QueuedConnection);
}

} // namespace dvx_sdk
