#include "SqlDialect.h"

#include "QueryStatement.h"

namespace qarn_data
{

SqlDialect::~SqlDialect() = default;

std::unique_ptr<Statement> SqlDialect::statement(const QSqlDatabase& database, const char* sql,
                                                 QSqlError* error) const
{
    auto statement = std::make_unique<QueryStatement>(database);
    if (!statement->prepare(sql, error))
        return nullptr;
    return statement;
}

} // namespace qarn_data
