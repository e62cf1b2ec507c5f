// The cost of one face in a synchronisation of 100,000 persons, against one of 1,000. The device is unknown,
// so that only the worker's own cost is left.

#include "dvx_client_sdk/DeviceRuns.h"
#include "support/Figure.h"
#include "support/StoreFiles.h"

#include <QCoreApplication>

using namespace qarn_bench;

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    constexpr int Many = 100000;
    constexpr int Few = 1000;
    const QList<QPair<QString, int>> nowhere{{QStringLiteral("unknown"), 1}};
    const StoreFiles files;
    openStore(files.path(QStringLiteral("store.db")));
    const qarn_data::PersonList many = personsWithPhotos(Many, 0);
    const qarn_data::PersonList few = many.mid(0, Few);

    Figure figure{"push_one_of_100000_persons_us"};
    figure.limit = 1.15;
    measureAlternately(
        figure, 3, [&] { return pushAll(many, nowhere, true) * 1000 / Many; },
        [&] {
            constexpr int Times = 20; // as long as one run of the many would take, about
            double total = 0;
            for (int i = 0; i < Times; ++i)
                total += pushAll(few, nowhere, true);
            return total * 1000 / (Few * Times);
        });
    return report(figure);
}
