#pragma once

#include "DeviceClient.h"

#include <dvx_client_sdk/DeviceProbe.h>

#include <QElapsedTimer>
#include <QTimer>

#include <memory>

namespace dvx_sdk
{

/// Finds out which channels a device has. Lives in the link's thread.
class ProbeJob : public QObject
{
    Q_OBJECT
public:
    explicit ProbeJob(const qarn_data::Device& device);
    ~ProbeJob() override;

    void start();
    void end(int code); ///< answers, unless that is done, and deletes the job

signals:
    void signalDone(const dvx_sdk::ProbeResult& result);

private:
    void send(const QByteArray& path, const std::function<void(const HttpResult& result)>& done);
    void slotChannels(const HttpResult& result);
    void tryChannel(int number);

    DeviceClient m_client;
    QTimer m_timer;
    QElapsedTimer m_elapsed;
    ProbeResult m_result;
    bool m_ended = false;
};

} // namespace dvx_sdk
