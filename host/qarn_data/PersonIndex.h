#pragma once

#include "Lazily.h"
#include "PersonKeys.h"

#include <QHash>
#include <QStringList>
#include <QVector>

namespace qarn_data
{

/// A record as the store knows it: numbers grow in the order of addition.
struct StoredRecord {
    qint64 number = 0;
    qint64 person = 0; ///< records of one person share it
    PersonInfo info{PersonInfo::Blank::Record};
};

/// All records in the order in which they were added, and the ways to find them, which are made when first
/// needed: a page can be shown before. Handing out the whole list costs nothing; texts and images are shared,
/// never copied. Several threads may read at a time; Register sees to it that a change is alone.
class PersonIndex
{
public:
    void reserve(int records);
    /// Makes the ways to find a record now, which whoever needs them first would wait for.
    void prepare() const;
    /// `record.number` is greater than every number before, or is a known one, which is replaced.
    void put(StoredRecord record);
    /// Numbers that are not known are ignored. The removed records' ids.
    QStringList remove(const QVector<qint64>& numbers);
    /// Gives all records of a person the fields of `info`, except id and organization.
    void updatePerson(qint64 person, const PersonInfo& info);
    void setOrganization(qint64 record, const QString& organizationId);
    /// Changes the custom fields of every person, by person number.
    void replaceCustomFields(const QHash<qint64, QMap<QString, QString>>& values);

    int count() const { return m_infos.count(); }
    qint64 lastRecord() const { return m_slots.isEmpty() ? 0 : m_slots.last().record; }
    qint64 lastPerson() const { return m_lastPerson; } ///< the greatest number that was ever held

    QList<PersonInfo> all() const { return m_infos; }
    QList<PersonInfo> inOrganizations(const QStringList& organizationIds) const;
    bool anyIn(const QStringList& organizationIds) const;

    const PersonInfo* record(qint64 number) const; ///< null when unknown, as for the next three
    const PersonInfo* bySerialNum(const QString& serialNum) const;
    const PersonInfo* byName(const QString& name) const;
    qint64 recordNumber(const QString& id) const { return keys().record(id); } ///< 0 when unknown
    qint64 personOf(qint64 record) const;                                      ///< 0 when unknown
    qint64 personWithSerialNum(const QString& serialNum) const;                ///< 0 when unknown
    QVector<qint64> recordsOf(qint64 person) const;
    QVector<qint64> recordNumbers() const { return recordNumbersBetween(0, lastRecord()); }
    QVector<qint64> recordNumbersBetween(qint64 first, qint64 last) const;

    QSet<QString> serialNums() const { return keys().serialNums(); }
    QSet<QString> names() const { return keys().names(); }

private:
    struct Slot {
        qint64 record;
        qint64 person;
        int organization; ///< place in m_organizations
    };
    using RecordsByPerson = QMultiHash<qint64, qint64>;

    const PersonKeys& keys() const;
    const RecordsByPerson& recordsByPerson() const;

    int position(qint64 record) const; ///< in m_slots and m_infos; -1 when unknown
    int organizationPlace(const QString& organizationId);
    QVector<bool> chosenPlaces(const QStringList& organizationIds, int* records) const;
    void insert(int position, const Slot& entry, PersonInfo info);
    void replace(int position, StoredRecord record);
    void enter(const Slot& entry, const PersonInfo& info);
    void leave(const Slot& entry, const PersonInfo& info);
    void dropMarked(const QVector<bool>& gone);

    // Side by side, one element a record, sorted by its number.
    QList<PersonInfo> m_infos;
    QVector<Slot> m_slots;

    qint64 m_lastPerson = 0;
    Lazily<PersonKeys> m_keys;
    Lazily<RecordsByPerson> m_recordsByPerson;
    QHash<QString, int> m_organizationPlaces;
    QVector<QString> m_organizations;
    QVector<int> m_organizationCounts;
};

} // namespace qarn_data
