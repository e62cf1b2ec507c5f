#pragma once

#include "Statement.h"

#include <memory>

struct sqlite3;
struct sqlite3_stmt;

namespace qarn_data
{

/// A statement straight on the handle of an SQLite connection: building a QVariant for every value would
/// take longer than the database does. The QSQLITE plug-in uses the same SQLite library as this one.
class SqliteStatement : public Statement
{
public:
    explicit SqliteStatement(sqlite3* handle) : m_handle(handle) {}
    ~SqliteStatement() override;
    bool prepare(const char* sql, QSqlError* error);
    bool run(const Value* values, int count, const RowHandler& handler, QSqlError* error) override;

private:
    Q_DISABLE_COPY(SqliteStatement)

    sqlite3* m_handle;
    sqlite3_stmt* m_statement = nullptr;
};

} // namespace qarn_data
