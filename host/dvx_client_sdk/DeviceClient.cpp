#include "DeviceClient.h"

#include "HttpConnection.h"

#include <dvx_client_sdk/ResponseCodes.h>

#include <algorithm>

using qarn_data::Device;
using qarn_data::DeviceRegistry;

namespace dvx_sdk
{

namespace
{

constexpr int MaxConnections = 4;

} // namespace

DeviceClient::DeviceClient(const Device& device, QObject* parent) : QObject(parent), m_device(device) {}

DeviceClient::~DeviceClient() = default;

bool DeviceClient::hasSettingsOf(const Device& device) const
{
    return device.address == m_device.address && device.token == m_device.token &&
           device.pinnedCertificate == m_device.pinnedCertificate;
}

void DeviceClient::send(const HttpRequest& request, const QObject* owner, const Done& done)
{
    m_waiting.push_back({request, owner, done, false});
    sendWaiting();
}

void DeviceClient::cancel(const QObject* owner)
{
    const auto isOwned = [owner](const Exchange& exchange) { return exchange.owner == owner; };
    m_waiting.erase(std::remove_if(m_waiting.begin(), m_waiting.end(), isOwned), m_waiting.end());
    for (auto entry = m_connections.begin(); entry != m_connections.end(); ++entry) {
        if (!isOwned(*entry))
            continue;
        *entry = {};
        entry.key()->cancel();
    }
    sendWaiting();
}

void DeviceClient::sendWaiting()
{
    while (!m_waiting.empty()) {
        HttpConnection* connection = freeConnection();
        if (connection == nullptr)
            return;
        const Exchange exchange = m_waiting.front();
        m_waiting.pop_front();
        start(connection, exchange);
    }
}

HttpConnection* DeviceClient::freeConnection()
{
    for (auto entry = m_connections.constBegin(); entry != m_connections.constEnd(); ++entry) {
        if (!entry.key()->isBusy())
            return entry.key();
    }
    if (m_connections.count() >= MaxConnections)
        return nullptr;
    auto* connection = new HttpConnection(m_device.address, m_device.token, m_device.pinnedCertificate, this);
    m_connections.insert(connection, {});
    return connection;
}

void DeviceClient::start(HttpConnection* connection, const Exchange& exchange)
{
    m_connections[connection] = exchange;
    connection->send(exchange.request,
                     [this, connection](const HttpResult& result) { slotDone(connection, result); });
}

void DeviceClient::slotDone(HttpConnection* connection, const HttpResult& result)
{
    Exchange exchange = m_connections.value(connection);
    m_connections[connection] = {};
    // Only what changes nothing is sent again: the device may have carried out a request that it did not
    // answer.
    if (result.stale && !exchange.repeated && exchange.request.method == "GET") {
        exchange.repeated = true;
        return start(connection, exchange);
    }
    noteReachable(result);
    exchange.done(result);
    sendWaiting();
}

void DeviceClient::noteReachable(const HttpResult& result)
{
    using Reachability = DeviceRegistry::Reachability;
    const bool offline = result.failure == NoRoute || result.failure == TimedOut ||
                         result.failure == Untrusted || result.failure == TlsFailed;
    setReachability(offline ? Reachability::Offline : Reachability::Online);
}

void DeviceClient::setReachability(DeviceRegistry::Reachability reachability)
{
    if (reachability == m_reachability || m_device.id.isEmpty())
        return;
    m_reachability = reachability;
    DeviceRegistry::instance().setReachability(m_device.id, reachability);
}

} // namespace dvx_sdk
