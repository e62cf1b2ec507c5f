#include "PersonIndex.h"

#include <algorithm>

namespace qarn_data
{

void PersonIndex::reserve(int records)
{
    m_infos.reserve(records);
    m_slots.reserve(records);
    m_records.reserve(records);
    m_byId.reserve(records);
    m_bySerial.reserve(records);
    m_byName.reserve(records);
}

int PersonIndex::position(qint64 record) const
{
    const auto found =
        std::lower_bound(m_slots.cbegin(), m_slots.cend(), record,
                         [](const Slot& entry, qint64 number) { return entry.record < number; });
    return found != m_slots.cend() && found->record == record ? int(found - m_slots.cbegin()) : -1;
}

int PersonIndex::organizationPlace(const QString& organizationId)
{
    const auto found = m_organizationPlaces.constFind(organizationId);
    if (found != m_organizationPlaces.constEnd())
        return *found;
    m_organizationPlaces.insert(organizationId, m_organizations.size());
    m_organizations.append(organizationId);
    m_organizationCounts.append(0);
    return m_organizations.size() - 1;
}

void PersonIndex::put(const StoredRecord& record)
{
    const int known = record.number <= lastRecord() ? position(record.number) : -1;
    if (known >= 0) {
        replace(known, record);
        return;
    }
    const Slot entry{record.number, record.person, organizationPlace(record.info.organizationId)};
    const auto after =
        std::upper_bound(m_slots.begin(), m_slots.end(), record.number,
                         [](qint64 number, const Slot& other) { return number < other.record; });
    const int place = int(after - m_slots.begin());
    m_slots.insert(place, entry);
    m_infos.insert(place, record.info);
    m_infos[place].organizationId = m_organizations.at(entry.organization);
    enter(entry, record.info);
}

void PersonIndex::replace(int position, const StoredRecord& record)
{
    const Slot old = m_slots.at(position);
    const PersonInfo oldInfo = m_infos.at(position);
    leave(old, oldInfo);
    // What one record of a person says now, the others will say in a moment.
    if (m_bySerial.value(oldInfo.serialNum) == old.person)
        m_bySerial.remove(oldInfo.serialNum);
    m_records.remove(old.person, old.record);
    m_slots[position] = {record.number, record.person, organizationPlace(record.info.organizationId)};
    m_infos[position] = record.info;
    enter(m_slots.at(position), record.info);
}

void PersonIndex::enter(const Slot& entry, const PersonInfo& info)
{
    m_records.insert(entry.person, entry.record);
    m_lastPerson = std::max(m_lastPerson, entry.person);
    m_byId.insert(info.id, entry.record);
    if (!info.serialNum.isEmpty())
        m_bySerial.insert(info.serialNum, entry.person);
    enterName(info.name, entry.record);
    ++m_organizationCounts[entry.organization];
}

void PersonIndex::enterName(const QString& name, qint64 record)
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

// Takes a record out of the ways to find it. Whoever calls this sees to members and serial number.
void PersonIndex::leave(const Slot& entry, const PersonInfo& info)
{
    m_byId.remove(info.id);
    --m_organizationCounts[entry.organization];
    leaveName(info.name, entry.record);
}

void PersonIndex::leaveName(const QString& name, qint64 record)
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

void PersonIndex::leaveSerialNum(qint64 person, const QString& serialNum)
{
    const auto known = m_bySerial.find(serialNum);
    if (known != m_bySerial.end() && *known == person && !m_records.contains(person))
        m_bySerial.erase(known);
}

QStringList PersonIndex::remove(const QVector<qint64>& numbers)
{
    QStringList ids;
    QVector<bool> gone(m_slots.size(), false);
    QVector<QPair<qint64, QString>> serials;
    for (const qint64 number : numbers) {
        const int place = position(number);
        if (place < 0 || gone.at(place))
            continue;
        gone[place] = true;
        const PersonInfo& info = m_infos.at(place);
        leave(m_slots.at(place), info);
        ids.append(info.id);
        serials.append({m_slots.at(place).person, info.serialNum});
    }
    if (!ids.isEmpty())
        dropMarked(gone);
    for (const auto& serial : qAsConst(serials))
        leaveSerialNum(serial.first, serial.second);
    return ids;
}

// One pass over the lists, however many go.
void PersonIndex::dropMarked(const QVector<bool>& gone)
{
    int kept = 0;
    for (int i = 0; i < gone.size(); ++i) {
        if (gone.at(i)) {
            m_records.remove(m_slots.at(i).person, m_slots.at(i).record);
            continue;
        }
        if (kept != i) {
            m_slots[kept] = m_slots.at(i);
            m_infos.swapItemsAt(kept, i);
        }
        ++kept;
    }
    m_slots.resize(kept);
    m_infos.erase(m_infos.begin() + kept, m_infos.end());
}

void PersonIndex::updatePerson(qint64 person, const PersonInfo& info)
{
    const QVector<qint64> records = recordsOf(person);
    for (const qint64 number : records) {
        PersonInfo& known = m_infos[position(number)];
        const PersonInfo old = known;
        if (old.name != info.name) {
            leaveName(old.name, number);
            enterName(info.name, number);
        }
        known = info;
        known.id = old.id;
        known.organizationId = old.organizationId;
        if (old.serialNum != info.serialNum && m_bySerial.value(old.serialNum) == person)
            m_bySerial.remove(old.serialNum);
        if (!info.serialNum.isEmpty())
            m_bySerial.insert(info.serialNum, person);
    }
}

void PersonIndex::setOrganization(qint64 record, const QString& organizationId)
{
    const int place = position(record);
    if (place < 0)
        return;
    Slot& entry = m_slots[place];
    --m_organizationCounts[entry.organization];
    entry.organization = organizationPlace(organizationId);
    ++m_organizationCounts[entry.organization];
    m_infos[place].organizationId = m_organizations.at(entry.organization);
}

void PersonIndex::replaceCustomFields(const QHash<qint64, QMap<QString, QString>>& values)
{
    for (int i = 0; i < m_slots.size(); ++i) {
        const QMap<QString, QString> fields = values.value(m_slots.at(i).person);
        if (m_infos.at(i).customFields != fields)
            m_infos[i].customFields = fields;
    }
}

QVector<bool> PersonIndex::chosenPlaces(const QStringList& organizationIds, int* records) const
{
    QVector<bool> chosen(m_organizations.size(), false);
    for (const QString& id : organizationIds) {
        const int place = m_organizationPlaces.value(id, -1);
        if (place >= 0 && !chosen.at(place)) {
            chosen[place] = true;
            *records += m_organizationCounts.at(place);
        }
    }
    return chosen;
}

QList<PersonInfo> PersonIndex::inOrganizations(const QStringList& organizationIds) const
{
    int records = 0;
    const QVector<bool> chosen = chosenPlaces(organizationIds, &records);
    if (records == m_infos.size())
        return m_infos;
    QList<PersonInfo> found;
    found.reserve(records);
    for (int i = 0; i < m_slots.size() && found.size() < records; ++i) {
        if (chosen.at(m_slots.at(i).organization))
            found.append(m_infos.at(i));
    }
    return found;
}

bool PersonIndex::anyIn(const QStringList& organizationIds) const
{
    int records = 0;
    chosenPlaces(organizationIds, &records);
    return records > 0;
}

const PersonInfo* PersonIndex::record(qint64 number) const
{
    const int place = position(number);
    return place < 0 ? nullptr : &m_infos.at(place);
}

const PersonInfo* PersonIndex::byId(const QString& id) const
{
    return record(m_byId.value(id));
}

const PersonInfo* PersonIndex::bySerialNum(const QString& serialNum) const
{
    const qint64 person = m_bySerial.value(serialNum);
    return person == 0 ? nullptr : record(recordsOf(person).first());
}

const PersonInfo* PersonIndex::byName(const QString& name) const
{
    const auto found = m_byName.constFind(name);
    return found == m_byName.constEnd() ? nullptr : record(found->first);
}

qint64 PersonIndex::recordNumber(const QString& id) const
{
    return m_byId.value(id);
}

qint64 PersonIndex::personOf(qint64 record) const
{
    const int place = position(record);
    return place < 0 ? 0 : m_slots.at(place).person;
}

QVector<qint64> PersonIndex::recordsOf(qint64 person) const
{
    QVector<qint64> records;
    for (auto entry = m_records.constFind(person); entry != m_records.cend() && entry.key() == person;
         ++entry)
        records.append(*entry);
    std::sort(records.begin(), records.end());
    return records;
}

QVector<qint64> PersonIndex::recordNumbersBetween(qint64 first, qint64 last) const
{
    QVector<qint64> numbers;
    auto entry = std::lower_bound(m_slots.cbegin(), m_slots.cend(), first,
                                  [](const Slot& other, qint64 number) { return other.record < number; });
    for (; entry != m_slots.cend() && entry->record <= last; ++entry)
        numbers.append(entry->record);
    return numbers;
}

QSet<QString> PersonIndex::serialNums() const
{
    return QSet<QString>(m_bySerial.keyBegin(), m_bySerial.keyEnd());
}

QSet<QString> PersonIndex::names() const
{
    return QSet<QString>(m_byName.keyBegin(), m_byName.keyEnd());
}

} // namespace qarn_data
