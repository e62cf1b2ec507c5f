#pragma once

#include <qarn_data/PersonInfo.h>

#include <QList>
#include <QStringList>

/// Invented persons and organizations, the same at every call.
namespace demoPersons
{

/// Paths of organization names below the root.
QList<QStringList> organizationPaths();

/// One invented person with a drawn portrait, without an organization. index counts from 0.
qarn_data::PersonInfo make(int index);

} // namespace demoPersons
