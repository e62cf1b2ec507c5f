#include <qarn_data/PersonData.h>

#include "OrganizationWriter.h"
#include "PersonWriter.h"
#include "Register.h"

namespace qarn_data
{

namespace
{

PersonInfo withoutImages(PersonInfo info)
{
    info.faceImage1.clear();
    info.faceImage2.clear();
    info.faceImage3.clear();
    return info;
}

PersonList withoutImages(const PersonList& persons)
{
    PersonList bare;
    bare.reserve(persons.size());
    for (const PersonInfo& info : persons)
        bare.append(withoutImages(info));
    return bare;
}

PersonInfo found(const PersonInfo* info, bool bare)
{
    if (info == nullptr)
        return PersonInfo();
    return bare ? withoutImages(*info) : *info;
}

template <class Read>
auto read(Read read)
{
    return Register::instance().read(read);
}

template <class Read>
auto readPersons(Read read)
{
    return Register::instance().readPersons(read);
}

} // namespace

PersonData& PersonData::instance()
{
    static PersonData personData;
    return personData;
}

QList<PersonInfo> PersonData::getAllPersons(bool withoutImages) const
{
    const PersonList all = readPersons([](const PersonIndex& persons) { return persons.all(); });
    return withoutImages ? qarn_data::withoutImages(all) : all;
}

bool PersonData::getFirstPersons(int count, QList<PersonInfo>* persons, int* total) const
{
    return Register::instance().readFirstPersons(count, persons, total);
}

QList<PersonInfo> PersonData::getPersons(const QStringList& organizationIds, bool withoutImages) const
{
    const PersonList found =
        readPersons([&](const PersonIndex& persons) { return persons.inOrganizations(organizationIds); });
    return withoutImages ? qarn_data::withoutImages(found) : found;
}

PersonInfo PersonData::getPersonBySerialNum(const QString& serialNum, bool withoutImages) const
{
    return readPersons(
        [&](const PersonIndex& persons) { return found(persons.bySerialNum(serialNum), withoutImages); });
}

PersonInfo PersonData::getPersonByName(const QString& name, bool withoutImages) const
{
    return readPersons(
        [&](const PersonIndex& persons) { return found(persons.byName(name), withoutImages); });
}

QSet<QString> PersonData::getAllPersonsSerialNum() const
{
    return readPersons([](const PersonIndex& persons) { return persons.serialNums(); });
}

QSet<QString> PersonData::getAllPersonsName() const
{
    return readPersons([](const PersonIndex& persons) { return persons.names(); });
}

bool PersonData::isPersonSerialNumExist(const QString& serialNum) const
{
    return readPersons([&](const PersonIndex& persons) { return persons.bySerialNum(serialNum) != nullptr; });
}

bool PersonData::addPerson(const PersonInfo& person)
{
    return addPersons({person});
}

bool PersonData::addPersons(const QList<PersonInfo>& persons)
{
    return qarn_data::addPersons(persons);
}

bool PersonData::updatePerson(const PersonInfo& person)
{
    return qarn_data::updatePerson(person);
}

bool PersonData::deletePersons(const QStringList& ids)
{
    return qarn_data::deletePersons(ids);
}

bool PersonData::changePersonsOrganization(const QList<PersonInfo>& persons, const QString& organizationId,
                                           bool retain)
{
    return movePersons(persons, organizationId, retain);
}

QString PersonData::getOrganizationName(const QString& organizationId) const
{
    return read([&](const RegisterState& state) { return state.organizations.info(organizationId).name; });
}

QString PersonData::getOrganizationNameRecursively(const QString& organizationId) const
{
    return getHierarchicalOrganizationNames(organizationId).join(QStringLiteral(" > "));
}

QStringList PersonData::getHierarchicalOrganizationNames(const QString& organizationId) const
{
    return read([&](const RegisterState& state) { return state.organizations.names(organizationId); });
}

QString PersonData::createOrganization(const QStringList& path)
{
    return qarn_data::createOrganization(path);
}

bool PersonData::addOrganization(const OrganizationInfo& organization)
{
    return qarn_data::addOrganization(organization);
}

bool PersonData::updateOrganization(const OrganizationInfo& organization)
{
    return qarn_data::updateOrganization(organization);
}

bool PersonData::deleteOrganizations(const QStringList& ids)
{
    return qarn_data::deleteOrganizations(ids);
}

bool PersonData::isRootOrganization(const QString& organizationId) const
{
    return !organizationId.isEmpty() && organizationId == getRootOrganizationId();
}

bool PersonData::isOrganizationsHasPersons(const QStringList& ids) const
{
    return readPersons([&](const PersonIndex& persons) { return persons.anyIn(ids); });
}

QList<OrganizationInfo> PersonData::getAllOrganizations() const
{
    return read([](const RegisterState& state) { return state.organizations.all(); });
}

QString PersonData::getRootOrganizationId() const
{
    return read([](const RegisterState& state) { return state.organizations.rootId(); });
}

QStringList PersonData::getCustomFields() const
{
    return read([](const RegisterState& state) { return state.fields.names(); });
}

void PersonData::resetCustomFields(const QStringList& names)
{
    qarn_data::resetCustomFields(names);
}

} // namespace qarn_data
