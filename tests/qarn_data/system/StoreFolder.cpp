#include "StoreFolder.h"

#include "WriterPersons.h"

#include <qarn_data/DataService.h>
#include <qarn_data/PersonData.h>

#include <QDir>
#include <QFile>
#include <QJsonArray>

#include <sqlite3.h>

StoreFolder::StoreFolder()
{
    if (!m_directory.isValid())
        qFatal("%s", qPrintable(m_directory.errorString()));
}

void StoreFolder::makeStore(int personCount, int imageSize)
{
    QJsonArray ids;
    for (int i = 0; i < personCount; ++i)
        ids.append(QStringLiteral("kept-%1").arg(i));
    QString error;
    const bool opened = qarn_data::DataService::instance().open(storePath(), &error);
    if (!opened ||
        !qarn_data::PersonData::instance().addPersons(personsToAdd({{"ids", ids}, {"imageSize", imageSize}})))
        qFatal("no store to spoil: %s", qPrintable(error));
    qarn_data::DataService::instance().close();
}

void StoreFolder::write(const QByteArray& bytes) const
{
    QFile file(storePath());
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("%s: %s", qPrintable(storePath()), qPrintable(file.errorString()));
}

QByteArray StoreFolder::read() const
{
    QFile file(storePath());
    file.open(QIODevice::ReadOnly);
    return file.readAll();
}

void StoreFolder::runSql(const QByteArray& sql) const
{
    sqlite3* connection = nullptr;
    if (sqlite3_open(storePath().toUtf8().constData(), &connection) != SQLITE_OK ||
        sqlite3_exec(connection, sql.constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
        qFatal("%s: %s", sql.constData(), sqlite3_errmsg(connection));
    sqlite3_close(connection);
}

void StoreFolder::spoilLastPersons() const
{
    sqlite3* connection = nullptr;
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_open(storePath().toUtf8().constData(), &connection) != SQLITE_OK ||
        sqlite3_prepare_v2(connection,
                           "SELECT pgoffset, pgsize FROM dbstat WHERE name = 'persons' AND pagetype = 'leaf'"
                           " ORDER BY path DESC LIMIT 1",
                           -1, &statement, nullptr) != SQLITE_OK ||
        sqlite3_step(statement) != SQLITE_ROW)
        qFatal("no page to spoil: %s", sqlite3_errmsg(connection));
    const int offset = sqlite3_column_int(statement, 0);
    const int size = sqlite3_column_int(statement, 1);
    sqlite3_finalize(statement);
    sqlite3_close(connection);
    write(read().replace(offset, size, QByteArray(size, '\xee')));
}

QMap<QString, QByteArray> StoreFolder::content() const
{
    QMap<QString, QByteArray> files;
    for (const QString& name :
         QDir(path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)) {
        QFile file(QDir(path()).filePath(name));
        file.open(QIODevice::ReadOnly);
        files.insert(name, file.readAll());
    }
    return files;
}
