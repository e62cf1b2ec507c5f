#pragma once

#include <qarn_data/OrganizationInfo.h>

#include <QHash>
#include <QList>
#include <QMap>
#include <QPair>
#include <QStringList>
#include <QVector>

namespace qarn_data
{

/// An organization as the store knows it: numbers grow in the order of addition.
struct StoredOrganization {
    qint64 number = 0;
    OrganizationInfo info;
};

/// The tree of organizations. Not locked: Register sees to that.
class OrganizationIndex
{
public:
    /// Adds, or replaces the one with the same number.
    void put(const StoredOrganization& organization);
    void remove(qint64 number);

    bool contains(const QString& id) const { return m_numbers.contains(id); }
    qint64 number(const QString& id) const { return m_numbers.value(id); } ///< 0 when unknown
    OrganizationInfo info(const QString& id) const { return m_infos.value(number(id)); }
    OrganizationInfo info(qint64 number) const { return m_infos.value(number); }
    qint64 lastNumber() const { return m_infos.isEmpty() ? 0 : m_infos.lastKey(); }
    QVector<qint64> numbers() const { return m_infos.keys().toVector(); }
    QString rootId() const { return m_rootId; }

    /// Root first, the organization itself last; empty when unknown.
    QStringList names(const QString& id) const;
    /// The child of that name which was added first; empty when there is none.
    QString childNamed(const QString& parentId, const QString& name) const;
    QStringList children(const QString& parentId) const;
    bool isSameOrBelow(const QString& id, const QString& ancestorId) const;
    QList<OrganizationInfo> all() const; ///< parents before children, siblings in the order of addition

private:
    using Siblings = QPair<QString, QString>; ///< parent id, name

    QMap<qint64, OrganizationInfo> m_infos;
    QHash<QString, qint64> m_numbers;
    QHash<QString, QMap<qint64, QString>> m_children; ///< ids by parent id
    QHash<Siblings, QMap<qint64, QString>> m_named;   ///< ids
    QString m_rootId;
};

} // namespace qarn_data
