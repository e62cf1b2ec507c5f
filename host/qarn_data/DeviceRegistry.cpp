#include <qarn_data/DeviceRegistry.h>

#include "Announcing.h"
#include "DeviceTable.h"
#include "TokenCipher.h"
#include "WriteSession.h"

#include <QHash>
#include <QMutex>

namespace qarn_data
{

namespace
{

struct Reachabilities {
    QMutex mutex;
    QHash<QString, DeviceRegistry::Reachability> byId;
};

Reachabilities& reachabilities()
{
    static Reachabilities all;
    return all;
}

StoredDevice* find(QList<StoredDevice>& devices, const QString& id)
{
    for (StoredDevice& stored : devices) {
        if (stored.device.id == id)
            return &stored;
    }
    return nullptr;
}

void enter(RegisterState& state, const StoredDevice& stored)
{
    StoredDevice* known = find(state.devices, stored.device.id);
    if (known != nullptr)
        *known = stored;
    else
        state.devices.append(stored);
}

} // namespace

DeviceRegistry::DeviceRegistry() = default;
DeviceRegistry::~DeviceRegistry() = default;

DeviceRegistry& DeviceRegistry::instance()
{
    static DeviceRegistry registry;
    return registry;
}

QList<Device> DeviceRegistry::devices() const
{
    return Register::instance().read([](const RegisterState& state) {
        QList<Device> devices;
        for (const StoredDevice& stored : state.devices)
            devices.append(stored.device);
        return devices;
    });
}

Device DeviceRegistry::device(const QString& id) const
{
    const QList<Device> all = devices();
    for (const Device& device : all) {
        if (device.id == id)
            return device;
    }
    return {};
}

bool DeviceRegistry::saveDevice(const Device& device)
{
    QString failure;
    {
        WriteSession session(tr("The device could not be saved"));
        if (device.id.isEmpty()) {
            session.refuse(tr("It has no id."));
        } else if (session.begin()) {
            StoredDevice stored{device, {}};
            QString reason;
            stored.cipherText = TokenCipher::encrypt(device.token, &reason);
            // A token that this computer cannot read is kept for those that can.
            for (const StoredDevice& known : session.state().devices) {
                if (known.device.id == device.id && device.token == known.device.token && reason.isEmpty())
                    stored.cipherText = known.cipherText;
            }
            if (!reason.isEmpty())
                session.refuse(reason);
            else if (session.check(DeviceTable(session.store()).save(stored)))
                session.commit(ChangeKind::DevicesChanged, QString(),
                               [&stored](RegisterState& state) { enter(state, stored); });
        }
        failure = session.failure();
    }
    tellFailure(failure);
    if (failure.isEmpty())
        emit signalDevicesChanged();
    return failure.isEmpty();
}

bool DeviceRegistry::removeDevice(const QString& id)
{
    QString failure;
    {
        WriteSession session(tr("The device could not be removed"));
        if (session.begin() && session.check(DeviceTable(session.store()).remove(id)))
            session.commit(ChangeKind::DevicesChanged, QString(), [&id](RegisterState& state) {
                for (int i = state.devices.size() - 1; i >= 0; --i) {
                    if (state.devices.at(i).device.id == id)
                        state.devices.removeAt(i);
                }
            });
        failure = session.failure();
    }
    tellFailure(failure);
    if (failure.isEmpty())
        emit signalDevicesChanged();
    return failure.isEmpty();
}

DeviceRegistry::Reachability DeviceRegistry::reachability(const QString& id) const
{
    Reachabilities& all = reachabilities();
    const QMutexLocker locker(&all.mutex);
    return all.byId.value(id, Reachability::Unknown);
}

void DeviceRegistry::setReachability(const QString& id, Reachability reachability)
{
    Reachabilities& all = reachabilities();
    {
        const QMutexLocker locker(&all.mutex);
        if (all.byId.value(id, Reachability::Unknown) == reachability)
            return;
        all.byId.insert(id, reachability);
    }
    emit signalReachabilityChanged(id);
}

} // namespace qarn_data
