#pragma once

#include <QSet>
#include <QStringList>

namespace qarn_data
{

class SqlStore;

/// The names of custom fields in the database. A name that is taken out of the list stays known as removed.
class CustomFieldTable
{
public:
    explicit CustomFieldTable(SqlStore& store) : m_store(store) {}

    bool read(QStringList* names, QSet<QString>* removed);
    bool replace(const QStringList& names);

private:
    SqlStore& m_store;
};

} // namespace qarn_data
