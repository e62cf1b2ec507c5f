// 2,000 faces with photographs of 60 KB read one a request, against the same requests through libcurl.

#include "SimulatedDevice.h"
#include "dvx_client_sdk/CurlClient.h"
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
    SimulatedDevice sim;
    sim.addToRegistry();
    postAll(sim.address(), bodiesOf(personsWithPhotos(Faces, PhotoBytes)));

    Figure figure{"read_faces_2000_ms"};
    figure.limit = 1.3;
    measureAlternately(
        figure, 5, [&] { return readAll(sim.id(), Faces); },
        [&] {
            return milliseconds([&] {
                CurlClient client(sim.address());
                for (int start = 1; start <= Faces; ++start)
                    client.get("/Faces?startIndex=" + QByteArray::number(start) + "&count=1");
            });
        });
    return report(figure);
}
