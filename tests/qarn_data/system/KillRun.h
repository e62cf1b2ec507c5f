#pragma once

#include "Workload.h"

#include <QRandomGenerator>

/// Kills a writing process at random moments and looks each time whether the store holds every change that
/// it had acknowledged, whole, and nothing else but the one that was under way.
class KillRun
{
public:
    KillRun(const QString& storePath, quint32 seed); ///< makes the store

    /// One kill and one look; the reason when something is wrong.
    QString killOnce();
    int acknowledgedChanges() const { return m_workload.count(); }
    int killsWhileWriting() const
    {
        return m_killsWhileWriting;
    } ///< the others met the writer while it opened

private:
    int runWriterAndKill();
    QString check(int acknowledged);

    QString m_storePath;
    quint32 m_seed;
    QRandomGenerator m_random;
    Workload m_workload;
    int m_killsWhileWriting = 0;
};

/// The first complaint of SQLite itself about a store file; empty when there is none.
QString sqliteComplaint(const QString& storePath);
