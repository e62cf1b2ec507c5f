// Opening a store of 100,000 persons until the first page is delivered, against reading the same rows
// through SQLite's C interface. Each side runs in a new process every time.

#include "support/ChildRun.h"
#include "support/Figure.h"
#include "support/Sqlite.h"
#include "support/StoreFiles.h"

#include "query/PersonMgrWorker.h"
#include "query/PersonQueryCondition.h"

#include <qarn_data/PersonInfo.h>

#include <QCoreApplication>

using namespace qarn_bench;
using qarn_personMgr::PersonMgrWorker;

namespace
{

constexpr int PersonCount = 100000;
constexpr int Rounds = 9;

int measureOurs(const QString& path)
{
    int rows = 0;
    QObject::connect(&PersonMgrWorker::instance(), &PersonMgrWorker::signalCurPagePersons,
                     QCoreApplication::instance(),
                     [&](const QList<qarn_data::PersonInfo>& page, int, int) { rows = page.count(); });
    const double time = milliseconds([&] {
        openStore(path);
        PersonMgrWorker::instance().queryPersons({});
    });
    closeStore();
    if (rows == 0)
        qFatal("the page is empty");
    return printMeasure(time);
}

int measurePeer(const QString& path)
{
    qint64 rows = 0;
    const double time = milliseconds([&] { rows = readWholeStore(path); });
    if (rows < 2 * PersonCount)
        qFatal("the peer has read %lld rows only", static_cast<long long>(rows));
    return printMeasure(time);
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments.value(0) == QLatin1String("ours"))
        return measureOurs(arguments.value(1));
    if (arguments.value(0) == QLatin1String("peer"))
        return measurePeer(arguments.value(1));

    const StoreFiles files;
    const QString path = makeStore(files, QStringLiteral("store.db"), PersonCount);
    Figure figure{"open_store_100000_ms"};
    figure.limit = 3.0;
    measureAlternately(
        figure, Rounds,
        [&] {
            return measureInChild({QStringLiteral("ours"), path});
        },
        [&] {
            return measureInChild({QStringLiteral("peer"), path});
        });
    return report(figure);
}
