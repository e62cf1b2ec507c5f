#include "Differences.h"

#include "Announcing.h"

namespace qarn_data
{

namespace
{

void appendOrganizations(Announcements& due, const RegisterState& before, const RegisterState& after)
{
    QStringList gone;
    const QList<OrganizationInfo> now = after.organizations.all();
    for (const OrganizationInfo& info : now) {
        if (!before.organizations.contains(info.id))
            due.append(organizationAdded(info));
        else if (!sameOrganization(info, before.organizations.info(info.id)))
            due.append(organizationUpdated(info));
    }
    const QList<OrganizationInfo> then = before.organizations.all();
    for (const OrganizationInfo& info : then) {
        if (!after.organizations.contains(info.id))
            gone.append(info.id);
    }
    if (!gone.isEmpty())
        due.append(organizationsDeleted(gone));
}

QStringList idsOfPerson(const RegisterState& state, qint64 person)
{
    QStringList ids;
    const QVector<qint64> records = state.persons.recordsOf(person);
    for (const qint64 record : records)
        ids.append(state.persons.record(record)->id);
    return ids;
}

void appendRecords(Announcements& due, const RegisterState& before, const RegisterState& after)
{
    QStringList gone;
    const QVector<qint64> then = before.persons.recordNumbers();
    for (const qint64 number : then) {
        const QString id = before.persons.record(number)->id;
        if (after.persons.recordNumber(id) != number)
            gone.append(id);
    }
    if (!gone.isEmpty())
        due.append(personsDeleted(gone));
    PersonList added;
    QSet<qint64> updated;
    const QVector<qint64> now = after.persons.recordNumbers();
    for (const qint64 number : now) {
        const PersonInfo& info = *after.persons.record(number);
        const qint64 person = after.persons.personOf(number);
        if (before.persons.recordNumber(info.id) != number) {
            added.append(info);
        } else if (!updated.contains(person) && !sameRecord(info, *before.persons.record(number))) {
            updated.insert(person);
            due.append(personUpdated(info, idsOfPerson(after, person)));
        }
    }
    if (!added.isEmpty())
        due.append(personsAdded(added));
}

} // namespace

Announcements differences(const RegisterState& before, const RegisterState& after)
{
    Announcements due;
    appendOrganizations(due, before, after);
    if (before.fields.names() != after.fields.names())
        due.append(fieldsReset(after.fields.names()));
    appendRecords(due, before, after);
    due.append(devicesChanged());
    return due;
}

} // namespace qarn_data
