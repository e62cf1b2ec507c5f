#include "table/PhotographedPersons.h"

#include "support/People.h"
#include "support/Photographs.h"

#include <qarn_data/PersonData.h>

namespace qarn_bench
{

void addPhotographedPersons(int count, const QList<QByteArray>& photographs)
{
    People people(1);
    const QString root = qarn_data::PersonData::instance().getRootOrganizationId();
    qarn_data::PersonList persons;
    for (int i = 0; i < count; ++i) {
        persons.append(people.next(root));
        persons.last().faceImage1 = withComment(photographs.at(i % photographs.count()), i);
    }
    if (!qarn_data::PersonData::instance().addPersons(persons))
        qFatal("the store does not take the persons");
}

} // namespace qarn_bench
