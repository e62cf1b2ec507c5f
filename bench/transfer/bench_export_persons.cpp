// All nine columns of every person into a file, against "sqlite3 -csv" of a plain table that already holds
// the nine texts as they are written.

#include "support/ChildRun.h"
#include "support/Figure.h"
#include "support/People.h"
#include "support/StoreFiles.h"
#include "transfer/ExportPeer.h"
#include "transfer/Workers.h"

#include <qarn_data/PersonData.h>

#include <QCoreApplication>

using namespace qarn_bench;

namespace
{

constexpr int Count = 100000;
constexpr int Rounds = 5;
constexpr quint32 Seed = 20240307;
constexpr int OrganizationCount = 50;

int ours(const QString& store, const QString& target)
{
    openStore(store);
    const QStringList ids = allOrganizationIds();
    const double elapsed = milliseconds([&] { exportAllColumns(ids, target); });
    closeStore();
    return printMeasure(elapsed);
}

/// Values without what a reader of quoted fields would trip over: the peer's table is filled from the file.
void fillStore(const QString& store)
{
    openStore(store);
    qarn_data::PersonList persons = People(Seed).make(Count, addOrganizations(OrganizationCount));
    for (qarn_data::PersonInfo& person : persons)
        person.name.remove(QLatin1Char(',')).remove(QLatin1Char('"'));
    if (!qarn_data::PersonData::instance().addPersons(persons))
        qFatal("the store does not take the persons");
    closeStore();
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments.count() == 2)
        return ours(arguments[0], arguments[1]);
    const StoreFiles files;
    const QString store = files.path(QStringLiteral("ours.db"));
    fillStore(store);
    const QString exported = files.path(QStringLiteral("ours.csv"));
    const QString peerExported = files.path(QStringLiteral("peer.csv"));
    measureInChild({store, exported});
    const ExportPeer peer(files.path(QStringLiteral("peer.db")), exported);
    Figure figure{"export_persons_100000_ms"};
    figure.limit = 1.5;
    measureAlternately(
        figure, Rounds,
        [&] {
            return measureInChild({store, exported});
        },
        [&] { return peer.exportAll(peerExported); });
    if (lineCount(exported) < Count + 1 || lineCount(peerExported) < Count)
        qFatal("a file is not complete");
    return report(figure);
}
