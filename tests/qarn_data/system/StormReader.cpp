#include "StormReader.h"

#include "Storm.h"

#include <qarn_data/PersonData.h>

#include <QSet>

using qarn_data::PersonData;
using qarn_data::PersonInfo;

void StormReader::look(const QString& id, const QString& name, const QString& remarks)
{
    if (name != remarks)
        m_complaint = QStringLiteral("%1 is torn: %2, %3").arg(id, name, remarks);
    QString& last = m_lastTokens[id];
    if (tokenWriter(last) == tokenWriter(remarks) && tokenNumber(remarks) < tokenNumber(last))
        m_complaint = QStringLiteral("%1 went back from %2 to %3").arg(id, last, remarks);
    last = remarks;
}

void StormReader::step()
{
    ++m_steps;
    if (!m_complaint.isEmpty())
        return;
    const qarn_data::PersonList all = PersonData::instance().getAllPersons(m_steps % 2 == 0);
    QSet<QString> ids;
    for (const PersonInfo& person : all) {
        look(person.id, person.name, person.remarks);
        ids.insert(person.id);
    }
    if (ids.count() != all.count())
        m_complaint = QStringLiteral("a person is in the list twice");
    const QString serial = all.at(m_steps % all.count()).serialNum;
    const PersonInfo found = PersonData::instance().getPersonBySerialNum(serial, false);
    if (!found.id.isEmpty())
        look(found.id, found.name, found.remarks);
    PersonData::instance().getAllPersonsName();
    PersonData::instance().getPersons({QString()}, true);
}
