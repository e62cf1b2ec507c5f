#include "support/ChildRun.h"
#include "support/Figure.h"
#include "support/Sqlite.h"
#include "support/StoreFiles.h"
#include "transfer/PersonTable.h"
#include "transfer/Workers.h"

#include <qarn_data/PersonData.h>

#include <QCoreApplication>
#include <QFile>

// A file of new persons, from the file to the committed store, against the sqlite3 program's .import of the
// same file into a plain table with the same unique indexes and journal.

namespace
{

constexpr int Count = 100000;
constexpr int Rounds = 3;

int ours(const QString& table, const QString& store)
{
    qarn_bench::openStore(store);
    const double elapsed = qarn_bench::milliseconds([&] { qarn_bench::importPersons(table); });
    if (qarn_data::PersonData::instance().getAllPersonsSerialNum().count() != Count)
        qFatal("not all persons were imported");
    qarn_bench::closeStore();
    return qarn_bench::printMeasure(elapsed);
}

double peer(const QString& table, const QString& store)
{
    QFile::remove(store);
    QFile::remove(store + QStringLiteral("-wal"));
    QFile::remove(store + QStringLiteral("-shm"));
    const qarn_bench::SqliteConnection connection = qarn_bench::openSqlite(store);
    qarn_bench::execute(connection.get(), qarn_bench::journalSettings() + qarn_bench::personTableSchema());
    const QByteArray commands =
        QByteArray("PRAGMA synchronous=NORMAL;\n.dbconfig no_ckpt_on_close on\n.import --csv --skip ") +
        QByteArray::number(qarn_bench::personTableTitleLines) + " \"" + QFile::encodeName(table) +
        "\" persons\n";
    const double elapsed =
        qarn_bench::milliseconds([&] { qarn_bench::runProgram("sqlite3", {store}, commands); });
    auto rows = qarn_bench::prepare(connection.get(), "SELECT 1 FROM persons");
    if (qarn_bench::touchAll(rows.get()) != Count)
        qFatal("the peer did not import all persons");
    return elapsed;
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
    qarn_bench::writePersonTable(table, Count);
    qarn_bench::Figure figure{"import 100,000 new persons, ms"};
    figure.limit = 4;
    int round = 0;
    qarn_bench::measureAlternately(
        figure, Rounds,
        [&] {
            return qarn_bench::measureInChild({table, files.path(QStringLiteral("ours%1.db").arg(++round))});
        },
        [&] { return peer(table, files.path(QStringLiteral("peer.db"))); });
    return qarn_bench::report(figure);
}
