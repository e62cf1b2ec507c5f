#pragma once

#include "support/SqlLiterals.h"

#include <map>
#include <string>
#include <vector>

namespace qarn_bench
{

/// What the service runs on its connections: settings made when it opens, and the writing statements with
/// their values in order. A peer replays them, so that it always does the same work on the same schema.
struct RecordedStatements {
    struct Entry {
        std::size_t text; ///< index into texts
        std::vector<SqlValue> values;
    };
    std::vector<std::string> texts;
    std::vector<Entry> entries;
    std::vector<std::string> settings; ///< "PRAGMA name=value" statements
};

/// Listens to every SQLite connection that is opened in this process while it lives. Slows them down: what
/// is recorded is not measured.
class StatementRecorder
{
public:
    StatementRecorder();
    ~StatementRecorder();
    StatementRecorder(const StatementRecorder&) = delete;
    StatementRecorder& operator=(const StatementRecorder&) = delete;

    /// Forgets the writing statements so far, keeps the settings.
    void clearStatements();
    RecordedStatements takeStatements();
};

} // namespace qarn_bench
