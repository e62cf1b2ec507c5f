#include "support/PageQueryPeer.h"

#include <QDateTime>

namespace qarn_bench
{

namespace
{

const std::string Matching = " FROM records JOIN persons ON persons.number = records.person"
                             " WHERE persons.name LIKE ?1 AND valid_start <= ?2 AND valid_end >= ?2";

} // namespace

PageQueryPeer::PageQueryPeer(const QString& store) : m_connection(openSqlite(store))
{
    execute(m_connection.get(), "PRAGMA case_sensitive_like = ON"); // so that both find the same persons
    m_count = prepare(m_connection.get(), "SELECT count(*)" + Matching);
    m_page = prepare(m_connection.get(),
                     "SELECT records.*, persons.*" + Matching + " ORDER BY records.number LIMIT 50");
}

int PageQueryPeer::query(const std::string& fragment)
{
    const std::string pattern = '%' + fragment + '%';
    for (sqlite3_stmt* statement : {m_count.get(), m_page.get()}) {
        sqlite3_reset(statement);
        sqlite3_bind_text(statement, 1, pattern.c_str(), -1, SQLITE_TRANSIENT);
        sqlite3_bind_int64(statement, 2, QDateTime::currentMSecsSinceEpoch());
    }
    sqlite3_step(m_count.get());
    const int total = sqlite3_column_int(m_count.get(), 0);
    touchAll(m_page.get());
    return total;
}

} // namespace qarn_bench
