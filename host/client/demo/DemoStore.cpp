#include "demo/DemoStore.h"

#include "demo/DemoPersons.h"

#include <qarn_data/PersonData.h>

#include <QDir>
#include <QStandardPaths>

using qarn_data::PersonData;

namespace
{
constexpr int personCount = 500;
}

namespace demoStore
{

QString path()
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation))
        .filePath(QStringLiteral("demo/persons.db"));
}

bool fill()
{
    PersonData& data = PersonData::instance();
    if (!data.getAllPersons(true).isEmpty() || data.getAllOrganizations().count() > 1)
        return true;
    QStringList organizations;
    for (const QStringList& names : demoPersons::organizationPaths())
        organizations.append(data.createOrganization(names));
    if (organizations.contains(QString()))
        return false;
    data.resetCustomFields({QStringLiteral("Locker"), QStringLiteral("Car plate")});

    qarn_data::PersonList persons;
    persons.reserve(personCount);
    for (int index = 0; index < personCount; ++index) {
        qarn_data::PersonInfo person = demoPersons::make(index);
        person.organizationId = organizations.at(index % organizations.count());
        persons.append(person);
    }
    return data.addPersons(persons);
}

} // namespace demoStore
