#include "support/ChildRun.h"
#include "support/Figure.h"
#include "support/StoreFiles.h"
#include "transfer/PersonTable.h"
#include "transfer/Workers.h"

#include <QCoreApplication>

#include <sys/resource.h>

// The most memory that a process holds while it imports a file of a million new persons, against the most
// that it holds when it only opens the register that comes out of it.

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
    qarn_bench::openStore(store);
    if (!table.isEmpty())
        qarn_bench::importPersons(table);
    const double peak = peakMegabytes();
    qarn_bench::closeStore();
    return qarn_bench::printMeasure(peak);
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments.count() == 2)
        return measure(arguments[0], arguments[1]);
    const qarn_bench::StoreFiles files;
    const QString table = files.path(QStringLiteral("persons.csv"));
    const QString store = files.path(QStringLiteral("ours.db"));
    qarn_bench::writePersonTable(table, Count);
    qarn_bench::Figure figure{"peak memory importing 1,000,000 persons, MB"};
    figure.limit = 3;
    figure.ours = qarn_bench::measureInChild({store, table});
    figure.peer = qarn_bench::measureInChild({store, QString()});
    return qarn_bench::report(figure);
}
