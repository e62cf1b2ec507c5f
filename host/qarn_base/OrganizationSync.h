#pragma once

#include <qarn_data/OrganizationInfo.h>

#include <QIcon>
#include <QList>
#include <QSet>
#include <QString>

namespace qarn_base
{

class CommonTree;
class TreeItem;

/// Brings the items of a tree in line with the organizations of the store, and touches only what differs.
class OrganizationSync
{
public:
    explicit OrganizationSync(CommonTree& tree);

    /// The whole tree; organizations come parents before children, siblings in display order.
    void apply(const QList<qarn_data::OrganizationInfo>& organizations);
    /// One organization, added or changed; false when its parent is not in the tree yet.
    bool apply(const qarn_data::OrganizationInfo& organization);
    void remove(const QString& id);

private:
    void removeAllBut(const QSet<QString>& ids);
    void reorder(const QList<qarn_data::OrganizationInfo>& organizations);

    CommonTree& m_tree;
    const QIcon m_icon;
};

} // namespace qarn_base
