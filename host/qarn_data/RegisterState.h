#pragma once

#include "CustomFields.h"
#include "DeviceTable.h"
#include "OrganizationIndex.h"
#include "PersonIndex.h"

namespace qarn_data
{

class SqlStore;

/// Everything that is held in memory of a store.
struct RegisterState {
    PersonIndex persons;
    OrganizationIndex organizations;
    CustomFields fields;
    QList<StoredDevice> devices;
    qint64 lastChange = 0; ///< number in the change log up to which this is current

    bool load(SqlStore& store) { return loadAllButPersons(store) && loadPersons(store); }
    bool loadAllButPersons(SqlStore& store);
    bool loadPersons(SqlStore& store);
    bool loadFirstPersons(SqlStore& store, int count);
    RegisterState withoutPersons() const { return {{}, organizations, fields, devices, lastChange}; }
    bool loadFields(SqlStore& store);
    bool loadDevices(SqlStore& store);

    /// Takes a record in that was read with all its custom values.
    void putRecord(StoredRecord record);
    /// The removed records' ids.
    QStringList removeRecords(const QVector<qint64>& numbers);
    /// Shows and hides custom values by the names that are defined now.
    void redefineFields(const QStringList& names, const QSet<QString>& removed);
};

bool sameRecord(const PersonInfo& a, const PersonInfo& b);
bool sameOrganization(const OrganizationInfo& a, const OrganizationInfo& b);

} // namespace qarn_data
