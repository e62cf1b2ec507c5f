#include "RegisterState.h"

#include "ChangeLog.h"
#include "CustomFieldTable.h"
#include "OrganizationTable.h"
#include "PersonTable.h"
#include "SqlStore.h"

namespace qarn_data
{

namespace
{

// The fields that the records of one person have in common, from the record that is known already: so
// that their bytes are held once.
void shareFields(PersonInfo& info, const PersonInfo& sibling)
{
    const QString id = info.id;
    const QString organizationId = info.organizationId;
    info = sibling;
    info.id = id;
    info.organizationId = organizationId;
}

bool sameFaces(const PersonInfo& a, const PersonInfo& b)
{
    return a.faceImage1 == b.faceImage1 && a.faceImage2 == b.faceImage2 && a.faceImage3 == b.faceImage3;
}

} // namespace

bool sameRecord(const PersonInfo& a, const PersonInfo& b)
{
    return a.id == b.id && a.organizationId == b.organizationId && a.serialNum == b.serialNum &&
           a.name == b.name && a.sex == b.sex && a.email == b.email && a.phoneNum == b.phoneNum &&
           a.validStartTime == b.validStartTime && a.validEndTime == b.validEndTime &&
           a.remarks == b.remarks && sameFaces(a, b) && a.birthDate == b.birthDate &&
           a.identityType == b.identityType && a.identityId == b.identityId && a.job == b.job &&
           a.employDate == b.employDate && a.address == b.address && a.customFields == b.customFields;
}

bool sameOrganization(const OrganizationInfo& a, const OrganizationInfo& b)
{
    return a.id == b.id && a.parentId == b.parentId && a.name == b.name;
}

bool RegisterState::loadAllButPersons(SqlStore& store)
{
    return ChangeLog(store).lastNumber(&lastChange) && loadFields(store) && loadDevices(store) &&
           OrganizationTable(store).readAll(
               [this](const StoredOrganization& organization) { organizations.put(organization); });
}

bool RegisterState::loadPersons(SqlStore& store)
{
    PersonTable table(store, organizations);
    int records = 0;
    const bool ok = table.count(&records);
    persons.reserve(records);
    return ok && table.readAll([this](StoredRecord&& record) { putRecord(std::move(record)); });
}

bool RegisterState::loadFirstPersons(SqlStore& store, int count)
{
    PersonTable table(store, organizations);
    NumberRange first;
    return table.firstRecords(count, &first) &&
           table.readRecords(first, [this](StoredRecord&& record) { putRecord(std::move(record)); });
}

bool RegisterState::loadFields(SqlStore& store)
{
    QStringList names;
    QSet<QString> removed;
    const bool ok = CustomFieldTable(store).read(&names, &removed);
    if (ok)
        redefineFields(names, removed);
    return ok;
}

bool RegisterState::loadDevices(SqlStore& store)
{
    QList<StoredDevice> read;
    const bool ok = DeviceTable(store).readAll(&read);
    if (ok)
        devices = read;
    return ok;
}

void RegisterState::putRecord(StoredRecord record)
{
    if (!record.info.customFields.isEmpty())
        record.info.customFields = fields.show(record.person, record.info.customFields);
    else
        fields.forget(record.person);
    if (record.person <= persons.lastPerson()) {
        const QVector<qint64> siblings = persons.recordsOf(record.person);
        for (const qint64 sibling : siblings) {
            PersonInfo shared = record.info;
            shareFields(shared, *persons.record(sibling));
            if (sibling != record.number && sameRecord(shared, record.info))
                record.info = shared;
        }
    }
    persons.put(std::move(record));
}

QStringList RegisterState::removeRecords(const QVector<qint64>& numbers)
{
    QVector<qint64> affected;
    for (const qint64 number : numbers)
        affected.append(persons.personOf(number));
    const QStringList ids = persons.remove(numbers);
    for (const qint64 person : qAsConst(affected)) {
        if (persons.recordsOf(person).isEmpty())
            fields.forget(person);
    }
    return ids;
}

void RegisterState::redefineFields(const QStringList& names, const QSet<QString>& removed)
{
    fields.define(names, removed);
    QHash<qint64, FieldValues> shown;
    const QVector<qint64> numbers = persons.recordNumbers();
    for (const qint64 number : numbers) {
        const qint64 person = persons.personOf(number);
        FieldValues all = persons.record(number)->customFields;
        const FieldValues hidden = fields.hidden(person);
        if (shown.contains(person) || (all.isEmpty() && hidden.isEmpty()))
            continue;
        for (auto value = hidden.cbegin(); value != hidden.cend(); ++value)
            all.insert(value.key(), value.value());
        shown.insert(person, fields.show(person, all));
    }
    persons.replaceCustomFields(shown);
}

} // namespace qarn_data
