#pragma once

#include <sqlite3.h>

#include <QString>

#include <memory>
#include <string>
#include <vector>

namespace qarn_bench
{

struct SqliteCloser {
    void operator()(sqlite3* connection) const { sqlite3_close(connection); }
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using SqliteConnection = std::unique_ptr<sqlite3, SqliteCloser>;
using SqliteStatement = std::unique_ptr<sqlite3_stmt, SqliteCloser>;

/// SQLite's own C interface, as thin as it goes. A failure ends the program: a peer that fails measures
/// nothing.
SqliteConnection openSqlite(const QString& path);
SqliteStatement prepare(sqlite3* connection, const std::string& sql);
void execute(sqlite3* connection, const std::string& sql);
std::vector<std::string> tableNames(sqlite3* connection); ///< without SQLite's own
/// Reads every value of every row that is left, as what it is; the number of rows.
qint64 touchAll(sqlite3_stmt* statement);
/// Every row of a register's file but those that only clients which have it open would look at.
qint64 readWholeStore(const QString& path);

} // namespace qarn_bench
