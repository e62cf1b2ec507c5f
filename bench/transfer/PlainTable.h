#pragma once

#include "support/Sqlite.h"

#include <QString>

#include <string>

namespace qarn_bench
{

/// The register's own journal settings.
std::string journalSettings();

/// A new file with a plain table of persons, the indexes that the register keeps unique, and its journal.
SqliteConnection makePlainTable(const QString& store);

/// Milliseconds that the sqlite3 program takes to import a person file into it. What it imports stays in the
/// journal until the last connection is closed.
double fillPlainTable(const QString& store, const QString& personFile);

} // namespace qarn_bench
