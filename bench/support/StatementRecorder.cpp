#include "support/StatementRecorder.h"

#include <sqlite3.h>

#include <algorithm>
#include <cctype>
#include <memory>
#include <mutex>
#include <utility>

namespace qarn_bench
{

namespace
{

std::mutex mutex;
bool recording = false;
RecordedStatements recorded;
std::map<std::string, std::size_t> textIndex;

std::string firstWord(const std::string& sql)
{
    const std::size_t start = sql.find_first_not_of(" \t\r\n");
    std::string word;
    for (std::size_t i = start; i < sql.size() && std::isalpha(static_cast<unsigned char>(sql[i])) != 0; ++i)
        word += static_cast<char>(std::toupper(static_cast<unsigned char>(sql[i])));
    return word;
}

void addEntry(const std::string& sql, sqlite3_stmt* statement)
{
    const auto [place, isNew] = textIndex.emplace(sql, recorded.texts.size());
    if (isNew)
        recorded.texts.push_back(sql);
    const std::unique_ptr<char, decltype(&sqlite3_free)> expanded(sqlite3_expanded_sql(statement),
                                                                  &sqlite3_free);
    recorded.entries.push_back({place->second, boundValues(sql, expanded ? expanded.get() : sql)});
}

int onStatement(unsigned, void*, void* statement, void* text)
{
    const std::string sql = static_cast<const char*>(text);
    if (sql.rfind("--", 0) == 0) // a trigger; it fires for the peer too
        return 0;
    const std::string word = firstWord(sql);
    static const std::vector<std::string> writing = {"INSERT", "REPLACE",   "UPDATE",  "DELETE",   "BEGIN",
                                                     "COMMIT", "SAVEPOINT", "RELEASE", "ROLLBACK", "END"};
    const std::lock_guard<std::mutex> lock(mutex);
    if (!recording)
        return 0;
    if (word == "PRAGMA" && sql.find('=') != std::string::npos) {
        if (std::find(recorded.settings.begin(), recorded.settings.end(), sql) == recorded.settings.end())
            recorded.settings.push_back(sql);
    } else if (std::find(writing.begin(), writing.end(), word) != writing.end()) {
        addEntry(sql, static_cast<sqlite3_stmt*>(statement));
    }
    return 0;
}

int listenTo(sqlite3* connection, char**, const sqlite3_api_routines*)
{
    return sqlite3_trace_v2(connection, SQLITE_TRACE_STMT, &onStatement, nullptr);
}

} // namespace

StatementRecorder::StatementRecorder()
{
    const std::lock_guard<std::mutex> lock(mutex);
    recorded = {};
    textIndex.clear();
    recording = true;
    sqlite3_auto_extension(reinterpret_cast<void (*)()>(&listenTo));
}

StatementRecorder::~StatementRecorder()
{
    const std::lock_guard<std::mutex> lock(mutex);
    recording = false;
    sqlite3_cancel_auto_extension(reinterpret_cast<void (*)()>(&listenTo));
}

void StatementRecorder::clearStatements()
{
    const std::lock_guard<std::mutex> lock(mutex);
    recorded.entries.clear();
    recorded.texts.clear();
    textIndex.clear();
}

RecordedStatements StatementRecorder::takeStatements()
{
    const std::lock_guard<std::mutex> lock(mutex);
    textIndex.clear();
    return std::exchange(recorded, {});
}

} // namespace qarn_bench
