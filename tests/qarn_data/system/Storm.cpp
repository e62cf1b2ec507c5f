#include "Storm.h"

#include <qarn_data/PersonData.h>

using qarn_data::PersonData;
using qarn_data::PersonInfo;
using qarn_data::PersonList;

namespace
{

constexpr int SharedCount = 10;
constexpr int MostOwn = 30;

PersonInfo person(const QString& id)
{
    PersonInfo person;
    person.id = id;
    person.serialNum = QStringLiteral("S-") + id;
    return person;
}

void mark(PersonInfo& person, const QString& token)
{
    person.name = token;
    person.remarks = token;
}

} // namespace

PersonList Storm::sharedPersons()
{
    PersonList persons;
    for (int i = 0; i < SharedCount; ++i)
        persons.append(person(QStringLiteral("shared-%1").arg(i)));
    return persons;
}

bool Storm::step()
{
    static const PersonList shared = sharedPersons();
    if (m_own.count() >= MostOwn && !removeOldest())
        return false;
    return add() && update(m_own.at(m_number % m_own.count()), m_acknowledged.lastOwn) &&
           update(shared.at(m_number % SharedCount), m_acknowledged.lastShared);
}

bool Storm::add()
{
    PersonInfo added = person(QStringLiteral("%1-%2").arg(m_writer).arg(++m_number));
    mark(added, QStringLiteral("%1:%2").arg(m_writer).arg(m_number));
    if (!PersonData::instance().addPerson(added))
        return false;
    m_acknowledged.added.append(added.id);
    m_acknowledged.lastOwn.insert(added.id, added.remarks);
    m_own.append(added);
    return true;
}

bool Storm::removeOldest()
{
    const QString id = m_own.takeFirst().id;
    if (!PersonData::instance().deletePersons({id}))
        return false;
    m_acknowledged.deleted.insert(id);
    m_acknowledged.lastOwn.remove(id);
    return true;
}

bool Storm::update(PersonInfo person, QMap<QString, QString>& last)
{
    mark(person, QStringLiteral("%1:%2").arg(m_writer).arg(++m_number));
    if (!PersonData::instance().updatePerson(person))
        return false;
    m_acknowledged.updates.append(person.remarks);
    last.insert(person.id, person.remarks);
    return true;
}

int tokenNumber(const QString& token)
{
    bool ok = false;
    const int number = token.section(QLatin1Char(':'), 1).toInt(&ok);
    return ok ? number : -1;
}

QString tokenWriter(const QString& token)
{
    return token.section(QLatin1Char(':'), 0, 0);
}
