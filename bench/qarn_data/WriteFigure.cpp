#include "qarn_data/WriteFigure.h"

#include "support/Figure.h"
#include "support/StatementRecorder.h"
#include "support/StatementReplay.h"

namespace qarn_bench
{

namespace
{

constexpr int Rounds = 5;
constexpr double Limit = 1.5;

RecordedStatements record(const QString& store, const std::function<void()>& write)
{
    StatementRecorder recorder;
    openStore(store);
    recorder.clearStatements();
    write();
    RecordedStatements statements = recorder.takeStatements();
    closeStore();
    return statements;
}

} // namespace

int measureWrites(const char* name, const StoreFiles& files, const QString& store,
                  const std::function<void()>& write)
{
    const QString recorded = files.copy(store, QStringLiteral("recorded.db"));
    const RecordedStatements statements = record(recorded, write);
    Figure figure{name};
    figure.limit = Limit;
    measureAlternately(
        figure, Rounds,
        [&] {
            openStore(files.copy(store, QStringLiteral("ours.db")));
            findSomebody(); // belongs to opening, not to the first write
            const double time = milliseconds(write);
            closeStore();
            return time;
        },
        [&] {
            StatementReplay replay(files.copy(store, QStringLiteral("peer.db")), statements);
            return milliseconds([&] { replay.run(); });
        });
    requireSameRows(recorded, files.path(QStringLiteral("peer.db")));
    return report(figure);
}

} // namespace qarn_bench
