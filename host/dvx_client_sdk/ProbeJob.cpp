#include "ProbeJob.h"

#include <dvx_client_sdk/ResponseCodes.h>

#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>

using qarn_data::Device;
using qarn_data::DeviceChannel;

namespace dvx_sdk
{

namespace
{

constexpr int TimeoutMs = 10000;
constexpr int OkStatus = 200;
constexpr int NotFoundStatus = 404;
constexpr int MaxTriedChannels = 64;
constexpr int MaxChannels = 10000;
constexpr qint64 AnswerBytes = 4 * 1024 * 1024;

int abilitiesOf(const QJsonArray& words)
{
    return words.contains(QStringLiteral("faceList")) ? qarn_data::FaceListAbility : 0;
}

bool parseChannels(const QByteArray& body, ProbeResult& result)
{
    QJsonObject device;
    if (!parseScimObject(body, device) || !device.value(QLatin1String("channels")).isArray())
        return false;
    result.name = device.value(QLatin1String("name")).toString();
    const QJsonArray channels = device.value(QLatin1String("channels")).toArray();
    for (const QJsonValue& value : channels) {
        const QJsonObject channel = value.toObject();
        const int number = channel.value(QLatin1String("number")).toInt(-1);
        if (number < 0 || result.channels.count() >= MaxChannels)
            return false;
        result.channels.append({number, channel.value(QLatin1String("name")).toString(),
                                abilitiesOf(channel.value(QLatin1String("abilities")).toArray())});
    }
    return !result.channels.isEmpty();
}

CertificateInfo describe(const QSslCertificate& certificate, const QStringList& problems)
{
    if (certificate.isNull())
        return {};
    return {certificate.digest(QCryptographicHash::Sha256),
            certificate.subjectInfo(QSslCertificate::CommonName).join(QStringLiteral(", ")),
            certificate.issuerInfo(QSslCertificate::CommonName).join(QStringLiteral(", ")),
            certificate.effectiveDate(),
            certificate.expiryDate(),
            problems};
}

} // namespace

ProbeJob::ProbeJob(const Device& device) : m_client(device, this), m_timer(this)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(TimeoutMs);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        m_client.setReachability(qarn_data::DeviceRegistry::Reachability::Offline);
        end(TimedOut);
    });
}

ProbeJob::~ProbeJob() = default;

void ProbeJob::start()
{
    if (!isUsable(m_client.device().address, m_client.device().token))
        return end(BadSettings);
    m_timer.start();
    m_elapsed.start();
    send("/channels", [this](const HttpResult& result) { slotChannels(result); });
}

void ProbeJob::send(const QByteArray& path, const std::function<void(const HttpResult&)>& done)
{
    m_client.send({"GET", path, {}, AnswerBytes}, this, [this, done](const HttpResult& result) {
        m_result.milliseconds = static_cast<int>(m_elapsed.elapsed());
        m_result.certificate = describe(result.certificate, result.problems);
        if (result.failure != 0)
            end(result.failure);
        else
            done(result);
    });
}

void ProbeJob::slotChannels(const HttpResult& result)
{
    if (result.status == NotFoundStatus)
        return tryChannel(1); // a server that knows faces, but not the list of channels
    if (result.status != OkStatus)
        return end(result.status < 300 ? int(BadAnswer) : result.status);
    end(parseChannels(result.body, m_result) ? Success : BadAnswer);
}

void ProbeJob::tryChannel(int number)
{
    const QByteArray path = "/channels/" + QByteArray::number(number) + "/scim/v2/ResourceTypes";
    send(path, [this, number](const HttpResult& result) {
        const bool found = result.status == OkStatus && parseResourceTypes(result.body).isKnown();
        if (found)
            m_result.channels.append({number, QString(), qarn_data::FaceListAbility});
        if (found && number < MaxTriedChannels)
            return tryChannel(number + 1);
        end(m_result.channels.isEmpty() ? NotFoundStatus : int(Success));
    });
}

void ProbeJob::end(int code)
{
    if (m_ended)
        return;
    m_ended = true;
    m_timer.stop();
    m_result.code = code;
    emit signalDone(m_result);
    deleteLater();
}

} // namespace dvx_sdk
