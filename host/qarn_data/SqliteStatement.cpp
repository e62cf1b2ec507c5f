#include "SqliteStatement.h"

#include <QSqlError>

#include <sqlite3.h>

namespace qarn_data
{

namespace
{

class StatementRow : public Row
{
public:
    explicit StatementRow(sqlite3_stmt* statement) : m_statement(statement) {}
    bool isNull(int column) const override { return sqlite3_column_type(m_statement, column) == SQLITE_NULL; }
    qint64 number(int column) const override { return sqlite3_column_int64(m_statement, column); }
    QString text(int column) const override
    {
        const auto* characters = reinterpret_cast<const char*>(sqlite3_column_text(m_statement, column));
        return QString::fromUtf8(characters, sqlite3_column_bytes(m_statement, column));
    }
    QByteArray bytes(int column) const override
    {
        const auto* data = static_cast<const char*>(sqlite3_column_blob(m_statement, column));
        return QByteArray(data, sqlite3_column_bytes(m_statement, column));
    }

private:
    sqlite3_stmt* m_statement;
};

// Without copies: the values live until the statement has run, and are bound anew before it runs again.
void bind(sqlite3_stmt* statement, int place, const Value& value)
{
    switch (value.kind()) {
    case Value::Kind::Null:
        sqlite3_bind_null(statement, place);
        break;
    case Value::Kind::Number:
        sqlite3_bind_int64(statement, place, value.number());
        break;
    case Value::Kind::Text:
        sqlite3_bind_text16(statement, place, value.text().utf16(), value.text().size() * int(sizeof(QChar)),
                            SQLITE_STATIC);
        break;
    case Value::Kind::Bytes:
        sqlite3_bind_blob(statement, place, value.bytes().constData(), value.bytes().size(), SQLITE_STATIC);
        break;
    }
}

QSqlError errorOf(sqlite3* handle)
{
    return QSqlError(QString(), QString::fromUtf8(sqlite3_errmsg(handle)), QSqlError::StatementError,
                     QString::number(sqlite3_extended_errcode(handle)));
}

} // namespace

SqliteStatement::~SqliteStatement()
{
    sqlite3_finalize(m_statement);
}

bool SqliteStatement::prepare(const char* sql, QSqlError* error)
{
    const bool ok =
        sqlite3_prepare_v3(m_handle, sql, -1, SQLITE_PREPARE_PERSISTENT, &m_statement, nullptr) == SQLITE_OK;
    if (!ok)
        *error = errorOf(m_handle);
    return ok;
}

bool SqliteStatement::run(const Value* values, int count, const RowHandler& handler, QSqlError* error)
{
    for (int i = 0; i < count; ++i)
        bind(m_statement, i + 1, values[i]);
    const StatementRow row(m_statement);
    int step = sqlite3_step(m_statement);
    for (; step == SQLITE_ROW; step = sqlite3_step(m_statement)) {
        if (handler)
            handler(row);
    }
    if (step != SQLITE_DONE)
        *error = errorOf(m_handle);
    sqlite3_reset(m_statement);
    return step == SQLITE_DONE;
}

} // namespace qarn_data
