#pragma once

#include <QMetaType>
#include <QString>

namespace qarn_data
{

/// One organization of the tree, a plain value. The root is told by PersonData::isRootOrganization(),
/// not by its parent.
struct OrganizationInfo {
    QString id;
    QString parentId;
    QString name;
};

} // namespace qarn_data

Q_DECLARE_METATYPE(qarn_data::OrganizationInfo)
