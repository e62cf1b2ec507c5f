// A directory of photographs, from the files to the committed store, against cp of the directory and sync.

#include "support/ChildRun.h"
#include "support/Figure.h"
#include "support/People.h"
#include "support/StoreFiles.h"
#include "transfer/Workers.h"

#include <qarn_data/PersonData.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>

using namespace qarn_bench;

namespace
{

constexpr int Count = 5000;
constexpr int ImageBytes = 100 * 1000;
constexpr int Rounds = 3;

void writeImages(const QString& directory)
{
    People people(1);
    if (!QDir().mkpath(directory))
        qFatal("cannot make %s", qPrintable(directory));
    for (int i = 0; i < Count; ++i) {
        QFile file(QStringLiteral("%1/S%2_Name %2.jpg").arg(directory).arg(i));
        if (!file.open(QIODevice::WriteOnly) || file.write(people.image(ImageBytes)) != ImageBytes)
            qFatal("cannot write the images");
    }
    runProgram("sync", {});
}

int ours(const QString& images, const QString& store)
{
    openStore(store);
    const QString root = qarn_data::PersonData::instance().getRootOrganizationId();
    const double elapsed = milliseconds([&] { importFaces(images, root); });
    if (qarn_data::PersonData::instance().getAllPersonsSerialNum().count() != Count)
        qFatal("not all photographs were imported");
    closeStore();
    return printMeasure(elapsed);
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments.count() == 2)
        return ours(arguments[0], arguments[1]);
    const StoreFiles files;
    const QString images = files.path(QStringLiteral("images"));
    const QString copy = files.path(QStringLiteral("copy"));
    const QString store = files.path(QStringLiteral("ours.db"));
    writeImages(images);
    Figure figure{"import_faces_5000x100kb_ms"};
    figure.limit = 2;
    measureAlternately(
        figure, Rounds,
        [&] {
            QFile::remove(store);
            runProgram("sync", {});
            return measureInChild({images, store});
        },
        [&] {
            QDir(copy).removeRecursively();
            runProgram("sync", {});
            return milliseconds([&] {
                runProgram("cp", {"-r", images, copy});
                runProgram("sync", {});
            });
        });
    return report(figure);
}
