#pragma once

#include <qarn_base/Export.h>

#include <QString>
#include <QTreeWidgetItem>

namespace qarn_base
{

/// Item of a CommonTree; carries the id of what it stands for. Owned by its tree.
class QARN_BASE_EXPORT TreeItem : public QTreeWidgetItem
{
public:
    enum { Type = QTreeWidgetItem::UserType + 1 };
    enum Role { IdRole = Qt::UserRole, ParentIdRole }; ///< of column 0

    TreeItem(const QString& id, const QString& parentId, const QString& name);

    QString getId() const;
    QString getName() const; ///< the text of column 0
    QString getParentId() const;

    void setName(const QString& name);
    void setParentId(const QString& parentId);
};

} // namespace qarn_base
