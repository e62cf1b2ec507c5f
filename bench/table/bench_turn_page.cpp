// Turning a page of 50 persons with photographs of 1 megapixel, first seen and seen before, against djpeg
// decoding the same 50 files at full size. Milliseconds; without a display.

#include "support/Figure.h"
#include "support/People.h"
#include "support/StoreFiles.h"
#include "table/PageWindow.h"
#include "table/Photographs.h"

#include <qarn_data/PersonData.h>

#include <QApplication>
#include <QFile>
#include <QProcess>

using namespace qarn_bench;

namespace
{

constexpr int PageSize = 50;
constexpr int Rounds = 7;
constexpr QSize PhotoSize(1000, 1000);

void fill(const StoreFiles& files)
{
    People people(1);
    qarn_data::PersonList persons;
    const QString root = qarn_data::PersonData::instance().getRootOrganizationId();
    QList<QByteArray> photos;
    for (int i = 0; i < PageSize; ++i) {
        photos.append(photograph(quint32(i + 1), PhotoSize));
        QFile file(files.path(QStringLiteral("%1.jpg").arg(i)));
        if (!file.open(QIODevice::WriteOnly) || file.write(photos.last()) != photos.last().size())
            qFatal("cannot write the photographs");
    }
    for (int i = 0; i < PageSize * (Rounds + 1); ++i) {
        persons.append(people.next(root));
        persons.last().faceImage1 = withComment(photos.at(i % PageSize), i);
    }
    if (!qarn_data::PersonData::instance().addPersons(persons))
        qFatal("the store does not take the persons");
}

double peer(const StoreFiles& files)
{
    return milliseconds([&] {
        QProcess shell;
        shell.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        shell.start(QStringLiteral("sh"),
                    {QStringLiteral("-ec"),
                     QStringLiteral("for f in \"$0\"/*.jpg; do djpeg \"$f\" >/dev/null; done"),
                     files.path(QString())});
        if (!shell.waitForFinished(-1) || shell.exitCode() != 0)
            qFatal("djpeg fails: is libjpeg-turbo-progs installed?");
    });
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const StoreFiles files;
    openStore(files.path(QStringLiteral("photos.db")));
    fill(files);
    PageWindow window;
    Figure first{"turn_page_50x1mp_ms"};
    first.limit = 1.2;
    measureAlternately(
        first, Rounds, [&] { return milliseconds([&] { window.click("nextBt"); }); },
        [&] { return peer(files); });
    Figure again{"turn_page_50x1mp_again_ms"};
    again.limit = 0.3;
    measureAlternately(
        again, Rounds, [&] { return milliseconds([&] { window.click("prevBt"); }); },
        [&] { return peer(files); });
    const int firstResult = report(first);
    const int againResult = report(again);
    closeStore();
    return firstResult != 0 ? firstResult : againResult;
}
