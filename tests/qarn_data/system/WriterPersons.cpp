#include "WriterPersons.h"

#include <qarn_data/PersonData.h>

#include <QJsonArray>
#include <QSet>

using qarn_data::PersonInfo;
using qarn_data::PersonList;

QStringList idsOf(const QJsonObject& command)
{
    QStringList ids;
    for (const QJsonValue& id : command["ids"].toArray())
        ids.append(id.toString());
    return ids;
}

QStringList idsOf(const PersonList& persons)
{
    QStringList ids;
    for (const PersonInfo& person : persons)
        ids.append(person.id);
    return ids;
}

PersonList personsToAdd(const QJsonObject& command)
{
    PersonList persons;
    for (const QString& id : idsOf(command)) {
        PersonInfo person;
        person.id = id;
        person.serialNum = QStringLiteral("SERIAL-") + id;
        person.name = QStringLiteral("Name of ") + id;
        person.organizationId = command["organizationId"].toString();
        person.faceImage1 = id.toUtf8().leftJustified(command["imageSize"].toInt(), 'i', true);
        persons.append(person);
    }
    return persons;
}

PersonList personsWithIds(const QStringList& ids)
{
    const QSet<QString> wanted(ids.begin(), ids.end());
    PersonList persons;
    for (const PersonInfo& person : qarn_data::PersonData::instance().getAllPersons(false)) {
        if (wanted.contains(person.id))
            persons.append(person);
    }
    return persons;
}
