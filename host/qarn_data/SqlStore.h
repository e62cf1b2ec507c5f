#pragma once

#include "SqlDialect.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QString>
#include <QVariant>

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
    void close();

    /// QtSql ties a connection to a thread; these let it go to the calling thread and away again.
    void takeOver();
    void handOver();

    bool beginWrite();
    bool beginRead();
    bool commit();
    void rollback();

    /// Runs a statement; it stays prepared, found again by the address of its text.
    template <class... Values>
    bool run(const char* sql, const Values&... values)
    {
        QSqlQuery* query = prepared(sql);
        if (query == nullptr)
            return false;
        int place = 0;
        (query->bindValue(place++, toVariant(values)), ...);
        return execute(*query);
    }
    bool forEachRow(const QString& sql, const QVariantList& values, const RowHandler& handler);
    /// True once after another connection has committed something.
    bool hasForeignChanges();

    bool checkpoint();
    bool copyTo(const QString& filePath);
    QString selfCheck();
    QString cause() const; ///< of the last failure, in words for the operator
    const SqlDialect& dialect() const { return *m_dialect; }

private:
    // A text column is never NULL, whatever kind of emptiness comes.
    static QVariant toVariant(const QString& text)
    {
        return text.isNull() ? QString(QLatin1String("")) : text;
    }
    static QVariant toVariant(const QByteArray& bytes) { return bytes.isNull() ? QByteArray("") : bytes; }
    static QVariant toVariant(qint64 number) { return number; }
    static QVariant toVariant(int number) { return number; }
    static QVariant toVariant(const QVariant& value) { return value; }

    QSqlQuery* prepared(const char* sql);
    bool execute(QSqlQuery& query);
    bool executeOnce(const QString& sql);
    bool connectTo(const QString& location);
    bool migrate(QString* reason);
    bool migrateFrom(int version);
    qint64 changeMark();

    std::unique_ptr<SqlDialect> m_dialect;
    QString m_connectionName;
    QSqlDatabase m_database;
    std::unordered_map<const char*, std::unique_ptr<QSqlQuery>> m_prepared;
    QSqlError m_error;
    qint64 m_changeMark = 0;
};

} // namespace qarn_data
