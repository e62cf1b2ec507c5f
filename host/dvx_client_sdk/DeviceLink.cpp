#include "DeviceLink.h"

#include "DeviceClient.h"
#include "FaceJob.h"
#include "ProbeJob.h"

#include <dvx_client_sdk/ResponseCodes.h>

#include <algorithm>

using qarn_data::Device;
using qarn_data::DeviceChannel;
using qarn_data::DeviceRegistry;

namespace dvx_sdk
{

DeviceLink::DeviceLink()
{
    connect(&DeviceRegistry::instance(), &DeviceRegistry::signalDevicesChanged, this,
            &DeviceLink::dropRemovedDevices);
}

DeviceLink::~DeviceLink() = default;

void DeviceLink::run(const QString& deviceId, int channelNo, FaceJob* job)
{
    job->setParent(this);
    const Device device = DeviceRegistry::instance().device(deviceId);
    if (device.id.isEmpty())
        return job->end(UnknownDevice);
    const bool hasChannel =
        std::any_of(device.channels.cbegin(), device.channels.cend(),
                    [channelNo](const DeviceChannel& channel) { return channel.number == channelNo; });
    if (!hasChannel)
        return job->end(UnknownChannel);
    if (!isUsable(device.address, device.token))
        return job->end(BadSettings);
    job->start(clientOf(device));
}

void DeviceLink::run(ProbeJob* job)
{
    job->setParent(this);
    job->start();
}

void DeviceLink::endAll(int code)
{
    const auto jobs = findChildren<FaceJob*>(QString(), Qt::FindDirectChildrenOnly);
    for (FaceJob* job : jobs)
        job->end(code);
    const auto probes = findChildren<ProbeJob*>(QString(), Qt::FindDirectChildrenOnly);
    for (ProbeJob* probe : probes)
        probe->end(code);
}

std::shared_ptr<DeviceClient> DeviceLink::clientOf(const Device& device)
{
    std::shared_ptr<DeviceClient>& client = m_clients[device.id];
    if (client == nullptr || !client->hasSettingsOf(device))
        client = std::make_shared<DeviceClient>(device); // running jobs keep the old one
    return client;
}

void DeviceLink::dropRemovedDevices()
{
    for (auto client = m_clients.begin(); client != m_clients.end();) {
        const Device device = DeviceRegistry::instance().device(client.key());
        if (device.id.isEmpty())
            client = m_clients.erase(client);
        else
            ++client;
    }
}

} // namespace dvx_sdk
