#include "support/Sqlite.h"

namespace qarn_bench
{

namespace
{

volatile qint64 sink = 0; // keeps the compiler from leaving reads out

qint64 touch(sqlite3_stmt* statement, int column)
{
    switch (sqlite3_column_type(statement, column)) {
    case SQLITE_INTEGER:
        return sqlite3_column_int64(statement, column);
    case SQLITE_TEXT:
        return sqlite3_column_text(statement, column)[0] + sqlite3_column_bytes(statement, column);
    case SQLITE_BLOB:
        return sqlite3_column_blob(statement, column) == nullptr ? 0
                                                                 : sqlite3_column_bytes(statement, column);
    default:
        return 0;
    }
}

} // namespace

SqliteConnection openSqlite(const QString& path)
{
    sqlite3* connection = nullptr;
    if (sqlite3_open(path.toUtf8().constData(), &connection) != SQLITE_OK)
        qFatal("%s: %s", qPrintable(path), sqlite3_errmsg(connection));
    return SqliteConnection(connection);
}

SqliteStatement prepare(sqlite3* connection, const std::string& sql)
{
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(connection, sql.c_str(), -1, &statement, nullptr) != SQLITE_OK)
        qFatal("%s: %s", sql.c_str(), sqlite3_errmsg(connection));
    return SqliteStatement(statement);
}

void execute(sqlite3* connection, const std::string& sql)
{
    if (sqlite3_exec(connection, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
        qFatal("%s: %s", sql.c_str(), sqlite3_errmsg(connection));
}

std::vector<std::string> tableNames(sqlite3* connection)
{
    std::vector<std::string> names;
    const SqliteStatement query = prepare(
        connection, "SELECT name FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite_%'");
    while (sqlite3_step(query.get()) == SQLITE_ROW)
        names.emplace_back(reinterpret_cast<const char*>(sqlite3_column_text(query.get(), 0)));
    return names;
}

qint64 touchAll(sqlite3_stmt* statement)
{
    qint64 rows = 0;
    qint64 sum = 0;
    for (const int columns = sqlite3_column_count(statement); sqlite3_step(statement) == SQLITE_ROW; ++rows) {
        for (int column = 0; column < columns; ++column)
            sum += touch(statement, column);
    }
    sink = sum;
    return rows;
}

qint64 readWholeStore(const QString& path)
{
    const SqliteConnection connection = openSqlite(path);
    qint64 rows = 0;
    for (const std::string& table : tableNames(connection.get())) {
        if (table != "change_log")
            rows += touchAll(prepare(connection.get(), "SELECT * FROM " + table).get());
    }
    return rows;
}

} // namespace qarn_bench
