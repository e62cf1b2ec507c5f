// The most memory that a process holds while it imports a file of a million new persons, against the most
// that it holds when it only opens the register that comes out of it.

#include "support/ChildRun.h"
#include "support/Figure.h"
#include "support/StoreFiles.h"
#include "transfer/PersonTable.h"
#include "transfer/Workers.h"

#include <QCoreApplication>

#include <sys/resource.h>

using namespace qarn_bench;

namespace
{

constexpr int Count = 1000000;

double peakMegabytes()
{
    rusage usage;
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024;
}

int measure(const QString& store, const QString& table)
{
    openStore(store);
    if (!table.isEmpty())
        importPersons(table);
    const double peak = peakMegabytes();
    closeStore();
    return printMeasure(peak);
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments.count() == 2)
        return measure(arguments[0], arguments[1]);
    const StoreFiles files;
    const QString table = files.path(QStringLiteral("persons.csv"));
    const QString store = files.path(QStringLiteral("ours.db"));
    writePersonTable(table, Count);
    Figure figure{"import_memory_1000000_mb"};
    figure.limit = 3;
    figure.ours = measureInChild({store, table});
    figure.peer = measureInChild({store, QString()});
    return report(figure);
}
