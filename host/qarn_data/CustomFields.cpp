#include "CustomFields.h"

namespace qarn_data
{

void CustomFields::define(const QStringList& names, const QSet<QString>& removed)
{
    m_names = names;
    m_removed = removed;
}

FieldValues CustomFields::show(qint64 person, const FieldValues& all)
{
    FieldValues shown = all;
    FieldValues hidden;
    for (auto value = all.cbegin(); value != all.cend(); ++value) {
        if (isRemoved(value.key())) {
            hidden.insert(value.key(), value.value());
            shown.remove(value.key());
        }
    }
    if (hidden.isEmpty())
        m_hidden.remove(person);
    else
        m_hidden.insert(person, hidden);
    return shown;
}

QStringList CustomFields::cleaned(const QStringList& names)
{
    QStringList cleaned;
    QSet<QString> known;
    for (const QString& name : names) {
        if (!name.trimmed().isEmpty() && !known.contains(name)) {
            known.insert(name);
            cleaned.append(name);
        }
    }
    return cleaned;
}

} // namespace qarn_data
