#pragma once

#include <QString>

namespace qarn_bench
{

/// "sqlite3 -csv" of a plain table that already holds the exported texts.
class ExportPeer
{
public:
    /// Fills the table in `store` from a file that the register exported with all nine columns. No value in
    /// it may hold a comma or a quote.
    ExportPeer(const QString& store, const QString& exported);

    double exportAll(const QString& target) const; ///< milliseconds
    int rowCount() const;

private:
    const QString m_store;
};

int lineCount(const QString& path); ///< 0 for a file that cannot be read

} // namespace qarn_bench
