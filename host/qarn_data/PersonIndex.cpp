#include "PersonIndex.h"

#include <algorithm>

namespace qarn_data
{

void PersonIndex::reserve(int records)
{
    m_infos.reserve(records);
    m_slots.reserve(records);
    if (PersonKeys* keys = m_keys.ifMade())
        keys->reserve(records);
    if (RecordsByPerson* byPerson = m_recordsByPerson.ifMade())
        byPerson->reserve(records);
}

void PersonIndex::prepare() const
{
    keys();
    recordsByPerson();
}

const PersonKeys& PersonIndex::keys() const
{
    return m_keys.get([this](PersonKeys& keys) {
        keys.reserve(m_slots.size());
        for (int i = 0; i < m_slots.size(); ++i)
            keys.enter(m_infos.at(i), m_slots.at(i).record, m_slots.at(i).person);
    });
}

const PersonIndex::RecordsByPerson& PersonIndex::recordsByPerson() const
{
    return m_recordsByPerson.get([this](RecordsByPerson& byPerson) {
        byPerson.reserve(m_slots.size());
        for (const Slot& entry : m_slots)
            byPerson.insert(entry.person, entry.record);
    });
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

void PersonIndex::put(StoredRecord record)
{
    const bool isNew = record.number > lastRecord();
    const int known = isNew ? -1 : position(record.number);
    if (known >= 0) {
        replace(known, std::move(record));
        return;
    }
    const Slot entry{record.number, record.person, organizationPlace(record.info.organizationId)};
    auto place = m_slots.end();
    if (!isNew)
        place = std::upper_bound(m_slots.begin(), m_slots.end(), record.number,
                                 [](qint64 number, const Slot& other) { return number < other.record; });
    insert(int(place - m_slots.begin()), entry, std::move(record.info));
}

void PersonIndex::insert(int position, const Slot& entry, PersonInfo info)
{
    info.organizationId = m_organizations.at(entry.organization);
    m_slots.insert(position, entry);
    // A blank first: the list would copy all members of what it is given.
    m_infos.insert(position, PersonInfo(PersonInfo::Blank::Record));
    m_infos[position] = std::move(info);
    enter(entry, m_infos.at(position));
}

void PersonIndex::replace(int position, StoredRecord record)
{
    const Slot old = m_slots.at(position);
    leave(old, m_infos.at(position));
    // What one record of a person says now, the others will say in a moment.
    if (PersonKeys* keys = m_keys.ifMade())
        keys->leaveSerialNum(m_infos.at(position).serialNum, old.person);
    if (RecordsByPerson* byPerson = m_recordsByPerson.ifMade())
        byPerson->remove(old.person, old.record);
    m_slots[position] = {record.number, record.person, organizationPlace(record.info.organizationId)};
    m_infos[position] = std::move(record.info);
    enter(m_slots.at(position), m_infos.at(position));
}

void PersonIndex::enter(const Slot& entry, const PersonInfo& info)
{
    m_lastPerson = std::max(m_lastPerson, entry.person);
    ++m_organizationCounts[entry.organization];
    if (PersonKeys* keys = m_keys.ifMade())
        keys->enter(info, entry.record, entry.person);
    if (RecordsByPerson* byPerson = m_recordsByPerson.ifMade())
        byPerson->insert(entry.person, entry.record);
}

// Takes a record out of the ways to find it. Whoever calls this sees to person and serial number.
void PersonIndex::leave(const Slot& entry, const PersonInfo& info)
{
    --m_organizationCounts[entry.organization];
    if (PersonKeys* keys = m_keys.ifMade())
        keys->leave(info, entry.record);
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
    if (PersonKeys* keys = m_keys.ifMade()) {
        for (const auto& serial : qAsConst(serials)) {
            if (!recordsByPerson().contains(serial.first))
                keys->leaveSerialNum(serial.second, serial.first);
        }
    }
    return ids;
}

// One pass over the lists, however many go.
void PersonIndex::dropMarked(const QVector<bool>& gone)
{
    RecordsByPerson* byPerson = m_recordsByPerson.ifMade();
    int kept = 0;
    for (int i = 0; i < gone.size(); ++i) {
        if (gone.at(i)) {
            if (byPerson != nullptr)
                byPerson->remove(m_slots.at(i).person, m_slots.at(i).record);
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
    PersonKeys* keys = m_keys.ifMade();
    const QVector<qint64> records = recordsOf(person);
    for (const qint64 number : records) {
        PersonInfo& known = m_infos[position(number)];
        const PersonInfo old = known;
        known = info;
        known.id = old.id;
        known.organizationId = old.organizationId;
        if (keys == nullptr)
            continue;
        keys->rename(old.name, info.name, number);
        if (old.serialNum != info.serialNum)
            keys->leaveSerialNum(old.serialNum, person);
        keys->enterSerialNum(info.serialNum, person);
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

const PersonInfo* PersonIndex::bySerialNum(const QString& serialNum) const
{
    const qint64 person = personWithSerialNum(serialNum);
    return person == 0 ? nullptr : record(recordsOf(person).first());
}

const PersonInfo* PersonIndex::byName(const QString& name) const
{
    return record(keys().firstNamed(name));
}

qint64 PersonIndex::personWithSerialNum(const QString& serialNum) const
{
    return keys().personWithSerialNum(serialNum);
}

qint64 PersonIndex::personOf(qint64 record) const
{
    const int place = position(record);
    return place < 0 ? 0 : m_slots.at(place).person;
}

QVector<qint64> PersonIndex::recordsOf(qint64 person) const
{
    QVector<qint64> records = recordsByPerson().values(person).toVector();
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

} // namespace qarn_data
