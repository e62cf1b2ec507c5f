#include "FaceJob.h"

#include "FaceIdMap.h"

#include <dvx_client_sdk/ResponseCodes.h>

namespace dvx_sdk
{

namespace
{

constexpr int OkStatus = 200;
constexpr int NotFoundStatus = 404;

} // namespace

FaceJob::FaceJob(const Target& target, int timeoutMs, FaceIdMap& ids) : m_target(target), m_ids(ids)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(timeoutMs);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        m_client->setReachability(qarn_data::DeviceRegistry::Reachability::Offline);
        end(TimedOut);
    });
}

FaceJob::~FaceJob()
{
    if (m_client != nullptr)
        m_client->cancel(this);
}

void FaceJob::start(const std::shared_ptr<DeviceClient>& client)
{
    m_client = client;
    m_timer.start();
    discover();
}

void FaceJob::end(int code)
{
    if (m_ended)
        return;
    m_ended = true;
    m_timer.stop();
    if (m_client != nullptr)
        m_client->cancel(this);
    emitAnswer(code);
    deleteLater();
}

void FaceJob::discover()
{
    if (service().isKnown())
        return discoverSchema();
    send("GET", "/ResourceTypes", {}, SmallAnswerBytes, [this](const HttpResult& result) {
        if (result.status != OkStatus)
            return refuse(result.status);
        service() = parseResourceTypes(result.body);
        if (!service().isKnown())
            return end(BadAnswer);
        discoverSchema();
    });
}

void FaceJob::discoverSchema()
{
    if (needs() == Needs::Endpoint || service().schemaRead)
        return perform();
    send("GET", "/Schemas", {}, SmallAnswerBytes, [this](const HttpResult& result) {
        service().schemaRead = true;
        if (result.status == OkStatus) // a device without this document is sent everything
            service().attributes = parseSchema(result.body, service().schemaUrn);
        perform();
    });
}

void FaceJob::send(const QByteArray& method, const QByteArray& path, const QByteArray& body, qint64 bodyLimit,
                   const std::function<void(const HttpResult&)>& done)
{
    const QByteArray base = "/channels/" + QByteArray::number(m_target.channelNo) + "/scim/v2";
    m_client->send({method, base + path, body, bodyLimit}, this, [this, done](const HttpResult& result) {
        if (result.failure != 0)
            end(result.failure);
        else
            done(result);
    });
}

void FaceJob::refuse(int status)
{
    constexpr int LeastRefusal = 300; // below: a success, but not the one that was to come
    constexpr int InvalidStatus = 400;
    if (status == NotFoundStatus || status == InvalidStatus)
        service() = {}; // the device may have got other software: ask again next time
    end(status < LeastRefusal ? int(BadAnswer) : status);
}

QString FaceJob::channelKey() const
{
    return m_target.deviceId + QLatin1Char('/') + QString::number(m_target.channelNo);
}

} // namespace dvx_sdk
