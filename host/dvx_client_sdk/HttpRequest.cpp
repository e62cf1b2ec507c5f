#include "HttpRequest.h"

#include <algorithm>

namespace dvx_sdk
{

bool isUsable(const QUrl& address, const QString& token)
{
    const bool http = address.scheme() == QLatin1String("http") || address.scheme() == QLatin1String("https");
    return http && address.isValid() && !address.host().isEmpty() &&
           std::all_of(token.cbegin(), token.cend(),
                       [](QChar c) { return c.unicode() > 0x20 && c.unicode() < 0x7f; });
}

HttpRequestHead::HttpRequestHead(const QUrl& address, const QString& token)
    : m_path(address.path(QUrl::FullyEncoded).toLatin1())
{
    while (m_path.endsWith('/'))
        m_path.chop(1);
    QByteArray host = address.host(QUrl::FullyEncoded).toLatin1();
    if (host.contains(':'))
        host = '[' + host + ']';
    if (address.port() > 0)
        host += ':' + QByteArray::number(address.port());
    m_headers = " HTTP/1.1\r\nHost: " + host + "\r\n";
    if (!token.isEmpty())
        m_headers += "Authorization: Bearer " + token.toLatin1() + "\r\n";
    // Compressed answers would make a small answer a large one after the size was checked.
    m_headers += "Accept: application/scim+json, application/json\r\nAccept-Encoding: identity\r\n"
                 "User-Agent: qarn-person-register\r\n";
}

void HttpRequestHead::appendWire(QByteArray& wire, const HttpRequest& request) const
{
    wire.reserve(wire.size() + request.body.size() + 1024);
    wire += request.method + ' ' + m_path + request.path + m_headers;
    if (!request.body.isEmpty())
        wire += QByteArray("Content-Type: ") + ScimMediaType +
                "\r\nContent-Length: " + QByteArray::number(request.body.size()) + "\r\n";
    wire += "\r\n";
    wire += request.body; // by far the largest part: copied once
}

} // namespace dvx_sdk
