// The same file once more, which updates every person, against as many prepared UPDATEs through SQLite's C
// interface in the same journal mode, each its own transaction.

#include "support/ChildRun.h"
#include "support/Figure.h"
#include "support/StoreFiles.h"
#include "transfer/PersonTable.h"
#include "transfer/PlainTable.h"
#include "transfer/Workers.h"

#include <QCoreApplication>
#include <QFile>
#include <QList>

using namespace qarn_bench;

namespace
{

constexpr int Count = 100000;
constexpr int Rounds = 3;
constexpr int FieldCount = 8;

QList<QByteArrayList> rowsOf(const QString& table)
{
    QFile file(table);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(table));
    QList<QByteArrayList> rows;
    for (int line = 0; !file.atEnd(); ++line) {
        const QByteArray text = file.readLine();
        if (line >= personTableTitleLines)
            rows.append(text.split(','));
    }
    return rows;
}

double peer(const QList<QByteArrayList>& rows, const QString& store)
{
    const SqliteConnection connection = openSqlite(store);
    execute(connection.get(), journalSettings());
    const SqliteStatement update = prepare(
        connection.get(), "UPDATE persons SET serial_num = ?1, name = ?2, organization = ?3, sex = ?4,"
                          " phone_num = ?5, email = ?6, valid_start = ?7, valid_end = ?8"
                          " WHERE serial_num = ?1");
    return milliseconds([&] {
        for (const QByteArrayList& row : rows) {
            for (int i = 0; i < FieldCount; ++i)
                sqlite3_bind_text(update.get(), i + 1, row[i].constData(), row[i].size(), SQLITE_STATIC);
            if (sqlite3_step(update.get()) != SQLITE_DONE)
                qFatal("%s", sqlite3_errmsg(connection.get()));
            sqlite3_reset(update.get());
        }
    });
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments.count() == 2)
        return measureImport(arguments[0], arguments[1], Count);
    const StoreFiles files;
    const QString table = files.path(QStringLiteral("persons.csv"));
    const QString store = files.path(QStringLiteral("ours.db"));
    const QString peerStore = files.path(QStringLiteral("peer.db"));
    writePersonTable(table, Count);
    openStore(store);
    importPersons(table);
    closeStore();
    {
        const SqliteConnection connection = makePlainTable(peerStore);
        fillPlainTable(peerStore, table);
    }
    const QList<QByteArrayList> rows = rowsOf(table);
    Figure figure{"reimport_persons_100000_ms"};
    figure.limit = 2;
    measureAlternately(
        figure, Rounds,
        [&] {
            return measureInChild({table, store});
        },
        [&] { return peer(rows, peerStore); });
    return report(figure);
}
