#include "support/StatementReplay.h"

namespace qarn_bench
{

namespace
{

struct Binder {
    sqlite3_stmt* statement;
    int index;

    void operator()(std::monostate) const { sqlite3_bind_null(statement, index); }
    void operator()(std::int64_t value) const { sqlite3_bind_int64(statement, index, value); }
    void operator()(double value) const { sqlite3_bind_double(statement, index, value); }
    void operator()(const std::string& value) const
    {
        sqlite3_bind_text(statement, index, value.data(), static_cast<int>(value.size()), SQLITE_STATIC);
    }
    void operator()(const SqlBlob& value) const
    {
        sqlite3_bind_blob(statement, index, value.bytes.data(), static_cast<int>(value.bytes.size()),
                          SQLITE_STATIC);
    }
};

} // namespace

StatementReplay::StatementReplay(const QString& path, const RecordedStatements& recorded)
    : m_recorded(recorded),
      m_connection(openSqlite(path))
{
    for (const std::string& setting : recorded.settings)
        execute(m_connection.get(), setting);
    for (const std::string& text : recorded.texts)
        m_statements.push_back(prepare(m_connection.get(), text));
}

void StatementReplay::run()
{
    for (const RecordedStatements::Entry& entry : m_recorded.entries)
        runEntry(entry);
}

void StatementReplay::runEntry(const RecordedStatements::Entry& entry)
{
    sqlite3_stmt* statement = m_statements[entry.text].get();
    for (std::size_t i = 0; i < entry.values.size(); ++i)
        std::visit(Binder{statement, static_cast<int>(i) + 1}, entry.values[i]);
    int result = SQLITE_ROW;
    while (result == SQLITE_ROW)
        result = sqlite3_step(statement);
    if (result != SQLITE_DONE)
        qFatal("%s: %s", m_recorded.texts[entry.text].c_str(), sqlite3_errmsg(m_connection.get()));
    sqlite3_reset(statement);
}

void requireSameRows(const QString& store, const QString& other)
{
    const SqliteConnection connection = openSqlite(store);
    execute(connection.get(), "ATTACH '" + other.toStdString() + "' AS other");
    for (const std::string& table : tableNames(connection.get())) {
        for (const std::string& difference :
             {"SELECT * FROM main." + table + " EXCEPT SELECT * FROM other." + table,
              "SELECT * FROM other." + table + " EXCEPT SELECT * FROM main." + table}) {
            if (touchAll(prepare(connection.get(), difference).get()) > 0)
                qFatal("the peer's table %s differs", table.c_str());
        }
    }
}

} // namespace qarn_bench
