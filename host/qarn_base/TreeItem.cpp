#include <qarn_base/TreeItem.h>

#include "PlainToolTip.h"

namespace qarn_base
{

// The ids are item data, so that a tree can still read them while an item is being destroyed.

TreeItem::TreeItem(const QString& id, const QString& parentId, const QString& name) : QTreeWidgetItem(Type)
{
    setData(0, IdRole, id);
    setParentId(parentId);
    setName(name);
}

QString TreeItem::getId() const
{
    return data(0, IdRole).toString();
}

QString TreeItem::getName() const
{
    return text(0);
}

QString TreeItem::getParentId() const
{
    return data(0, ParentIdRole).toString();
}

void TreeItem::setName(const QString& name)
{
    setText(0, name);
    setToolTip(0, plainToolTip(name));
}

void TreeItem::setParentId(const QString& parentId)
{
    setData(0, ParentIdRole, parentId);
}

} // namespace qarn_base
