#pragma once

#include <qarn_data/DeviceRegistry.h>

namespace qarn_data
{

class SqlStore;

/// A device with the token as it is stored.
struct StoredDevice {
    Device device; ///< its token in clear; empty when it cannot be decrypted here
    QByteArray cipherText;
};

/// Devices and their channels in the database.
class DeviceTable
{
public:
    explicit DeviceTable(SqlStore& store) : m_store(store) {}

    bool readAll(QList<StoredDevice>* devices); ///< in the order of addition
    bool save(const StoredDevice& device);
    bool remove(const QString& id);

private:
    SqlStore& m_store;
};

} // namespace qarn_data
