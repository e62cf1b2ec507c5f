#pragma once

#include <qarn_data/PersonInfo.h>

#include <QHash>
#include <QSet>

namespace qarn_data
{

/// The ways from a text to a record: its id, its person's serial number and name.
class PersonKeys
{
public:
    void reserve(int records);
    void enter(const PersonInfo& info, qint64 record, qint64 person);
    /// Takes id and name of a record out. Whoever calls this sees to the serial number.
    void leave(const PersonInfo& info, qint64 record);
    void rename(const QString& from, const QString& to, qint64 record);
    void enterSerialNum(const QString& serialNum, qint64 person);
    void leaveSerialNum(const QString& serialNum, qint64 person); ///< unless it is another's by now

    qint64 record(const QString& id) const { return m_byId.value(id); } ///< 0 when unknown, as for the others
    qint64 personWithSerialNum(const QString& serialNum) const { return m_bySerial.value(serialNum); }
    qint64 firstNamed(const QString& name) const { return m_byName.value(name).first; }

    QSet<QString> serialNums() const;
    QSet<QString> names() const;

private:
    struct Namesakes {
        qint64 first = 0;     ///< record
        QList<qint64> others; ///< records, sorted; empty for most names
    };

    void enterName(const QString& name, qint64 record);
    void leaveName(const QString& name, qint64 record);

    QHash<QString, qint64> m_byId;
    QHash<QString, qint64> m_bySerial; ///< person
    QHash<QString, Namesakes> m_byName;
};

} // namespace qarn_data
