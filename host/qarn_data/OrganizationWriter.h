#pragma once

#include <qarn_data/OrganizationInfo.h>

#include <QStringList>

namespace qarn_data
{

// The writing operations on organizations and custom fields, as PersonData offers them. Any thread.
bool addOrganization(const OrganizationInfo& organization);
bool updateOrganization(const OrganizationInfo& organization);
bool deleteOrganizations(const QStringList& ids);
QString createOrganization(const QStringList& path);
void resetCustomFields(const QStringList& names);

} // namespace qarn_data
