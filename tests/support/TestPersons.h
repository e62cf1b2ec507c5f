#pragma once

#include <qarn_data/PersonInfo.h>

#include <QList>
#include <QString>

inline qarn_data::PersonInfo makePerson(const QString& id, const QString& name, const QString& organizationId)
{
    qarn_data::PersonInfo person;
    person.id = id;
    person.serialNum = QStringLiteral("S") + id;
    person.name = name;
    person.organizationId = organizationId;
    person.validStartTime = QDateTime::currentDateTime().addDays(-1);
    person.validEndTime = QDateTime::currentDateTime().addDays(30);
    return person;
}

/// Persons "1" to `count`, named "Person 1" and so on.
inline QList<qarn_data::PersonInfo> makePersons(int count, const QString& organizationId)
{
    QList<qarn_data::PersonInfo> persons;
    for (int i = 1; i <= count; ++i)
        persons.append(
            makePerson(QString::number(i), QStringLiteral("Person ") + QString::number(i), organizationId));
    return persons;
}
