#pragma once

#include <QHash>
#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>

namespace qarn_data
{

using FieldValues = QMap<QString, QString>; ///< value by field name

/// The defined custom fields, and the values that wait for their name to come back: those of a name that
/// was taken out of the list are kept but not shown.
class CustomFields
{
public:
    const QStringList& names() const { return m_names; } ///< in display order
    bool isRemoved(const QString& name) const { return m_removed.contains(name); }
    const QSet<QString>& removedNames() const { return m_removed; }
    void define(const QStringList& names, const QSet<QString>& removed);

    /// What of all values of a person is shown; the rest is kept for the person.
    FieldValues show(qint64 person, const FieldValues& all);
    FieldValues hidden(qint64 person) const { return m_hidden.value(person); }
    void forget(qint64 person) { m_hidden.remove(person); }

    /// No blank and no double names, otherwise as given.
    static QStringList cleaned(const QStringList& names);

private:
    QStringList m_names;
    QSet<QString> m_removed;
    QHash<qint64, FieldValues> m_hidden; ///< by person number
};

} // namespace qarn_data
