#include "RegisterModel.h"

#include "PersonComparison.h"

#include <qarn_data/PersonData.h>

using qarn_data::OrganizationInfo;
using qarn_data::PersonData;
using qarn_data::PersonInfo;

bool applyToStore(const Change& change)
{
    PersonData& store = PersonData::instance();
    switch (change.kind) {
    case Change::Add:
        return store.addPersons(change.persons);
    case Change::Update:
        return store.updatePerson(change.persons.first());
    case Change::Move:
        return store.changePersonsOrganization(change.persons, change.organizationId, false);
    case Change::Delete:
        return store.deletePersons(change.ids);
    case Change::AddOrganization:
        return store.addOrganization(change.organization);
    case Change::RenameOrganization:
        return store.updateOrganization(change.organization);
    case Change::ResetFields:
        store.resetCustomFields(change.fields);
        return true;
    }
    return false;
}

void RegisterModel::apply(const Change& change)
{
    switch (change.kind) {
    case Change::Add:
        for (const PersonInfo& person : change.persons) {
            m_order.append(person.id);
            m_persons.insert(person.id, person);
        }
        break;
    case Change::Update:
        update(change.persons.first());
        break;
    case Change::Move:
        for (const PersonInfo& person : change.persons)
            m_persons[person.id].organizationId = change.organizationId;
        break;
    case Change::Delete:
        for (const QString& id : change.ids) {
            m_order.removeOne(id);
            m_persons.remove(id);
        }
        break;
    case Change::AddOrganization:
    case Change::RenameOrganization:
        m_organizations.insert(change.organization.id, change.organization);
        break;
    case Change::ResetFields:
        m_fields = change.fields;
        break;
    }
}

// Values of fields that are not defined now survive.
void RegisterModel::update(const PersonInfo& person)
{
    const QMap<QString, QString> before = m_persons.value(person.id).customFields;
    PersonInfo& after = m_persons[person.id];
    after = person;
    for (auto value = before.begin(); value != before.end(); ++value) {
        if (!m_fields.contains(value.key()))
            after.customFields.insert(value.key(), value.value());
    }
}

PersonInfo RegisterModel::person(int index) const
{
    PersonInfo person = m_persons.value(m_order.at(index));
    for (const QString& name : person.customFields.keys()) {
        if (!m_fields.contains(name))
            person.customFields.remove(name);
    }
    return person;
}

QString RegisterModel::personDifference() const
{
    const qarn_data::PersonList stored = PersonData::instance().getAllPersons(false);
    for (int i = 0; i < stored.count() && i < personCount(); ++i) {
        const QString member = differingMember(stored.at(i), person(i));
        if (!member.isEmpty())
            return QStringLiteral("person %1 (%2) differs in %3").arg(i).arg(person(i).serialNum, member);
    }
    if (stored.count() != personCount())
        return QStringLiteral("%1 persons instead of %2").arg(stored.count()).arg(personCount());
    return {};
}

QString RegisterModel::organizationDifference() const
{
    const QList<OrganizationInfo> stored = PersonData::instance().getAllOrganizations();
    if (stored.count() != m_organizations.count() + 1)
        return QStringLiteral("%1 organizations instead of %2")
            .arg(stored.count())
            .arg(m_organizations.count() + 1);
    for (const OrganizationInfo& organization : stored) {
        if (organization.id == m_root)
            continue;
        const OrganizationInfo expected = m_organizations.value(organization.id);
        if (expected.name != organization.name || expected.parentId != organization.parentId)
            return QStringLiteral("organization %1 is \"%2\" instead of \"%3\"")
                .arg(organization.id, organization.name, expected.name);
    }
    return {};
}

QString RegisterModel::differenceToStore() const
{
    if (PersonData::instance().getCustomFields() != m_fields)
        return QStringLiteral("custom fields: %1")
            .arg(PersonData::instance().getCustomFields().join(QLatin1Char(',')));
    const QString organizations = organizationDifference();
    return organizations.isEmpty() ? personDifference() : organizations;
}
