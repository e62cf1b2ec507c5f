#include "SqliteDialect.h"

#include "SqliteSchema.h"
#include "StoreFile.h"

#include <QCoreApplication>
#include <QSqlDatabase>
#include <QSqlDriver>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

#include <sqlite3.h>

namespace qarn_data
{

namespace
{

constexpr int busyTimeoutMs = 5000;

QString tr(const char* text)
{
    return QCoreApplication::translate("qarn_data::SqliteDialect", text);
}

sqlite3* handleOf(const QSqlDatabase& database)
{
    const QVariant handle = database.driver()->handle();
    return *static_cast<sqlite3* const*>(handle.constData());
}

QSqlError errorOf(sqlite3* handle)
{
    return QSqlError(QString(), QString::fromUtf8(sqlite3_errmsg(handle)), QSqlError::StatementError,
                     QString::number(sqlite3_extended_errcode(handle)));
}

class StatementRow : public Row
{
public:
    explicit StatementRow(sqlite3_stmt* statement) : m_statement(statement) {}
    bool isNull(int column) const override { return sqlite3_column_type(m_statement, column) == SQLITE_NULL; }
    qint64 number(int column) const override { return sqlite3_column_int64(m_statement, column); }
    QString text(int column) const override
    {
        const auto* characters = reinterpret_cast<const char*>(sqlite3_column_text(m_statement, column));
        return characters == nullptr
                   ? QString()
                   : QString::fromUtf8(characters, sqlite3_column_bytes(m_statement, column));
    }
    QByteArray bytes(int column) const override
    {
        const auto* data = static_cast<const char*>(sqlite3_column_blob(m_statement, column));
        return data == nullptr ? QByteArray() : QByteArray(data, sqlite3_column_bytes(m_statement, column));
    }

private:
    sqlite3_stmt* m_statement;
};

void bind(sqlite3_stmt* statement, int place, const QVariant& value)
{
    if (value.userType() == QMetaType::QString) {
        const QByteArray text = value.toString().toUtf8();
        sqlite3_bind_text(statement, place, text.constData(), text.size(), SQLITE_TRANSIENT);
    } else if (value.userType() == QMetaType::QByteArray) {
        const QByteArray bytes = value.toByteArray();
        sqlite3_bind_blob(statement, place, bytes.constData(), bytes.size(), SQLITE_TRANSIENT);
    } else if (!value.isNull()) {
        sqlite3_bind_int64(statement, place, value.toLongLong());
    }
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
    // A damaged or foreign file shows itself before anything is set.
    return isOurs(database, error) && execute(database, QStringLiteral("PRAGMA foreign_keys = ON"), error) &&
           execute(database, QStringLiteral("PRAGMA synchronous = NORMAL"), error) &&
           execute(database, QStringLiteral("PRAGMA journal_mode = WAL"), error);
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

// Straight from the database's own handle: building a QVariant for every value would double the time that
// opening a large store takes. The QSQLITE plugin uses the same SQLite library as this one.
bool SqliteDialect::forEachRow(QSqlDatabase& database, const QString& sql, const QVariantList& values,
                               const RowHandler& handler, QSqlError* error) const
{
    sqlite3* handle = handleOf(database);
    sqlite3_stmt* statement = nullptr;
    const QByteArray text = sql.toUtf8();
    bool ok = sqlite3_prepare_v2(handle, text.constData(), text.size(), &statement, nullptr) == SQLITE_OK;
    for (int i = 0; ok && i < values.size(); ++i)
        bind(statement, i + 1, values.at(i));
    int step = SQLITE_DONE;
    const StatementRow row(statement);
    while (ok && (step = sqlite3_step(statement)) == SQLITE_ROW)
        handler(row);
    ok = ok && step == SQLITE_DONE;
    if (!ok)
        *error = errorOf(handle);
    sqlite3_finalize(statement);
    return ok;
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
