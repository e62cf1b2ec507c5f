#include "SqliteDialect.h"

#include "SqliteSchema.h"
#include "SqliteStatement.h"
#include "StoreFile.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QSqlDatabase>
#include <QSqlDriver>
#include <QSqlError>
#include <QSqlQuery>
#include <QThread>
#include <QVariant>

#include <sqlite3.h>

namespace qarn_data
{

namespace
{

constexpr int busyTimeoutMs = 5000;
constexpr unsigned long busyPauseMs = 10;
/// At this length of the journal (16 MiB) a writer waits for the disk; the Checkpointer comes before mostly.
constexpr int journalPages = 4096;
constexpr int cacheKiB = 16 * 1024; ///< an index of a large register fits in

QString tr(const char* text)
{
    return QCoreApplication::translate("qarn_data::SqliteDialect", text);
}

sqlite3* handleOf(const QSqlDatabase& database)
{
    const QVariant handle = database.driver()->handle();
    return *static_cast<sqlite3* const*>(handle.constData());
}

bool execute(QSqlDatabase& database, const QString& sql, QSqlError* error, QVariant* answer = nullptr)
{
    QSqlQuery query(database);
    const bool ok = query.exec(sql);
    if (!ok)
        *error = query.lastError();
    else if (answer != nullptr && query.next())
        *answer = query.value(0);
    return ok;
}

bool isOurs(QSqlDatabase& database, QSqlError* error)
{
    QVariant tables;
    QVariant application;
    if (!execute(database, QStringLiteral("SELECT count(*) FROM sqlite_master"), error, &tables) ||
        !execute(database, QStringLiteral("PRAGMA application_id"), error, &application))
        return false;
    if (tables.toInt() == 0 || application.toInt() == SqliteApplicationId)
        return true;
    *error = QSqlError(QString(), QString(), QSqlError::ConnectionError, QString::number(SQLITE_NOTADB));
    return false;
}

bool isBusy(const QSqlError& error)
{
    constexpr int primaryCode = 0xFF; // the rest tells more of the circumstances
    return (error.nativeErrorCode().toInt() & primaryCode) == SQLITE_BUSY;
}

bool prepareOnce(QSqlDatabase& database, QSqlError* error)
{
    // A damaged or foreign file shows itself before anything is set.
    return isOurs(database, error) && execute(database, QStringLiteral("PRAGMA foreign_keys = ON"), error) &&
           execute(database, QStringLiteral("PRAGMA synchronous = NORMAL"), error) &&
           execute(database, QStringLiteral("PRAGMA journal_mode = WAL"), error);
}

} // namespace

QString SqliteDialect::driverName() const
{
    return QStringLiteral("QSQLITE");
}

QString SqliteDialect::connectOptions() const
{
    return QStringLiteral("QSQLITE_BUSY_TIMEOUT=%1").arg(busyTimeoutMs);
}

QString SqliteDialect::objection(const QString& location) const
{
    return location == QLatin1String(":memory:") ? QString() : storeFileObjection(location, newestSchema());
}

bool SqliteDialect::prepare(QSqlDatabase& database, QSqlError* error) const
{
    // Of two processes that change a new file's journal at one time SQLite turns one away at once, since
    // neither would get any further by waiting with its lock. It may come again.
    const QDeadlineTimer patience(busyTimeoutMs);
    while (!prepareOnce(database, error)) {
        if (!isBusy(*error) || patience.hasExpired())
            return false;
        QThread::msleep(busyPauseMs);
    }
    return true;
}

int SqliteDialect::newestSchema() const
{
    return newestSqliteSchema();
}

QStringList SqliteDialect::schemaSteps(int version) const
{
    return sqliteSchemaSteps(version);
}

int SqliteDialect::schemaVersion(QSqlDatabase& database, QSqlError* error) const
{
    QVariant version(-1);
    execute(database, QStringLiteral("PRAGMA user_version"), error, &version);
    return version.toInt();
}

bool SqliteDialect::setSchemaVersion(QSqlDatabase& database, int version, QSqlError* error) const
{
    return execute(database, QStringLiteral("PRAGMA application_id = %1").arg(SqliteApplicationId), error) &&
           execute(database, QStringLiteral("PRAGMA user_version = %1").arg(version), error);
}

const char* SqliteDialect::beginWrite() const
{
    return "BEGIN IMMEDIATE";
}

const char* SqliteDialect::beginRead() const
{
    return "BEGIN";
}

const char* SqliteDialect::changeMark() const
{
    return "PRAGMA data_version";
}

std::unique_ptr<Statement> SqliteDialect::statement(const QSqlDatabase& database, const char* sql,
                                                    QSqlError* error) const
{
    auto statement = std::make_unique<SqliteStatement>(handleOf(database));
    if (!statement->prepare(sql, error))
        return nullptr;
    return statement;
}

bool SqliteDialect::checkpoint(QSqlDatabase& database, QSqlError* error) const
{
    return execute(database, QStringLiteral("PRAGMA wal_checkpoint(PASSIVE)"), error);
}

bool SqliteDialect::copyTo(QSqlDatabase& database, const QString& filePath, QSqlError* error) const
{
    QSqlQuery query(database);
    query.prepare(QStringLiteral("VACUUM INTO ?"));
    query.addBindValue(filePath);
    const bool ok = query.exec();
    if (!ok)
        *error = query.lastError();
    return ok;
}

QString SqliteDialect::selfCheck(QSqlDatabase& database) const
{
    QSqlError error;
    QVariant finding;
    if (!execute(database, QStringLiteral("PRAGMA integrity_check(1)"), &error, &finding))
        return error.text();
    if (finding.toString() != QLatin1String("ok"))
        return finding.toString();
    finding.clear();
    if (!execute(database, QStringLiteral("PRAGMA foreign_key_check"), &error, &finding))
        return error.text();
    return finding.isNull() ? QString()
                            : QStringLiteral("broken reference in table %1").arg(finding.toString());
}

QString SqliteDialect::cause(const QSqlError& error) const
{
    switch (error.nativeErrorCode().toInt() & 0xff) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return tr("Another program is using it. Try again when that has finished.");
    case SQLITE_PERM:
    case SQLITE_READONLY:
        return tr("It is read-only. Give yourself the right to write the file and its folder.");
    case SQLITE_FULL:
        return tr("The disk is full. Free some space and try again.");
    case SQLITE_IOERR:
        return tr("The disk does not take or give the data (%1). Check the disk and its free space.")
            .arg(error.databaseText());
    case SQLITE_CORRUPT:
        return tr("The file is damaged (%1). Restore it from a backup.").arg(error.databaseText());
    case SQLITE_NOTADB:
        return tr("The file is not a person register. Choose another file.");
    case SQLITE_CANTOPEN:
        return tr("The file cannot be opened. Check its folder and your rights there.");
    default:
        return tr("The database says: %1.").arg(error.databaseText());
    }
}

} // namespace qarn_data
