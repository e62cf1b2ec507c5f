#pragma once

#include "Statement.h"

#include <QString>
#include <QStringList>

#include <memory>

class QSqlDatabase;
class QSqlError;

namespace qarn_data
{

/// What differs between database engines. Everything else is portable SQL through SqlStore.
class SqlDialect
{
public:
    virtual ~SqlDialect();

    virtual QString driverName() const = 0;
    virtual QString connectOptions() const = 0;
    /// Looks at a location before it is opened and changes nothing; the reason why it must not be opened.
    virtual QString objection(const QString& location) const = 0;
    /// Settings of a fresh connection.
    virtual bool prepare(QSqlDatabase& database, QSqlError* error) const = 0;

    virtual int newestSchema() const = 0;
    virtual QStringList schemaSteps(int version) const = 0; ///< statements that lead to this version
    virtual int schemaVersion(QSqlDatabase& database, QSqlError* error) const = 0; ///< -1 on failure
    virtual bool setSchemaVersion(QSqlDatabase& database, int version, QSqlError* error) const = 0;

    /// Opens a transaction in which no other process can write.
    virtual const char* beginWrite() const = 0;
    /// Opens a transaction in which all reads see one state.
    virtual const char* beginRead() const = 0;
    /// Differs from the last answer on this connection when another connection committed.
    virtual const char* changeMark() const = 0;

    /// Null, with the reason in `error`, when the engine does not understand `sql`.
    virtual std::unique_ptr<Statement> statement(const QSqlDatabase& database, const char* sql,
                                                 QSqlError* error) const;

    virtual bool checkpoint(QSqlDatabase& database, QSqlError* error) const = 0;
    virtual bool copyTo(QSqlDatabase& database, const QString& filePath, QSqlError* error) const = 0;
    virtual QString selfCheck(QSqlDatabase& database) const = 0; ///< the first finding; empty when sound

    /// A failure in words for the operator: the cause and what to do.
    virtual QString cause(const QSqlError& error) const = 0;
};

} // namespace qarn_data
