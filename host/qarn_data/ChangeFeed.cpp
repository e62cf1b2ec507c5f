#include "ChangeFeed.h"

#include "Announcing.h"
#include "Differences.h"
#include "NumberRanges.h"
#include "OrganizationTable.h"
#include "PersonTable.h"
#include "SqlStore.h"

namespace qarn_data
{

bool ChangeFeed::takeIn(Announcements& announcements)
{
    QVector<Change> changes;
    bool ok = ChangeLog(m_store).readAfter(m_state.lastChange, &changes);
    if (ok && !changes.isEmpty() && changes.first().number != m_state.lastChange + 1) {
        ok = reload();
    } else {
        for (int i = 0; ok && i < changes.size(); ++i) {
            ok = take(changes.at(i));
            if (ok)
                m_state.lastChange = changes.at(i).number;
        }
    }
    announcements += m_due;
    return ok;
}

bool ChangeFeed::take(const Change& change)
{
    switch (change.kind) {
    case ChangeKind::PersonsAdded: {
        PersonList records;
        const bool ok = takeRecords(change.subject, &records);
        if (!records.isEmpty())
            m_due.append(personsAdded(records));
        return ok;
    }
    case ChangeKind::PersonUpdated:
        return takeUpdate(change.subject.toLongLong());
    case ChangeKind::PersonsDeleted:
        takeDeletion(change.subject);
        return true;
    case ChangeKind::PersonsMoved:
        return takeMove(change.subject);
    case ChangeKind::OrganizationsAdded:
        return takeOrganizations(change.subject, true);
    case ChangeKind::OrganizationUpdated:
        return takeOrganizations(change.subject, false);
    case ChangeKind::OrganizationsDeleted:
        takeOrganizationDeletion(change.subject);
        return true;
    case ChangeKind::CustomFieldsReset:
        return takeFields();
    case ChangeKind::DevicesChanged:
        return takeDevices();
    }
    return true; // of a kind that this version does not know and hence does not show
}

bool ChangeFeed::takeRecords(const QString& subject, PersonList* records)
{
    PersonTable table(m_store, m_state.organizations);
    QVector<StoredRecord> read;
    const QVector<NumberRange> ranges = fromRanges(subject);
    for (const NumberRange& range : ranges) {
        if (!table.readRecords(range, [&read](StoredRecord&& record) { read.append(std::move(record)); }))
            return false;
    }
    const QWriteLocker locker(&m_lock);
    for (const StoredRecord& record : qAsConst(read)) {
        m_state.putRecord(record);
        records->append(*m_state.persons.record(record.number));
    }
    return true;
}

bool ChangeFeed::takeUpdate(qint64 record)
{
    const qint64 person = m_state.persons.personOf(record);
    QVector<StoredRecord> read;
    if (!PersonTable(m_store, m_state.organizations).readPerson(person, [&read](StoredRecord&& stored) {
            read.append(std::move(stored));
        }))
        return false;
    QStringList ids;
    const PersonInfo* info = nullptr;
    {
        const QWriteLocker locker(&m_lock);
        for (const StoredRecord& stored : qAsConst(read)) {
            m_state.putRecord(stored);
            ids.append(stored.info.id);
        }
        info = m_state.persons.record(record);
    }
    if (!ids.isEmpty() && info != nullptr)
        m_due.append(personUpdated(*info, ids));
    return true;
}

QStringList ChangeFeed::removeRecords(const QString& subject)
{
    QVector<qint64> numbers;
    const QVector<NumberRange> ranges = fromRanges(subject);
    for (const NumberRange& range : ranges)
        numbers += m_state.persons.recordNumbersBetween(range.first, range.last);
    const QWriteLocker locker(&m_lock);
    return m_state.removeRecords(numbers);
}

void ChangeFeed::takeDeletion(const QString& subject)
{
    const QStringList ids = removeRecords(subject);
    if (!ids.isEmpty())
        m_due.append(personsDeleted(ids));
}

bool ChangeFeed::takeMove(const QString& subject)
{
    removeRecords(subject.section(u';', 1, 1));
    PersonList records;
    const bool ok = takeRecords(subject.section(u';', 0, 0), &records);
    if (!records.isEmpty())
        m_due.append(personsAdded(records));
    return ok;
}

bool ChangeFeed::takeOrganizations(const QString& subject, bool added)
{
    const QVector<NumberRange> ranges = fromRanges(subject);
    for (const NumberRange& range : ranges) {
        for (qint64 number = range.first; number <= range.last; ++number) {
            StoredOrganization organization;
            if (!OrganizationTable(m_store).readOne(number, &organization))
                return false;
            if (organization.number == 0)
                continue; // deleted since
            const QWriteLocker locker(&m_lock);
            m_state.organizations.put(organization);
            m_due.append(added ? organizationAdded(organization.info)
                               : organizationUpdated(organization.info));
        }
    }
    return true;
}

void ChangeFeed::takeOrganizationDeletion(const QString& subject)
{
    QStringList ids;
    const QWriteLocker locker(&m_lock);
    const QVector<NumberRange> ranges = fromRanges(subject);
    for (const NumberRange& range : ranges) {
        for (qint64 number = range.first; number <= range.last; ++number) {
            const QString id = m_state.organizations.info(number).id;
            if (!id.isEmpty())
                ids.append(id);
            m_state.organizations.remove(number);
        }
    }
    if (!ids.isEmpty())
        m_due.append(organizationsDeleted(ids));
}

bool ChangeFeed::takeFields()
{
    const QWriteLocker locker(&m_lock);
    const bool ok = m_state.loadFields(m_store);
    if (ok)
        m_due.append(fieldsReset(m_state.fields.names()));
    return ok;
}

bool ChangeFeed::takeDevices()
{
    QList<StoredDevice> devices;
    if (!DeviceTable(m_store).readAll(&devices))
        return false;
    const QWriteLocker locker(&m_lock);
    m_state.devices = devices;
    m_due.append(devicesChanged());
    return true;
}

// After a long absence, when the log does not reach back any more.
bool ChangeFeed::reload()
{
    RegisterState fresh;
    if (!fresh.load(m_store))
        return false;
    {
        const QWriteLocker locker(&m_lock);
        std::swap(m_state, fresh);
    }
    m_due += differences(fresh, m_state);
    return true;
}

} // namespace qarn_data
