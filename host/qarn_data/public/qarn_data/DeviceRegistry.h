#pragma once

#include <qarn_data/Export.h>

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QString>
#include <QUrl>

namespace qarn_data
{

enum DeviceAbility { FaceListAbility = 16 }; ///< bits of DeviceChannel::abilities

struct DeviceChannel {
    int number = 0;
    QString name;
    int abilities = 0;
};

struct Device {
    QString id;
    QString name;
    QUrl address;
    QString token; ///< bearer token in clear; encrypted at rest
    QList<DeviceChannel> channels;
    QByteArray pinnedCertificate; ///< SHA-256 of the accepted certificate (DER); empty: the system decides
};

/// The devices that all operators of a store see. Host only, any thread. Whether a device is reachable is
/// known to this process only and is not stored.
class QARN_DATA_EXPORT DeviceRegistry : public QObject
{
    Q_OBJECT
public:
    enum class Reachability { Unknown, Online, Offline };

    static DeviceRegistry& instance();

    QList<Device> devices() const;
    Device device(const QString& id) const; ///< a device with an empty id when unknown
    bool saveDevice(const Device& device);  ///< adds, or replaces the one with the same id
    bool removeDevice(const QString& id);

    Reachability reachability(const QString& id) const;
    void setReachability(const QString& id, Reachability reachability);

signals:
    void signalDevicesChanged();
    void signalReachabilityChanged(const QString& id);

private:
    DeviceRegistry();
    ~DeviceRegistry() override;
};

} // namespace qarn_data
