#include "support/ChildRun.h"
#include "support/Figure.h"
#include "support/Sqlite.h"
#include "support/StoreFiles.h"
#include "transfer/PersonTable.h"
#include "transfer/Workers.h"

#include <qarn_data/PersonData.h>

#include <QCoreApplication>
#include <QFile>
#include <QList>

// The same file once more, which updates every person, against as many prepared UPDATEs through SQLite's C
// interface in the same journal mode, each its own transaction.

namespace
{

constexpr int Count = 100000;
constexpr int Rounds = 3;
constexpr int FieldCount = 8;

int ours(const QString& table, const QString& store)
{
    qarn_bench::openStore(store);
    const double elapsed = qarn_bench::milliseconds([&] { qarn_bench::importPersons(table); });
    if (qarn_data::PersonData::instance().getAllPersonsSerialNum().count() != Count)
        qFatal("the import added persons");
    qarn_bench::closeStore();
    return qarn_bench::printMeasure(elapsed);
}

QList<QByteArrayList> rowsOf(const QString& table)
{
    QFile file(table);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(table));
    QList<QByteArrayList> rows;
    for (int line = 0; !file.atEnd(); ++line) {
        const QByteArray text = file.readLine();
        if (line >= qarn_bench::personTableTitleLines)
            rows.append(text.split(','));
    }
    return rows;
}

void makePeer(const QString& store, const QString& table)
{
    const QByteArray commands = ".import --csv --skip " +
                                QByteArray::number(qarn_bench::personTableTitleLines) + " \"" +
                                QFile::encodeName(table) + "\" persons\n";
    {
        const qarn_bench::SqliteConnection connection = qarn_bench::openSqlite(store);
        qarn_bench::execute(connection.get(),
                            qarn_bench::journalSettings() + qarn_bench::personTableSchema());
    }
    qarn_bench::runProgram("sqlite3", {store}, commands);
}

double peer(const QList<QByteArrayList>& rows, const QString& store)
{
    const qarn_bench::SqliteConnection connection = qarn_bench::openSqlite(store);
    qarn_bench::execute(connection.get(), qarn_bench::journalSettings());
    const qarn_bench::SqliteStatement update = qarn_bench::prepare(
        connection.get(), "UPDATE persons SET serial_num = ?1, name = ?2, organization = ?3, sex = ?4,"
                          " phone_num = ?5, email = ?6, valid_start = ?7, valid_end = ?8"
                          " WHERE serial_num = ?1");
    return qarn_bench::milliseconds([&] {
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
        return ours(arguments[0], arguments[1]);
    const qarn_bench::StoreFiles files;
    const QString table = files.path(QStringLiteral("persons.csv"));
    const QString store = files.path(QStringLiteral("ours.db"));
    const QString peerStore = files.path(QStringLiteral("peer.db"));
    qarn_bench::writePersonTable(table, Count);
    qarn_bench::openStore(store);
    qarn_bench::importPersons(table);
    qarn_bench::closeStore();
    makePeer(peerStore, table);
    const QList<QByteArrayList> rows = rowsOf(table);
    qarn_bench::Figure figure{"import 100,000 known persons, ms"};
    figure.limit = 2;
    qarn_bench::measureAlternately(
        figure, Rounds,
        [&] {
            return qarn_bench::measureInChild({table, store});
        },
        [&] { return peer(rows, peerStore); });
    return qarn_bench::report(figure);
}
