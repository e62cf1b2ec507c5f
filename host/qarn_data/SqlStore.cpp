#include "SqlStore.h"

#include <QCoreApplication>
#include <QSqlDriver>
#include <QSqlQuery>
#include <QThread>
#include <QUuid>

namespace qarn_data
{

namespace
{

QString tr(const char* text)
{
    return QCoreApplication::translate("qarn_data::SqlStore", text);
}

} // namespace

SqlStore::SqlStore(std::unique_ptr<SqlDialect> dialect)
    : m_dialect(std::move(dialect)),
      m_connectionName(QUuid::createUuid().toString())
{
}

SqlStore::~SqlStore()
{
    close();
}

bool SqlStore::open(const QString& location, QString* reason)
{
    *reason = m_dialect->objection(location);
    return reason->isEmpty() && openBeside(location, reason);
}

bool SqlStore::openBeside(const QString& location, QString* reason)
{
    if (connectTo(location) && migrate(reason)) {
        m_changeMark = changeMark();
        return true;
    }
    if (reason->isEmpty())
        *reason = cause();
    close();
    return false;
}

bool SqlStore::connectTo(const QString& location)
{
    m_database = QSqlDatabase::addDatabase(m_dialect->driverName(), m_connectionName);
    m_database.setDatabaseName(location);
    m_database.setConnectOptions(m_dialect->connectOptions());
    if (!m_database.open()) {
        m_error = m_database.lastError();
        return false;
    }
    return m_dialect->prepare(m_database, &m_error);
}

bool SqlStore::migrate(QString* reason)
{
    if (m_dialect->schemaVersion(m_database, &m_error) == m_dialect->newestSchema())
        return true;
    if (!beginWrite())
        return false;
    // Read again: another process may have done it while this one waited for the lock.
    const int version = m_dialect->schemaVersion(m_database, &m_error);
    if (version > m_dialect->newestSchema())
        *reason = tr("The file was written by a newer version. Update this program.");
    else if (version >= 0 && migrateFrom(version) && commit())
        return true;
    rollback();
    return false;
}

bool SqlStore::migrateFrom(int version)
{
    for (int next = version + 1; next <= m_dialect->newestSchema(); ++next) {
        const QStringList steps = m_dialect->schemaSteps(next);
        for (const QString& step : steps) {
            if (!executeOnce(step))
                return false;
        }
    }
    return m_dialect->setSchemaVersion(m_database, m_dialect->newestSchema(), &m_error);
}

void SqlStore::close()
{
    if (!m_database.isValid())
        return;
    m_prepared.clear();
    m_database.close();
    m_database = QSqlDatabase();
    QSqlDatabase::removeDatabase(m_connectionName);
}

void SqlStore::takeOver()
{
    if (m_database.isValid())
        m_database.driver()->moveToThread(QThread::currentThread());
}

void SqlStore::handOver()
{
    if (m_database.isValid())
        m_database.driver()->moveToThread(nullptr);
}

bool SqlStore::beginWrite()
{
    return run(m_dialect->beginWrite());
}

bool SqlStore::beginRead()
{
    return run(m_dialect->beginRead());
}

bool SqlStore::commit()
{
    return run("COMMIT");
}

void SqlStore::rollback()
{
    const QSqlError error = m_error;
    run("ROLLBACK");
    m_error = error;
}

bool SqlStore::execute(const char* sql, const Value* values, int count, const RowHandler& handler)
{
    std::unique_ptr<Statement>& statement = m_prepared[sql];
    if (statement == nullptr)
        statement = m_dialect->statement(m_database, sql, &m_error);
    return statement != nullptr && statement->run(values, count, handler, &m_error);
}

bool SqlStore::executeOnce(const QString& sql)
{
    QSqlQuery query(m_database);
    const bool ok = query.exec(sql);
    if (!ok)
        m_error = query.lastError();
    return ok;
}

qint64 SqlStore::changeMark()
{
    qint64 mark = -1;
    forEachRow(m_dialect->changeMark(), {}, [&mark](const Row& row) { mark = row.number(0); });
    return mark;
}

bool SqlStore::hasForeignChanges()
{
    const qint64 mark = changeMark();
    if (mark == m_changeMark)
        return false;
    m_changeMark = mark;
    return true;
}

bool SqlStore::checkpoint()
{
    return m_dialect->checkpoint(m_database, &m_error);
}

bool SqlStore::copyTo(const QString& filePath)
{
    return m_dialect->copyTo(m_database, filePath, &m_error);
}

QString SqlStore::selfCheck()
{
    return m_dialect->selfCheck(m_database);
}

QString SqlStore::cause() const
{
    return m_dialect->cause(m_error);
}

} // namespace qarn_data
