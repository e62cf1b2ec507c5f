#pragma once

#include "OrganizationIndex.h"

#include <functional>

namespace qarn_data
{

class SqlStore;

/// Organizations in the database.
class OrganizationTable
{
public:
    explicit OrganizationTable(SqlStore& store) : m_store(store) {}

    bool readAll(const std::function<void(const StoredOrganization&)>& handler);
    /// Leaves `organization` with number 0 when there is none.
    bool readOne(qint64 number, StoredOrganization* organization);
    bool insert(const StoredOrganization& organization, qint64 parent); ///< parent 0: the root
    bool update(const StoredOrganization& organization, qint64 parent);
    bool remove(qint64 number);

private:
    SqlStore& m_store;
};

} // namespace qarn_data
