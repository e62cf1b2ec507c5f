#pragma once

#include "support/Sqlite.h"

namespace qarn_bench
{

/// How many valid persons have a fragment in their names, and the first page of them, through SQLite's C
/// interface on a register's own file.
class PageQueryPeer
{
public:
    explicit PageQueryPeer(const QString& store);

    int query(const std::string& fragment); ///< the number of all, after the page was read

private:
    SqliteConnection m_connection;
    SqliteStatement m_count;
    SqliteStatement m_page;
};

} // namespace qarn_bench
