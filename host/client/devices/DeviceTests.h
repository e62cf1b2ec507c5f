#pragma once

#include <qarn_data/DeviceRegistry.h>

#include <QHash>
#include <QObject>
#include <QString>

namespace dvx_sdk
{
class DeviceProbe;
struct ProbeResult;
} // namespace dvx_sdk

/// Tests stored devices, several at the same time but each at most once at a time.
class DeviceTests : public QObject
{
    Q_OBJECT
public:
    explicit DeviceTests(QObject* parent = nullptr);

    void test(const qarn_data::Device& device);
    void testAll();

signals:
    void signalTested(const QString& deviceId, const dvx_sdk::ProbeResult& result);

private:
    QHash<QString, dvx_sdk::DeviceProbe*> m_running; ///< by device id
};
