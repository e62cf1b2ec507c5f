#include "ChangeLog.h"

#include "SqlStore.h"

namespace qarn_data
{

bool ChangeLog::append(const Change& change)
{
    constexpr qint64 pruneEvery = 100;
    if (change.number % pruneEvery == 0 &&
        !m_store.run("DELETE FROM change_log WHERE number <= ?", change.number - Kept))
        return false;
    return m_store.run("INSERT INTO change_log (number, kind, subject) VALUES (?, ?, ?)", change.number,
                       int(change.kind), change.subject);
}

bool ChangeLog::readAfter(qint64 number, QVector<Change>* changes)
{
    return m_store.forEachRow(
        "SELECT number, kind, subject FROM change_log WHERE number > ? ORDER BY number", {number},
        [changes](const Row& row) {
            changes->append({row.number(0), ChangeKind(int(row.number(1))), row.text(2)});
        });
}

bool ChangeLog::lastNumber(qint64* number)
{
    return m_store.forEachRow("SELECT max(number) FROM change_log", {},
                              [number](const Row& row) { *number = row.number(0); });
}

} // namespace qarn_data
