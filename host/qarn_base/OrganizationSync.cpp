#include "OrganizationSync.h"

#include <qarn_base/CommonTree.h>
#include <qarn_base/TreeItem.h>

#include <QHash>
#include <QTreeWidgetItemIterator>

#include <limits>

namespace qarn_base
{

using qarn_data::OrganizationInfo;

OrganizationSync::OrganizationSync(CommonTree& tree)
    : m_tree(tree),
      m_icon(QStringLiteral(":/images/images/organization.png"))
{
}

void OrganizationSync::apply(const QList<OrganizationInfo>& organizations)
{
    QSet<QString> ids;
    for (const OrganizationInfo& organization : organizations) {
        ids.insert(organization.id);
        apply(organization);
    }
    removeAllBut(ids);
    reorder(organizations);
}

bool OrganizationSync::apply(const OrganizationInfo& organization)
{
    TreeItem* parent = m_tree.findTreeItem(organization.parentId);
    TreeItem* item = m_tree.findTreeItem(organization.id);
    if (parent == nullptr && !organization.parentId.isEmpty())
        return false;
    if (item == nullptr) {
        auto* added = new TreeItem(organization.id, organization.parentId, organization.name);
        added->setIcon(0, m_icon);
        m_tree.addTreeItem(added, parent);
        return true;
    }
    if (item->getName() != organization.name)
        item->setName(organization.name);
    if (item->parent() != parent) {
        m_tree.moveTreeItem(item, parent, std::numeric_limits<int>::max());
        item->setParentId(organization.parentId);
    }
    return true;
}

void OrganizationSync::remove(const QString& id)
{
    m_tree.removeTreeItem(m_tree.findTreeItem(id));
}

void OrganizationSync::removeAllBut(const QSet<QString>& ids)
{
    QStringList gone;
    for (QTreeWidgetItemIterator it(&m_tree); *it != nullptr; ++it) {
        const QString id = (*it)->data(0, TreeItem::IdRole).toString();
        if (!ids.contains(id))
            gone.append(id);
    }
    for (const QString& id : qAsConst(gone))
        remove(id);
}

void OrganizationSync::reorder(const QList<OrganizationInfo>& organizations)
{
    QHash<QString, int> positions; // the next free one by parent
    for (const OrganizationInfo& organization : organizations) {
        TreeItem* item = m_tree.findTreeItem(organization.id);
        if (item == nullptr)
            continue;
        const int position = positions[organization.parentId]++;
        QTreeWidgetItem* parent = item->parent();
        QTreeWidgetItem* standsThere =
            parent != nullptr ? parent->child(position) : m_tree.topLevelItem(position);
        if (standsThere != item)
            m_tree.moveTreeItem(item, static_cast<TreeItem*>(parent), position);
    }
}

} // namespace qarn_base
