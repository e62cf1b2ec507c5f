#pragma once

#include "FaceService.h"
#include "HttpRequest.h"

#include <qarn_data/DeviceRegistry.h>

#include <QHash>
#include <QMap>
#include <QObject>

#include <deque>
#include <functional>

namespace dvx_sdk
{

class HttpConnection;

/// All connections to one device, and what its channels told about themselves. A few requests run at the same
/// time; more wait in line, so that a device is not flooded.
class DeviceClient : public QObject
{
    Q_OBJECT
public:
    using Done = std::function<void(const HttpResult& result)>;

    explicit DeviceClient(const qarn_data::Device& device, QObject* parent = nullptr);
    ~DeviceClient() override;

    const qarn_data::Device& device() const { return m_device; }
    bool hasSettingsOf(const qarn_data::Device& device) const; ///< as far as connections depend on them
    FaceService& service(int channel) { return m_services[channel]; }

    /// Sends the request for `owner`. `done` is called once, unless the owner cancels before.
    void send(const HttpRequest& request, const QObject* owner, const Done& done);
    void cancel(const QObject* owner); ///< gives all requests of the owner up
    /// Tells the registry, when this is news.
    void setReachability(qarn_data::DeviceRegistry::Reachability reachability);

private:
    struct Exchange {
        HttpRequest request;
        const QObject* owner = nullptr;
        Done done;
        bool repeated = false; ///< was sent once already
    };

    void sendWaiting();
    HttpConnection* freeConnection();
    void start(HttpConnection* connection, const Exchange& exchange);
    void slotDone(HttpConnection* connection, const HttpResult& result);
    void noteReachable(const HttpResult& result);

    const qarn_data::Device m_device;
    QHash<int, FaceService> m_services;            ///< by channel number
    QMap<HttpConnection*, Exchange> m_connections; ///< with what each carries
    std::deque<Exchange> m_waiting;
    qarn_data::DeviceRegistry::Reachability m_reachability = qarn_data::DeviceRegistry::Reachability::Unknown;
};

} // namespace dvx_sdk
