#include "PersonKeys.h"

#include <algorithm>

namespace qarn_data
{

void PersonKeys::reserve(int records)
{
    m_byId.reserve(records);
    m_bySerial.reserve(records);
    m_byName.reserve(records);
}

void PersonKeys::enter(const PersonInfo& info, qint64 record, qint64 person)
{
    m_byId.insert(info.id, record);
    enterSerialNum(info.serialNum, person);
    enterName(info.name, record);
}

void PersonKeys::leave(const PersonInfo& info, qint64 record)
{
    m_byId.remove(info.id);
    leaveName(info.name, record);
}

void PersonKeys::rename(const QString& from, const QString& to, qint64 record)
{
    if (from == to)
        return;
    leaveName(from, record);
    enterName(to, record);
}

void PersonKeys::enterSerialNum(const QString& serialNum, qint64 person)
{
    if (!serialNum.isEmpty())
        m_bySerial.insert(serialNum, person);
}

void PersonKeys::leaveSerialNum(const QString& serialNum, qint64 person)
{
    const auto known = m_bySerial.find(serialNum);
    if (known != m_bySerial.end() && *known == person)
        m_bySerial.erase(known);
}

void PersonKeys::enterName(const QString& name, qint64 record)
{
    const auto known = m_byName.find(name);
    if (known == m_byName.end()) {
        m_byName.insert(name, {record, {}});
        return;
    }
    QList<qint64>& others = known->others;
    const qint64 later = std::max(known->first, record);
    known->first = std::min(known->first, record);
    others.insert(std::upper_bound(others.begin(), others.end(), later), later);
}

void PersonKeys::leaveName(const QString& name, qint64 record)
{
    const auto namesakes = m_byName.find(name);
    QList<qint64>& others = namesakes->others;
    if (namesakes->first != record)
        others.erase(std::lower_bound(others.begin(), others.end(), record));
    else if (others.isEmpty())
        m_byName.erase(namesakes);
    else
        namesakes->first = others.takeFirst();
}

QSet<QString> PersonKeys::serialNums() const
{
    return QSet<QString>(m_bySerial.keyBegin(), m_bySerial.keyEnd());
}

QSet<QString> PersonKeys::names() const
{
    return QSet<QString>(m_byName.keyBegin(), m_byName.keyEnd());
}

} // namespace qarn_data
