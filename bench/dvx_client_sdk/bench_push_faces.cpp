// 2,000 faces with photographs of 60 KB through a synchronisation, against the same bytes through libcurl.

#include "SimulatedDevice.h"
#include "dvx_client_sdk/DeviceRuns.h"
#include "support/Figure.h"
#include "support/StoreFiles.h"

#include <QCoreApplication>

using namespace qarn_bench;

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    constexpr int Faces = 2000;
    constexpr int PhotoBytes = 60000;
    const StoreFiles files;
    openStore(files.path(QStringLiteral("store.db")));
    const qarn_data::PersonList persons = personsWithPhotos(Faces, PhotoBytes);
    const QList<QByteArray> bodies = bodiesOf(persons);

    Figure figure{"push_faces_2000_ms"};
    figure.limit = 1.3;
    measureAlternately(
        figure, 5,
        [&] {
            SimulatedDevice sim;
            sim.addToRegistry();
            return pushAll(persons, {{sim.id(), 1}});
        },
        [&] {
            const SimulatedDevice sim;
            return postAll(sim.address(), bodies);
        });
    return report(figure);
}
