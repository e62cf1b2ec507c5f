#include "HttpConnection.h"

#include <dvx_client_sdk/ResponseCodes.h>

#include <QCryptographicHash>
#include <QNetworkProxy>
#include <QPointer>
#include <QSslError>
#include <QSslSocket>

namespace dvx_sdk
{

namespace
{

constexpr int ConnectTimeoutMs = 5000;
constexpr int IdleTimeoutMs = 2000; ///< shorter than servers wait: a close must not meet a request
constexpr int ReadBufferBytes = 64 * 1024;
constexpr int KeptBytes = 256 * 1024; ///< memory that is kept from one request to the next
constexpr int HttpPort = 80;
constexpr int HttpsPort = 443;

/// The memory of a buffer for the next use, unless it is large or somebody still has it.
QByteArray emptied(QByteArray&& buffer)
{
    if (!buffer.isDetached() || buffer.capacity() > KeptBytes)
        return {};
    buffer.reserve(buffer.capacity()); // or resize() would free it
    buffer.resize(0);
    return std::move(buffer);
}

} // namespace

HttpConnection::HttpConnection(const QUrl& address, const QString& token, const QByteArray& pinnedCertificate,
                               QObject* parent)
    : QObject(parent),
      m_address(address),
      m_requestHead(address, token),
      m_pin(pinnedCertificate)
{
    m_connectTimer.setSingleShot(true);
    m_connectTimer.setInterval(ConnectTimeoutMs);
    connect(&m_connectTimer, &QTimer::timeout, this, [this] { fail(TimedOut); });
    m_idleTimer.setSingleShot(true);
    m_idleTimer.setInterval(IdleTimeoutMs);
    connect(&m_idleTimer, &QTimer::timeout, this, &HttpConnection::close);
}

HttpConnection::~HttpConnection() = default;

void HttpConnection::send(const HttpRequest& request, const Done& done)
{
    m_request = request;
    m_done = done;
    m_answered = false;
    m_problems.clear();
    m_parser = std::make_unique<HttpResponseParser>(request.bodyLimit, std::move(m_space));
    m_idleTimer.stop();
    m_reused = m_ready;
    if (m_ready)
        write();
    else
        open();
}

void HttpConnection::cancel()
{
    m_done = nullptr;
    close();
}

void HttpConnection::createSocket()
{
    if (isTls()) {
        auto socket = std::make_unique<QSslSocket>();
        connect(socket.get(), &QSslSocket::encrypted, this, &HttpConnection::slotEncrypted);
        connect(socket.get(), QOverload<const QList<QSslError>&>::of(&QSslSocket::sslErrors), this,
                &HttpConnection::slotSslErrors);
        m_socket = std::move(socket);
    } else {
        m_socket = std::make_unique<QTcpSocket>();
        connect(m_socket.get(), &QTcpSocket::connected, this, &HttpConnection::slotConnected);
    }
    m_socket->setProxy(QNetworkProxy::NoProxy); // devices stand in the local network
    m_socket->setReadBufferSize(ReadBufferBytes);
    connect(m_socket.get(), &QTcpSocket::readyRead, this, &HttpConnection::slotReadyRead);
    // Queued: an error may come inside connectToHost().
    connect(m_socket.get(), &QTcpSocket::errorOccurred, this, &HttpConnection::slotError,
            Qt::QueuedConnection);
}

void HttpConnection::open()
{
    close();
    createSocket();
    m_connectTimer.start();
    if (auto* tls = qobject_cast<QSslSocket*>(m_socket.get()))
        tls->connectToHostEncrypted(m_address.host(), static_cast<quint16>(m_address.port(HttpsPort)));
    else // unbuffered: what is written goes out at once, what comes is read where it is needed
        m_socket->connectToHost(m_address.host(), static_cast<quint16>(m_address.port(HttpPort)),
                                QIODevice::ReadWrite | QIODevice::Unbuffered);
}

void HttpConnection::slotConnected()
{
    m_connectTimer.stop();
    m_socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    m_ready = true;
    write();
}

void HttpConnection::slotEncrypted()
{
    if (m_pin.isEmpty() || isPinned())
        return slotConnected();
    // Also when the system would trust the other one.
    refuseCertificate({tr("The device shows another certificate than the one that was accepted.")});
    failLater(Untrusted); // the socket is in the middle of its handshake
}

void HttpConnection::slotSslErrors(const QList<QSslError>& errors)
{
    if (isPinned())
        return qobject_cast<QSslSocket*>(m_socket.get())->ignoreSslErrors();
    QStringList problems;
    for (const QSslError& error : errors)
        problems.append(error.errorString());
    refuseCertificate(problems); // the socket reports the failed handshake next
}

void HttpConnection::refuseCertificate(const QStringList& problems)
{
    m_problems = problems;
    m_certificate = qobject_cast<QSslSocket*>(m_socket.get())->peerCertificate();
}

bool HttpConnection::isPinned() const
{
    const auto* tls = qobject_cast<const QSslSocket*>(m_socket.get());
    return tls != nullptr && !m_pin.isEmpty() &&
           tls->peerCertificate().digest(QCryptographicHash::Sha256) == m_pin;
}

void HttpConnection::write()
{
    m_requestHead.appendWire(m_wire, m_request);
    const bool written = m_socket->write(m_wire) == m_wire.size();
    m_wire = emptied(std::move(m_wire));
    if (!written) // which the socket does not report by its signal
        failLater(ConnectionLost);
}

void HttpConnection::slotReadyRead()
{
    if (!isBusy())
        return close(); // nothing was asked
    while (!m_parser->isDone() && !m_parser->isBroken()) {
        const qint64 count = m_parser->feedFrom(*m_socket);
        if (count < 0) // closed, which the socket does not report by its signal
            return endAnswer();
        if (count == 0)
            return;
        m_answered = true;
    }
    if (m_parser->isDone())
        succeed();
    else
        fail(BadAnswer);
}

void HttpConnection::slotError()
{
    if (m_socket == nullptr || sender() != m_socket.get())
        return; // of a socket that was given up
    if (!isBusy())
        return close();
    if (!m_problems.isEmpty())
        return fail(Untrusted);
    if (!m_ready) {
        const bool tls = m_socket->error() == QAbstractSocket::SslHandshakeFailedError ||
                         (isTls() && m_socket->error() == QAbstractSocket::RemoteHostClosedError);
        return fail(tls ? TlsFailed : NoRoute);
    }
    if (m_socket->bytesAvailable() > 0)
        slotReadyRead();
    if (isBusy())
        endAnswer();
}

void HttpConnection::endAnswer()
{
    m_parser->finish();
    if (m_parser->isDone())
        succeed();
    else
        fail(ConnectionLost);
}

void HttpConnection::succeed()
{
    HttpResult result;
    result.status = m_parser->status();
    result.body = m_parser->takeBody();
    finish(result);
    m_space = emptied(std::move(result.body));
}

void HttpConnection::fail(int code)
{
    HttpResult result;
    result.failure = code;
    result.stale = code == ConnectionLost && m_reused && !m_answered;
    if (code == Untrusted) {
        result.certificate = m_certificate;
        result.problems = m_problems;
    }
    finish(result);
}

void HttpConnection::finish(const HttpResult& result)
{
    if (!isBusy())
        return;
    const bool sentWhole = m_socket != nullptr && m_socket->bytesToWrite() == 0;
    if (result.failure != 0 || !m_parser->canKeepAlive() || !sentWhole)
        close();
    else
        m_idleTimer.start();
    m_request = {};
    const Done done = std::move(m_done);
    m_done = nullptr;
    done(result);
}

void HttpConnection::failLater(int code)
{
    const auto failUnlessGivenUp = [this, code, socket = QPointer<QTcpSocket>(m_socket.get())] {
        if (socket == m_socket.get())
            fail(code);
    };
    QMetaObject::invokeMethod(this, failUnlessGivenUp, Qt::QueuedConnection);
}

void HttpConnection::close()
{
    m_connectTimer.stop();
    m_idleTimer.stop();
    m_ready = false;
    if (m_socket == nullptr)
        return;
    m_socket->disconnect(this);
    m_socket->abort();
    m_socket.release()->deleteLater(); // this may run inside one of its signals
}

} // namespace dvx_sdk
