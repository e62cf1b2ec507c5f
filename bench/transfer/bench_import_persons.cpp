// A file of new persons, from the file to the committed store, against the sqlite3 program's .import of the
// same file into a plain table with the same unique indexes and journal.

#include "support/ChildRun.h"
#include "support/Figure.h"
#include "support/StoreFiles.h"
#include "transfer/PersonTable.h"
#include "transfer/PlainTable.h"
#include "transfer/Workers.h"

#include <QCoreApplication>

using namespace qarn_bench;

namespace
{

constexpr int Count = 100000;
constexpr int Rounds = 3;

double peer(const QString& table, const QString& store)
{
    const SqliteConnection connection = makePlainTable(store);
    const double elapsed = fillPlainTable(store, table);
    const SqliteStatement rows = prepare(connection.get(), "SELECT 1 FROM persons");
    if (touchAll(rows.get()) != Count)
        qFatal("the peer did not import all persons");
    return elapsed;
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
    writePersonTable(table, Count);
    Figure figure{"import_persons_100000_ms"};
    figure.limit = 4;
    int round = 0;
    measureAlternately(
        figure, Rounds,
        [&] {
            return measureInChild({table, files.path(QStringLiteral("ours%1.db").arg(++round))});
        },
        [&] { return peer(table, files.path(QStringLiteral("peer.db"))); });
    return report(figure);
}
