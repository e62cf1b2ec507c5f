// A device that takes 50 ms for each answer: what the register adds to that, against libcurl.

#include "SimulatedDevice.h"
#include "dvx_client_sdk/DeviceRuns.h"
#include "support/Figure.h"
#include "support/StoreFiles.h"

#include <QCoreApplication>

using namespace qarn_bench;

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    constexpr int Faces = 200;
    constexpr int PhotoBytes = 60000;
    const QStringList slow{QStringLiteral("--latency-ms"), QStringLiteral("50")};
    const StoreFiles files;
    openStore(files.path(QStringLiteral("store.db")));
    const qarn_data::PersonList persons = personsWithPhotos(Faces, PhotoBytes);
    const QList<QByteArray> bodies = bodiesOf(persons);

    Figure figure{"push_faces_200_at_50ms_latency_ms"};
    figure.limit = 1.05;
    measureAlternately(
        figure, 3,
        [&] {
            SimulatedDevice sim(slow);
            sim.addToRegistry();
            return pushAll(persons, {{sim.id(), 1}});
        },
        [&] {
            const SimulatedDevice sim(slow);
            return postAll(sim.address(), bodies);
        });
    return report(figure);
}
