// What one synchronisation takes a face on a fleet of devices, by latency of the devices: the figures behind
// the estimate in docs/device-link.md. Prints a line for each latency and measures against no peer.

#include "SimulatedDevice.h"
#include "dvx_client_sdk/DeviceRuns.h"
#include "support/StoreFiles.h"

#include <QCoreApplication>

#include <cstdio>
#include <memory>
#include <vector>

using namespace qarn_bench;

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    constexpr int Devices = 10;
    constexpr int Channels = 4;
    constexpr int Persons = 10;
    constexpr int PhotoBytes = 60000;
    const StoreFiles files;
    openStore(files.path(QStringLiteral("store.db")));
    const qarn_data::PersonList persons = personsWithPhotos(Persons, PhotoBytes);
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    for (const char* latency : {"0", "5", "20", "50"}) {
        std::vector<std::unique_ptr<SimulatedDevice>> fleet;
        QList<QPair<QString, int>> channels;
        for (int i = 0; i < Devices; ++i) {
            fleet.push_back(std::make_unique<SimulatedDevice>(
                QStringList{QStringLiteral("--channels"), QString::number(Channels),
                            QStringLiteral("--latency-ms"), QLatin1String(latency)}));
            fleet.back()->addToRegistry();
            for (int channel = 1; channel <= Channels; ++channel)
                channels.append({fleet.back()->id(), channel});
        }
        const double first = pushAll(persons, channels);
        const double again = pushAll(persons, channels); // each face is deleted first
        constexpr int Faces = Devices * Channels * Persons;
        std::printf("{\"latency_ms\":%s,\"faces\":%d,\"empty_devices_ms_a_face\":%.3f,"
                    "\"filled_devices_ms_a_face\":%.3f}\n",
                    latency, Faces, first / Faces, again / Faces);
    }
    return 0;
}
