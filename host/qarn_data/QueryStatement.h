#pragma once

#include "Statement.h"

#include <QSqlQuery>

namespace qarn_data
{

/// A statement that any engine of QtSql runs.
class QueryStatement : public Statement
{
public:
    explicit QueryStatement(const QSqlDatabase& database);
    bool prepare(const char* sql, QSqlError* error);
    bool run(const Value* values, int count, const RowHandler& handler, QSqlError* error) override;

private:
    QSqlQuery m_query;
};

} // namespace qarn_data
