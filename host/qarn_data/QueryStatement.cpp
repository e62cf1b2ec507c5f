#include "QueryStatement.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QVariant>

namespace qarn_data
{

namespace
{

class QueryRow : public Row
{
public:
    explicit QueryRow(const QSqlQuery& query) : m_query(query) {}
    bool isNull(int column) const override { return m_query.isNull(column); }
    qint64 number(int column) const override { return m_query.value(column).toLongLong(); }
    QString text(int column) const override { return m_query.value(column).toString(); }
    QByteArray bytes(int column) const override { return m_query.value(column).toByteArray(); }

private:
    const QSqlQuery& m_query;
};

// QtSql stores a null text or null bytes as NULL.
QVariant toVariant(const Value& value)
{
    switch (value.kind()) {
    case Value::Kind::Number:
        return value.number();
    case Value::Kind::Text:
        return value.text().isNull() ? QString(QLatin1String("")) : value.text();
    case Value::Kind::Bytes:
        return value.bytes().isNull() ? QByteArray("") : value.bytes();
    case Value::Kind::Null:
        break;
    }
    return QVariant(QVariant::LongLong);
}

} // namespace

Row::~Row() = default;
Statement::~Statement() = default;

QueryStatement::QueryStatement(const QSqlDatabase& database) : m_query(database)
{
    m_query.setForwardOnly(true);
}

bool QueryStatement::prepare(const char* sql, QSqlError* error)
{
    const bool ok = m_query.prepare(QString::fromUtf8(sql));
    if (!ok)
        *error = m_query.lastError();
    return ok;
}

bool QueryStatement::run(const Value* values, int count, const RowHandler& handler, QSqlError* error)
{
    for (int i = 0; i < count; ++i)
        m_query.bindValue(i, toVariant(values[i]));
    bool ok = m_query.exec();
    const QueryRow row(m_query);
    while (ok && handler && m_query.next())
        handler(row);
    // next() ends alike at the last row and at a failure.
    ok = ok && m_query.lastError().type() == QSqlError::NoError;
    if (!ok)
        *error = m_query.lastError();
    m_query.finish();
    return ok;
}

} // namespace qarn_data
