#include "DemoData.h"

#include <qarn_data/DeviceRegistry.h>
#include <qarn_data/OrganizationInfo.h>
#include <qarn_data/PersonData.h>

#include <QStringList>

namespace
{

void addOrganizations()
{
    qarn_data::PersonData& data = qarn_data::PersonData::instance();
    const QString root = data.getRootOrganizationId();
    const QStringList top = {QStringLiteral("Administration"), QStringLiteral("Production"),
                             QStringLiteral("Research and Development"), QString::fromUtf8("研发部")};
    for (const QString& name : top) {
        data.addOrganization({name, root, name});
        for (const char* below : {"North", "South"}) {
            const QString child = name + QLatin1Char(' ') + QLatin1String(below);
            data.addOrganization({child, name, child});
        }
    }
}

qarn_data::Device makeDevice(const QString& id, const QString& name, int channels)
{
    qarn_data::Device device;
    device.id = id;
    device.name = name;
    for (int number = 1; number <= channels; ++number)
        device.channels.append({number, QStringLiteral("Gate %1").arg(number), qarn_data::FaceListAbility});
    return device;
}

} // namespace

void addDemoData()
{
    addOrganizations();
    qarn_data::DeviceRegistry& registry = qarn_data::DeviceRegistry::instance();
    registry.saveDevice(makeDevice(QStringLiteral("a"), QStringLiteral("Entrance"), 2));
    registry.saveDevice(makeDevice(QStringLiteral("b"), QStringLiteral("Car park"), 1));
    registry.saveDevice(makeDevice(QStringLiteral("c"), QStringLiteral("Canteen"), 2));
    registry.setReachability(QStringLiteral("a"), qarn_data::DeviceRegistry::Reachability::Online);
    registry.setReachability(QStringLiteral("b"), qarn_data::DeviceRegistry::Reachability::Offline);
}
