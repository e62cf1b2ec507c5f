#include "KillRun.h"

#include <QTemporaryDir>
#include <QtTest>

/// A short run in the suite; store_kill_marathon makes a long one.
class tst_Durability : public QObject
{
    Q_OBJECT
private slots:
    void keepsEveryAcknowledgedChangeWhenKilled();
};

void tst_Durability::keepsEveryAcknowledgedChangeWhenKilled()
{
    QTemporaryDir directory;
    KillRun run(directory.filePath(QStringLiteral("store.db")), 4711);
    for (int kill = 1; kill <= 20; ++kill) {
        const QString problem = run.killOnce();
        QVERIFY2(problem.isEmpty(), qPrintable(QStringLiteral("kill %1: %2").arg(kill).arg(problem)));
    }
    QVERIFY(run.killsWhileWriting() >= 10);
    QVERIFY(run.acknowledgedChanges() > run.killsWhileWriting());
}

QTEST_GUILESS_MAIN(tst_Durability)
#include "tst_Durability.moc"
