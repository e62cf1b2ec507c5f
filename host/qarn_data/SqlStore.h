#pragma once

#include "SqlDialect.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QString>

#include <array>
#include <memory>
#include <unordered_map>

namespace qarn_data
{

/// One connection to the database, with the statements that were prepared on it. Used by one thread at a
/// time, which holds it between takeOver() and handOver(). A false result leaves the reason in cause().
class SqlStore
{
public:
    explicit SqlStore(std::unique_ptr<SqlDialect> dialect);
    ~SqlStore();

    /// Connects and brings the schema up to date. False, with the reason, when the location stays as it is.
    bool open(const QString& location, QString* reason);
    /// A further connection to a store that this process has open. Does not look at the file itself: closing
    /// a file makes the process lose all its locks on it, and with them what protects the open store.
    bool openBeside(const QString& location, QString* reason);
    void close();

    /// QtSql ties a connection to a thread; these let it go to the calling thread and away again.
    void takeOver();
    void handOver();

    bool beginWrite();
    bool beginRead();
    bool commit();
    void rollback();

    /// Runs a statement. It stays prepared and is found again by the address of its text, which therefore
    /// lives as long as the program.
    template <class... Args>
    bool run(const char* sql, const Args&... args)
    {
        const std::array<Value, sizeof...(Args)> values{Value(args)...};
        return execute(sql, values.data(), int(values.size()), {});
    }
    bool forEachRow(const char* sql, const Values& values, const RowHandler& handler)
    {
        return execute(sql, values.data(), int(values.size()), handler);
    }
    /// True once after another connection has committed something.
    bool hasForeignChanges();

    bool checkpoint();
    bool copyTo(const QString& filePath);
    QString selfCheck();
    QString cause() const; ///< of the last failure, in words for the operator
    const SqlDialect& dialect() const { return *m_dialect; }

private:
    bool execute(const char* sql, const Value* values, int count, const RowHandler& handler);
    bool executeOnce(const QString& sql);
    bool connectTo(const QString& location);
    bool migrate(QString* reason);
    bool migrateFrom(int version);
    qint64 changeMark();

    std::unique_ptr<SqlDialect> m_dialect;
    QString m_connectionName;
    QSqlDatabase m_database;
    std::unordered_map<const char*, std::unique_ptr<Statement>> m_prepared;
    QSqlError m_error;
    qint64 m_changeMark = 0;
};

} // namespace qarn_data
