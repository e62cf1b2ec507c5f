#include "OrganizationIndex.h"

namespace qarn_data
{

void OrganizationIndex::put(const StoredOrganization& organization)
{
    remove(organization.number);
    const OrganizationInfo& info = organization.info;
    m_infos.insert(organization.number, info);
    m_numbers.insert(info.id, organization.number);
    if (info.parentId.isEmpty()) {
        m_rootId = info.id;
        return;
    }
    m_children[info.parentId].insert(organization.number, info.id);
    m_named[{info.parentId, info.name}].insert(organization.number, info.id);
}

void OrganizationIndex::remove(qint64 number)
{
    const OrganizationInfo info = m_infos.take(number);
    if (info.id.isEmpty())
        return;
    m_numbers.remove(info.id);
    const auto dropFrom = [number](auto& hash, const auto& key) {
        const auto entry = hash.find(key);
        if (entry == hash.end())
            return;
        entry->remove(number);
        if (entry->isEmpty())
            hash.erase(entry);
    };
    dropFrom(m_children, info.parentId);
    dropFrom(m_named, Siblings(info.parentId, info.name));
}

QStringList OrganizationIndex::names(const QString& id) const
{
    QStringList names;
    for (OrganizationInfo level = info(id); !level.id.isEmpty(); level = info(level.parentId))
        names.prepend(level.name);
    return names;
}

QString OrganizationIndex::childNamed(const QString& parentId, const QString& name) const
{
    const auto found = m_named.constFind({parentId, name});
    return found == m_named.constEnd() ? QString() : found->first();
}

QStringList OrganizationIndex::children(const QString& parentId) const
{
    return m_children.value(parentId).values();
}

bool OrganizationIndex::isSameOrBelow(const QString& id, const QString& ancestorId) const
{
    for (QString level = id; contains(level); level = info(level).parentId) {
        if (level == ancestorId)
            return true;
    }
    return false;
}

QList<OrganizationInfo> OrganizationIndex::all() const
{
    QList<OrganizationInfo> list;
    if (!contains(m_rootId))
        return list;
    list.reserve(m_infos.size());
    list.append(info(m_rootId));
    for (int i = 0; i < list.size(); ++i) {
        const QStringList ids = children(list.at(i).id);
        for (const QString& id : ids)
            list.append(info(id));
    }
    return list;
}

} // namespace qarn_data
