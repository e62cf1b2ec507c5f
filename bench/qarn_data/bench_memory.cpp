// What persons cost in memory, each measured in a new process: the growth of resident memory from before
// opening the store until its persons are at hand.
//   - per person without images, against the 1.5 KB that one may cost;
//   - images held by the index, a returned list and the page query's result at once, against the bytes of
//     the images once.

#include "support/ChildRun.h"
#include "support/Figure.h"
#include "support/Memory.h"
#include "support/People.h"
#include "support/StoreFiles.h"

#include "query/PersonMgrWorker.h"
#include "query/PersonQueryCondition.h"

#include <qarn_data/PersonData.h>

#include <QCoreApplication>

using namespace qarn_bench;
using qarn_personMgr::PersonMgrWorker;

namespace
{

constexpr int PersonCount = 100000;
constexpr int PersonWithImageCount = 5000;
constexpr int ImageSize = 50 * 1024;
constexpr double AllowedBytesPerPerson = 1536;

void makeStoreWithImages(const QString& path)
{
    openStore(path);
    People people(2);
    qarn_data::PersonList persons = people.make(PersonWithImageCount, addOrganizations(5));
    for (qarn_data::PersonInfo& person : persons)
        person.faceImage1 = people.image(ImageSize);
    if (!qarn_data::PersonData::instance().addPersons(persons))
        qFatal("the store does not take the persons");
    closeStore();
}

int measureIndex(const QString& path)
{
    const double before = residentBytes();
    openStore(path);
    findSomebody();
    return printMeasure(residentBytes() - before);
}

int measureImages(const QString& path)
{
    qint64 imageBytes = 0;
    const double before = residentBytes();
    openStore(path);
    const qarn_data::PersonList list = qarn_data::PersonData::instance().getAllPersons(false);
    PersonMgrWorker::instance().queryPersons({});
    for (const qarn_data::PersonInfo& person : list) {
        for (const char byte : person.faceImage1) // touched, wherever the bytes come from
            imageBytes += byte == 0 ? 0 : 1;
    }
    if (imageBytes < qint64(PersonWithImageCount) * ImageSize / 2)
        qFatal("the images are not there");
    return printMeasure(residentBytes() - before);
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments.value(0) == QLatin1String("index"))
        return measureIndex(arguments.value(1));
    if (arguments.value(0) == QLatin1String("images"))
        return measureImages(arguments.value(1));

    const StoreFiles files;
    Figure perPerson{"memory_per_person_bytes"};
    perPerson.ours =
        measureInChild({QStringLiteral("index"), makeStore(files, QStringLiteral("plain.db"), PersonCount)}) /
        PersonCount;
    perPerson.peer = AllowedBytesPerPerson;
    perPerson.limit = 1.0;

    const QString withImages = files.path(QStringLiteral("images.db"));
    makeStoreWithImages(withImages);
    Figure images{"memory_images_held_once_mb"};
    images.ours = measureInChild({QStringLiteral("images"), withImages}) / 1048576;
    images.peer = double(PersonWithImageCount) * ImageSize / 1048576;
    images.limit = 1.2;
    return report(perPerson) | report(images);
}
