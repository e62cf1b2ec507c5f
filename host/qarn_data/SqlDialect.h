#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVariantList>

#include <functional>

class QSqlDatabase;
class QSqlError;

namespace qarn_data
{

/// One row of a result, valid while the handler runs. Columns count from 0.
class Row
{
public:
    virtual ~Row();
    virtual bool isNull(int column) const = 0;
    virtual qint64 number(int column) const = 0; ///< 0 for NULL
    virtual QString text(int column) const = 0;
    virtual QByteArray bytes(int column) const = 0;
};

using RowHandler = std::function<void(const Row&)>;

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

    /// Calls `handler` for each row, without a detour through QVariant where the engine allows it.
    virtual bool forEachRow(QSqlDatabase& database, const QString& sql, const QVariantList& values,
                            const RowHandler& handler, QSqlError* error) const;

    virtual bool checkpoint(QSqlDatabase& database, QSqlError* error) const = 0;
    virtual bool copyTo(QSqlDatabase& database, const QString& filePath, QSqlError* error) const = 0;
    virtual QString selfCheck(QSqlDatabase& database) const = 0; ///< the first finding; empty when sound

    /// A failure in words for the operator: the cause and what to do.
    virtual QString cause(const QSqlError& error) const = 0;
};

} // namespace qarn_data
