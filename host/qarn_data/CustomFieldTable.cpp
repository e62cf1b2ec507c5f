#include "CustomFieldTable.h"

#include "SqlStore.h"

namespace qarn_data
{

bool CustomFieldTable::read(QStringList* names, QSet<QString>* removed)
{
    return m_store.forEachRow("SELECT name, position FROM custom_fields ORDER BY position", {},
                              [=](const Row& row) {
                                  if (row.isNull(1))
                                      removed->insert(row.text(0));
                                  else
                                      names->append(row.text(0));
                              });
}

bool CustomFieldTable::replace(const QStringList& names)
{
    if (!m_store.run("UPDATE custom_fields SET position = NULL"))
        return false;
    for (int i = 0; i < names.size(); ++i) {
        if (!m_store.run("INSERT INTO custom_fields (name, position) VALUES (?, ?)"
                         " ON CONFLICT (name) DO UPDATE SET position = excluded.position",
                         names.at(i), i))
            return false;
    }
    return true;
}

} // namespace qarn_data
