#pragma once

#include <qarn_data/PersonInfo.h>

#include <QStringList>

namespace qarn_data
{

// The writing operations on persons, as PersonData offers them. Any thread.
bool addPersons(const PersonList& persons);
bool updatePerson(const PersonInfo& person);
bool deletePersons(const QStringList& ids);
bool movePersons(const PersonList& persons, const QString& organizationId, bool retain);

} // namespace qarn_data
