// Kills a writing process many times: store_kill_marathon [kills, 200 unless given] [seed]. Ends with 1 at
// the first change that is lost, and leaves the store for a look.

#include "KillRun.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <cstdio>

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const int kills = arguments.value(1, QStringLiteral("200")).toInt();
    const quint32 seed = arguments.value(2, QStringLiteral("1")).toUInt();
    QTemporaryDir directory;
    KillRun run(directory.filePath(QStringLiteral("store.db")), seed);
    for (int kill = 1; kill <= kills; ++kill) {
        const QString problem = run.killOnce();
        if (!problem.isEmpty()) {
            directory.setAutoRemove(false);
            std::printf("kill %d: %s\nThe store is left in %s\n", kill, qPrintable(problem),
                        qPrintable(directory.path()));
            return 1;
        }
        if (kill % 20 == 0 || kill == kills)
            std::printf("%d kills, %d of them while writing; %d acknowledged changes, none lost\n", kill,
                        run.killsWhileWriting(), run.acknowledgedChanges());
        std::fflush(stdout);
    }
    return 0;
}
