#include "tree/OrganizationNameRules.h"

#include "editor/NumberedName.h"

#include <algorithm>

namespace qarn_personMgr
{

namespace
{
constexpr int LastNumber = 1023;
}

QString defaultOrganizationName(const QString& base, const QSet<QString>& siblingNames)
{
    if (!siblingNames.contains(base))
        return base;
    return firstFreeNumberedName(base, siblingNames, LastNumber);
}

bool isSiblingNameTaken(const QList<SiblingOrganization>& siblings, const QString& name, const QString& id)
{
    return std::any_of(siblings.cbegin(), siblings.cend(), [&](const SiblingOrganization& sibling) {
        return sibling.id != id && sibling.name == name;
    });
}

} // namespace qarn_personMgr
