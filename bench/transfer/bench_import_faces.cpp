#include "support/ChildRun.h"
#include "support/Figure.h"
#include "support/People.h"
#include "support/StoreFiles.h"
#include "transfer/PersonTable.h"
#include "transfer/Workers.h"

#include <qarn_data/PersonData.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>

// A directory of photographs, from the files to the committed store, against cp of the directory and sync.

namespace
{

constexpr int Count = 5000;
constexpr int ImageBytes = 100 * 1000;
constexpr int Rounds = 3;

void writeImages(const QString& directory)
{
    qarn_bench::People people(1);
    if (!QDir().mkpath(directory))
        qFatal("cannot make %s", qPrintable(directory));
    for (int i = 0; i < Count; ++i) {
        QFile file(QStringLiteral("%1/S%2_Name %2.jpg").arg(directory).arg(i));
        if (!file.open(QIODevice::WriteOnly) || file.write(people.image(ImageBytes)) != ImageBytes)
            qFatal("cannot write the images");
    }
    qarn_bench::runProgram("sync", {});
}

int ours(const QString& images, const QString& store)
{
    qarn_bench::openStore(store);
    const QString root = qarn_data::PersonData::instance().getRootOrganizationId();
    const double elapsed = qarn_bench::milliseconds([&] { qarn_bench::importFaces(images, root); });
    if (qarn_data::PersonData::instance().getAllPersonsSerialNum().count() != Count)
        qFatal("not all photographs were imported");
    qarn_bench::closeStore();
    return qarn_bench::printMeasure(elapsed);
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments.count() == 2)
        return ours(arguments[0], arguments[1]);
    const qarn_bench::StoreFiles files;
    const QString images = files.path(QStringLiteral("images"));
    const QString copy = files.path(QStringLiteral("copy"));
    const QString store = files.path(QStringLiteral("ours.db"));
    writeImages(images);
    qarn_bench::Figure figure{"import 5,000 photographs of 100 KB, ms"};
    figure.limit = 2;
    qarn_bench::measureAlternately(
        figure, Rounds,
        [&] {
            QFile::remove(store);
            qarn_bench::runProgram("sync", {});
            return qarn_bench::measureInChild({images, store});
        },
        [&] {
            QDir(copy).removeRecursively();
            qarn_bench::runProgram("sync", {});
            return qarn_bench::milliseconds([&] {
                qarn_bench::runProgram("cp", {"-r", images, copy});
                qarn_bench::runProgram("sync", {});
            });
        });
    return qarn_bench::report(figure);
}
