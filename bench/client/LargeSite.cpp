#include "client/LargeSite.h"

#include "demo/Portrait.h"
#include "support/People.h"
#include "support/Photographs.h"
#include "support/StoreFiles.h"

#include <qarn_data/PersonData.h>

#include <QImage>

#include <algorithm>

using qarn_data::PersonData;

namespace qarn_bench
{

namespace
{

constexpr quint32 Seed = 20240511;
constexpr int DistinctPortraits = 300;
constexpr QSize PortraitSize(300, 400);
constexpr int PortraitQuality = 82;

QList<QByteArray> portraits()
{
    QList<QByteArray> all;
    for (int i = 0; i < DistinctPortraits; ++i)
        all.append(encodeJpeg(drawPortrait(quint32(i + 1), PortraitSize), PortraitQuality));
    return all;
}

} // namespace

void LargeSite::fill()
{
    const QStringList organizations = addOrganizations(Organizations);
    qarn_data::PersonList persons = People(Seed).make(Persons, organizations);
    const QList<QByteArray> faces = portraits();
    for (int i = 0; i < persons.count(); ++i) {
        // Not the numbers of the imported table, whose persons come as new ones.
        persons[i].serialNum.prepend(QLatin1Char('S'));
        // Nothing that a reader of the exported file would trip over.
        persons[i].name.remove(QLatin1Char(',')).remove(QLatin1Char('"'));
        if (i % EveryPhoto == 0)
            persons[i].faceImage1 = withComment(faces.at(i / EveryPhoto % faces.count()), i);
    }
    if (!PersonData::instance().addPersons(persons))
        qFatal("the store does not take the persons");
}

void LargeSite::check()
{
    const qarn_data::PersonList persons = PersonData::instance().getAllPersons(false);
    const auto faces =
        std::count_if(persons.cbegin(), persons.cend(), [](const qarn_data::PersonInfo& person) {
            return person.faceImage1.startsWith("\xff\xd8");
        });
    const int organizations = PersonData::instance().getAllOrganizations().count();
    if (persons.count() != Persons || faces != Persons / EveryPhoto || organizations < Organizations)
        qFatal("the store holds %d persons, %d photographs and %d organizations", int(persons.count()),
               int(faces), organizations);
}

} // namespace qarn_bench
