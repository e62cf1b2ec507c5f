#pragma once

#include "DeviceClient.h"

#include <QObject>
#include <QTimer>

#include <memory>

namespace dvx_sdk
{

class FaceIdMap;

/// One request to a channel from its start to its one answer. Deletes itself afterwards.
class FaceJob : public QObject
{
    Q_OBJECT
public:
    /// What every request says, whatever it is about.
    struct Target {
        QString requestId;
        QString deviceId;
        int channelNo = 0;
    };

    FaceJob(const Target& target, int timeoutMs, FaceIdMap& ids);
    ~FaceJob() override;

    void start(const std::shared_ptr<DeviceClient>& client);
    /// Ends the job with this code, unless it has ended already.
    void end(int code);

protected:
    enum class Needs { Endpoint, Schema };

    virtual Needs needs() const = 0;
    virtual void perform() = 0; ///< the channel's service is known
    virtual void emitAnswer(int code) = 0;

    /// Sends a request below the channel's base; `done` gets what the device answered. A request without an
    /// answer ends the job.
    void send(const QByteArray& method, const QByteArray& path, const QByteArray& body, qint64 bodyLimit,
              const std::function<void(const HttpResult& result)>& done);
    /// Ends the job with the status of an answer that is no success.
    void refuse(int status);
    FaceService& service() { return m_client->service(m_target.channelNo); }
    FaceIdMap& ids() { return m_ids; }
    QString channelKey() const;
    const Target& target() const { return m_target; }

private:
    void discover();
    void discoverSchema();

    const Target m_target;
    FaceIdMap& m_ids;
    std::shared_ptr<DeviceClient> m_client;
    QTimer m_timer;
    bool m_ended = false;
};

/// Most bytes of an answer that carries no faces.
constexpr qint64 SmallAnswerBytes = 256 * 1024;

} // namespace dvx_sdk
