#pragma once

#include <QByteArray>
#include <QMap>
#include <QSslCertificate>
#include <QStringList>
#include <QUrl>

namespace dvx_sdk
{

constexpr char ScimMediaType[] = "application/scim+json";

/// One request as it is handed to a connection.
struct HttpRequest {
    QByteArray method;
    QByteArray path;      ///< below the device's address, encoded, with the query
    QByteArray body;      ///< SCIM; empty for none
    qint64 bodyLimit = 0; ///< most bytes of the answer's body that are taken
};

/// How a request ended: with an answer, or with a code that says why there is none.
struct HttpResult {
    int failure = 0; ///< a ResponseCode; 0: there is an answer
    int status = 0;
    QByteArray body;
    bool stale = false;          ///< a kept connection turned out to be closed; nothing was answered
    QSslCertificate certificate; ///< with Untrusted: what the device showed
    QStringList problems;        ///< with Untrusted: what is wrong with it
};

/// Whether requests can be made of this address and token: http(s), a host, nothing that breaks a header.
bool isUsable(const QUrl& address, const QString& token);

/// What all requests to a device have in common.
class HttpRequestHead
{
public:
    HttpRequestHead(const QUrl& address, const QString& token);

    /// Appends the request as bytes for the wire.
    void appendWire(QByteArray& wire, const HttpRequest& request) const;

private:
    QByteArray m_path;    ///< of the address
    QByteArray m_headers; ///< the protocol and the lines that are always the same
};

} // namespace dvx_sdk
