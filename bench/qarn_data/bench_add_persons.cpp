// addPersons of 100,000 persons in one call against the same inserts through SQLite's C interface.

#include "support/Figure.h"
#include "support/People.h"
#include "support/StatementRecorder.h"
#include "support/StatementReplay.h"
#include "support/StoreFiles.h"

#include <qarn_data/PersonData.h>

#include <QCoreApplication>

using namespace qarn_bench;

namespace
{

constexpr int PersonCount = 100000;
constexpr int Rounds = 5;

void addAll(const qarn_data::PersonList& persons)
{
    if (!qarn_data::PersonData::instance().addPersons(persons))
        qFatal("the store does not take the persons");
}

RecordedStatements recordInserts(const QString& path, const qarn_data::PersonList& persons)
{
    StatementRecorder recorder;
    openStore(path);
    recorder.clearStatements();
    addAll(persons);
    RecordedStatements statements = recorder.takeStatements();
    closeStore();
    return statements;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const StoreFiles files;
    const QString empty = files.path(QStringLiteral("empty.db"));
    openStore(empty);
    const qarn_data::PersonList persons = People(1).make(PersonCount, addOrganizations(50));
    closeStore();
    const RecordedStatements inserts =
        recordInserts(files.copy(empty, QStringLiteral("recorded.db")), persons);

    Figure figure{"add_persons_100000_ms"};
    figure.limit = 1.5;
    measureAlternately(
        figure, Rounds,
        [&] {
            openStore(files.copy(empty, QStringLiteral("ours.db")));
            const double time = milliseconds([&] { addAll(persons); });
            closeStore();
            return time;
        },
        [&] {
            StatementReplay replay(files.copy(empty, QStringLiteral("peer.db")), inserts);
            return milliseconds([&] { replay.run(); });
        });
    requireSameRows(files.path(QStringLiteral("recorded.db")), files.path(QStringLiteral("peer.db")));
    return report(figure);
}
