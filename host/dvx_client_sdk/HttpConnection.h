#pragma once

#include "HttpRequest.h"
#include "HttpResponseParser.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>

class QSslError;
class QTcpSocket;

namespace dvx_sdk
{

/// One kept-alive connection to a device. Carries one request at a time. QNetworkAccessManager is not used
/// because it repeats requests on its own, reads heads of any size, and takes a thread for each device.
class HttpConnection : public QObject
{
    Q_OBJECT
public:
    using Done = std::function<void(const HttpResult& result)>;

    HttpConnection(const QUrl& address, const QString& token, const QByteArray& pinnedCertificate,
                   QObject* parent);
    ~HttpConnection() override;

    bool isBusy() const { return m_done != nullptr; }
    /// `done` is called once, when the request has ended; never inside this call, and never after cancel().
    void send(const HttpRequest& request, const Done& done);
    void cancel(); ///< gives the request up and closes the connection

private:
    void createSocket();
    void open();
    void write();
    void slotConnected();
    void slotEncrypted();
    void slotSslErrors(const QList<QSslError>& errors);
    void refuseCertificate(const QStringList& problems);
    void slotReadyRead();
    void slotError();
    void endAnswer(); ///< the connection was closed, which ends some answers
    void finish(const HttpResult& result);
    void succeed();
    void fail(int code);
    void failLater(int code); ///< where it must not happen at once
    void close();
    bool isPinned() const;
    bool isTls() const { return m_address.scheme() == QLatin1String("https"); }

    const QUrl m_address;
    const HttpRequestHead m_requestHead;
    const QByteArray m_pin;
    std::unique_ptr<QTcpSocket> m_socket;
    std::unique_ptr<HttpResponseParser> m_parser;
    HttpRequest m_request;
    Done m_done;
    QStringList m_problems; ///< with the certificate; empty: none
    QSslCertificate m_certificate;
    bool m_ready = false;    ///< connected, and encrypted where the address says so
    bool m_reused = false;   ///< this is not the connection's first request
    bool m_answered = false; ///< bytes of an answer have come
    QByteArray m_wire;       ///< memory for the bytes of a request, used again and again
    QByteArray m_space;      ///< memory for the body of an answer, likewise
    QTimer m_connectTimer;
    QTimer m_idleTimer;
};

} // namespace dvx_sdk
