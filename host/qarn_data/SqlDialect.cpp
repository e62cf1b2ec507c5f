#include "SqlDialect.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
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

} // namespace

Row::~Row() = default;
SqlDialect::~SqlDialect() = default;

bool SqlDialect::forEachRow(QSqlDatabase& database, const QString& sql, const QVariantList& values,
                            const RowHandler& handler, QSqlError* error) const
{
    QSqlQuery query(database);
    query.setForwardOnly(true);
    bool ok = query.prepare(sql);
    for (int i = 0; i < values.size(); ++i)
        query.bindValue(i, values.at(i));
    ok = ok && query.exec();
    const QueryRow row(query);
    while (ok && query.next())
        handler(row);
    // next() ends alike at the last row and at a failure.
    ok = ok && query.lastError().type() == QSqlError::NoError;
    if (!ok)
        *error = query.lastError();
    return ok;
}

} // namespace qarn_data
