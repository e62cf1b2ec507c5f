#pragma once

#include "FaceIdMap.h"

#include <QHash>
#include <QObject>
#include <QString>

#include <memory>

namespace qarn_data
{
struct Device;
}

namespace dvx_sdk
{

class DeviceClient;
class FaceJob;
class ProbeJob;

/// Everything of the link that lives in its thread: the clients of the devices and the running jobs.
class DeviceLink : public QObject
{
    Q_OBJECT
public:
    DeviceLink();
    ~DeviceLink() override;

    FaceIdMap& ids() { return m_ids; }
    /// Takes the job over and sees to it that it ends.
    void run(const QString& deviceId, int channelNo, FaceJob* job);
    void run(ProbeJob* job);
    void endAll(int code); ///< of all that runs

private:
    std::shared_ptr<DeviceClient> clientOf(const qarn_data::Device& device);
    void dropRemovedDevices();

    FaceIdMap m_ids;
    QHash<QString, std::shared_ptr<DeviceClient>> m_clients; ///< by device id
};

} // namespace dvx_sdk
