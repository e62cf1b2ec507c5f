#include "devices/DeviceTests.h"

#include <dvx_client_sdk/DeviceProbe.h>

using qarn_data::Device;
using qarn_data::DeviceRegistry;

DeviceTests::DeviceTests(QObject* parent) : QObject(parent) {}

void DeviceTests::test(const Device& device)
{
    if (m_running.contains(device.id))
        return;
    auto* probe = new dvx_sdk::DeviceProbe(this);
    m_running.insert(device.id, probe);
    const QString id = device.id;
    connect(probe, &dvx_sdk::DeviceProbe::signalFinished, this,
            [this, id](const dvx_sdk::ProbeResult& result) {
                m_running.take(id)->deleteLater();
                emit signalTested(id, result);
            });
    probe->start(device);
}

void DeviceTests::testAll()
{
    const auto devices = DeviceRegistry::instance().devices();
    for (const Device& device : devices)
        test(device);
}
