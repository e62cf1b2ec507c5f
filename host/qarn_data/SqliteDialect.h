#pragma once

#include "SqlDialect.h"

namespace qarn_data
{

/// The embedded store: one SQLite file in WAL mode.
class SqliteDialect : public SqlDialect
{
public:
    QString driverName() const override;
    QString connectOptions() const override;
    QString objection(const QString& location) const override;
    bool prepare(QSqlDatabase& database, QSqlError* error) const override;
    int newestSchema() const override;
    QStringList schemaSteps(int version) const override;
    int schemaVersion(QSqlDatabase& database, QSqlError* error) const override;
    bool setSchemaVersion(QSqlDatabase& database, int version, QSqlError* error) const override;
    const char* beginWrite() const override;
    const char* beginRead() const override;
    const char* changeMark() const override;
    std::unique_ptr<Statement> statement(const QSqlDatabase& database, const char* sql,
                                         QSqlError* error) const override;
    bool checkpoint(QSqlDatabase& database, QSqlError* error) const override;
    bool copyTo(QSqlDatabase& database, const QString& filePath, QSqlError* error) const override;
    QString selfCheck(QSqlDatabase& database) const override;
    QString cause(const QSqlError& error) const override;
};

} // namespace qarn_data
