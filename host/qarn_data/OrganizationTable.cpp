#include "OrganizationTable.h"

#include "SqlStore.h"

namespace qarn_data
{

namespace
{

StoredOrganization organizationIn(const Row& row)
{
    return {row.number(0), {row.text(1), row.text(2), row.text(3)}};
}

std::optional<qint64> parentValue(qint64 parent)
{
    return parent == 0 ? std::nullopt : std::optional<qint64>(parent);
}

} // namespace

bool OrganizationTable::readAll(const std::function<void(const StoredOrganization&)>& handler)
{
    return m_store.forEachRow("SELECT o.number, o.id, p.id, o.name FROM organizations o"
                              " LEFT JOIN organizations p ON p.number = o.parent ORDER BY o.number",
                              {}, [&](const Row& row) { handler(organizationIn(row)); });
}

bool OrganizationTable::readOne(qint64 number, StoredOrganization* organization)
{
    return m_store.forEachRow("SELECT o.number, o.id, p.id, o.name FROM organizations o"
                              " LEFT JOIN organizations p ON p.number = o.parent WHERE o.number = ?",
                              {number}, [&](const Row& row) { *organization = organizationIn(row); });
}

bool OrganizationTable::insert(const StoredOrganization& organization, qint64 parent)
{
    return m_store.run("INSERT INTO organizations (number, id, parent, name) VALUES (?, ?, ?, ?)",
                       organization.number, organization.info.id, parentValue(parent),
                       organization.info.name);
}

bool OrganizationTable::update(const StoredOrganization& organization, qint64 parent)
{
    return m_store.run("UPDATE organizations SET parent = ?, name = ? WHERE number = ?", parentValue(parent),
                       organization.info.name, organization.number);
}

bool OrganizationTable::remove(qint64 number)
{
    return m_store.run("DELETE FROM organizations WHERE number = ?", number);
}

} // namespace qarn_data
