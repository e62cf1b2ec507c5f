#pragma once

#include "TestStore.h"

#include <qarn_data/DeviceRegistry.h>

/// A new store to which a test adds devices.
class DeviceStore : public TestStore
{
public:
    struct Channel {
        int number;
        const char* name;
        int abilities;
    };

    void add(const char* id, const char* name, std::initializer_list<Channel> channels) const
    {
        qarn_data::Device device;
        device.id = QString::fromUtf8(id);
        device.name = QString::fromUtf8(name);
        device.address = QUrl(QStringLiteral("http://127.0.0.1:1"));
        for (const Channel& channel : channels)
            device.channels.append({channel.number, QString::fromUtf8(channel.name), channel.abilities});
        if (!qarn_data::DeviceRegistry::instance().saveDevice(device))
            qFatal("device not saved");
    }
};
