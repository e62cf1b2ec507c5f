#pragma once

#include "support/Sqlite.h"
#include "support/StatementRecorder.h"

#include <vector>

namespace qarn_bench
{

/// Runs recorded statements through SQLite's C interface: each text is prepared once, values are bound
/// without a copy.
class StatementReplay
{
public:
    StatementReplay(const QString& path, const RecordedStatements& recorded);

    void run();

private:
    void runEntry(const RecordedStatements::Entry& entry);

    const RecordedStatements& m_recorded;
    SqliteConnection m_connection;
    std::vector<SqliteStatement> m_statements; ///< after the connection: goes first
};

/// Ends the program unless two closed stores hold the same rows: a peer that did less measures nothing.
void requireSameRows(const QString& store, const QString& other);

} // namespace qarn_bench
