#include "DeviceTable.h"

#include "SqlStore.h"
#include "TokenCipher.h"

#include <QHash>

namespace qarn_data
{

bool DeviceTable::readAll(QList<StoredDevice>* devices)
{
    QHash<QString, QList<DeviceChannel>> channels;
    const auto takeChannel = [&channels](const Row& row) {
        channels[row.text(0)].append({int(row.number(1)), row.text(2), int(row.number(3))});
    };
    const auto takeDevice = [&](const Row& row) {
        StoredDevice stored;
        stored.device.id = row.text(0);
        stored.device.name = row.text(1);
        stored.device.address = QUrl(row.text(2));
        stored.cipherText = row.bytes(3);
        stored.device.token = TokenCipher::decrypt(stored.cipherText);
        stored.device.pinnedCertificate = row.bytes(4);
        stored.device.channels = channels.value(stored.device.id);
        devices->append(stored);
    };
    return m_store.forEachRow("SELECT device, number, name, abilities FROM device_channels"
                              " ORDER BY device, position",
                              {}, takeChannel) &&
           m_store.forEachRow("SELECT id, name, address, token, certificate FROM devices"
                              " ORDER BY number",
                              {}, takeDevice);
}

bool DeviceTable::save(const StoredDevice& stored)
{
    const Device& device = stored.device;
    bool ok = m_store.run("INSERT INTO devices (id, name, address, token, certificate) VALUES (?, ?, ?, ?, ?)"
                          " ON CONFLICT (id) DO UPDATE SET name = excluded.name, address = excluded.address,"
                          " token = excluded.token, certificate = excluded.certificate",
                          device.id, device.name, device.address.toString(QUrl::FullyEncoded),
                          stored.cipherText, device.pinnedCertificate) &&
              m_store.run("DELETE FROM device_channels WHERE device = ?", device.id);
    for (int i = 0; ok && i < device.channels.size(); ++i) {
        const DeviceChannel& channel = device.channels.at(i);
        ok = m_store.run("INSERT INTO device_channels (device, position, number, name, abilities)"
                         " VALUES (?, ?, ?, ?, ?)",
                         device.id, i, channel.number, channel.name, channel.abilities);
    }
    return ok;
}

bool DeviceTable::remove(const QString& id)
{
    return m_store.run("DELETE FROM devices WHERE id = ?", id);
}

} // namespace qarn_data
