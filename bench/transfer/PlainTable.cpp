#include "transfer/PlainTable.h"

#include "support/Figure.h"
#include "transfer/PersonTable.h"
#include "transfer/Workers.h"

#include <QFile>

namespace qarn_bench
{

std::string journalSettings()
{
    return "PRAGMA journal_mode=WAL; PRAGMA synchronous=NORMAL;";
}

SqliteConnection makePlainTable(const QString& store)
{
    for (const QString& suffix : {QString(), QStringLiteral("-wal"), QStringLiteral("-shm")})
        QFile::remove(store + suffix);
    SqliteConnection connection = openSqlite(store);
    execute(connection.get(),
            journalSettings() +
                "CREATE TABLE persons (serial_num TEXT, name TEXT, organization TEXT, sex INTEGER,"
                " phone_num TEXT, email TEXT, valid_start TEXT, valid_end TEXT, id TEXT, rest TEXT);"
                "CREATE UNIQUE INDEX persons_serial_num ON persons (serial_num);"
                "CREATE UNIQUE INDEX records_id ON persons (id);"
                "CREATE UNIQUE INDEX records_place ON persons (organization, serial_num);");
    return connection;
}

double fillPlainTable(const QString& store, const QString& personFile)
{
    const QByteArray commands =
        QByteArray("PRAGMA synchronous=NORMAL;\n.dbconfig no_ckpt_on_close on\n.import --csv --skip ") +
        QByteArray::number(personTableTitleLines) + " \"" + QFile::encodeName(personFile) + "\" persons\n";
    return milliseconds([&] { runProgram(QStringLiteral("sqlite3"), {store}, commands); });
}

} // namespace qarn_bench
