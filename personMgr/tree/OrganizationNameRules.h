#pragma once

#include <QList>
#include <QSet>
#include <QString>

namespace qarn_personMgr
{

/// One child of the organization under which a name is looked for.
struct SiblingOrganization {
    QString id;
    QString name;
};

/// The name to propose for a new organization: `base` where it is free among the siblings, else `base`
/// followed by the first free number.
QString defaultOrganizationName(const QString& base, const QSet<QString>& siblingNames);

/// Whether another sibling than `id` has exactly this name. An empty `id` stands for a new organization.
bool isSiblingNameTaken(const QList<SiblingOrganization>& siblings, const QString& name, const QString& id);

} // namespace qarn_personMgr
