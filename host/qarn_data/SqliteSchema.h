#pragma once

#include <QStringList>

namespace qarn_data
{

/// Told apart from other programs' SQLite files by this application id ("QARN").
constexpr qint32 SqliteApplicationId = 0x5141524E;

/// The schema of an SQLite store, as numbered steps that are never changed once released.
int newestSqliteSchema();
/// The statements that lead from the version before to this one.
QStringList sqliteSchemaSteps(int version);

} // namespace qarn_data
