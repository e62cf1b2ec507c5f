#pragma once

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTcpSocket>
#include <QUrl>

/// What a device answered, byte for byte.
struct DeviceAnswer {
    int status = 0; ///< 0: nothing that begins like HTTP
    QByteArray head;
    QByteArray body;
    bool closed = false; ///< by the device

    QJsonObject json() const { return QJsonDocument::fromJson(body).object(); }
    QByteArray header(const QByteArray& name) const
    {
        const QList<QByteArray> lines = head.split('\n');
        for (const QByteArray& line : lines) {
            if (line.toLower().startsWith(name.toLower() + ':'))
                return line.mid(name.size() + 1).trimmed();
        }
        return {};
    }
    QString scimType() const { return json().value(QStringLiteral("scimType")).toString(); }
};

/// Talks to a device without any code of the register: one request, one connection.
class DeviceHttp
{
public:
    explicit DeviceHttp(const QUrl& address, const QByteArray& token = {})
        : m_address(address),
          m_token(token)
    {
    }

    int waitMs = 10000; ///< for an answer

    DeviceAnswer get(const QByteArray& path) const { return ask("GET", path); }
    DeviceAnswer remove(const QByteArray& path) const { return ask("DELETE", path); }
    DeviceAnswer post(const QByteArray& path, const QByteArray& body) const
    {
        return ask("POST", path, body);
    }

    DeviceAnswer ask(const QByteArray& method, const QByteArray& path, const QByteArray& body = {}) const
    {
        QTcpSocket socket;
        socket.connectToHost(m_address.host(), quint16(m_address.port()));
        if (!socket.waitForConnected(waitMs))
            return {};
        QByteArray request = method + ' ' + path + " HTTP/1.1\r\nHost: device\r\nConnection: close\r\n";
        if (!m_token.isEmpty())
            request += "Authorization: Bearer " + m_token + "\r\n";
        if (!body.isEmpty())
            request +=
                "Content-Type: application/scim+json\r\nContent-Length: " + QByteArray::number(body.size()) +
                "\r\n";
        socket.write(request + "\r\n" + body);
        return read(socket);
    }

private:
    DeviceAnswer read(QTcpSocket& socket) const
    {
        QElapsedTimer elapsed;
        elapsed.start();
        QByteArray bytes;
        while (socket.state() == QAbstractSocket::ConnectedState && elapsed.elapsed() < waitMs) {
            socket.waitForReadyRead(int(qMax<qint64>(1, waitMs - elapsed.elapsed())));
            bytes += socket.readAll();
        }
        bytes += socket.readAll();
        DeviceAnswer answer;
        answer.closed = socket.state() != QAbstractSocket::ConnectedState;
        const int end = bytes.indexOf("\r\n\r\n");
        if (end < 0)
            return answer;
        answer.head = bytes.left(end);
        answer.body = bytes.mid(end + 4);
        answer.status = answer.head.split(' ').value(1).toInt();
        return answer;
    }

    const QUrl m_address;
    const QByteArray m_token;
};

/// The body that adds a face; `more` replaces or adds attributes.
inline QByteArray newFace(const QByteArray& externalId, const QByteArray& jpeg, const QJsonObject& more = {})
{
    QJsonObject face{{"schemas", QJsonArray{"urn:face-device:schemas:1.0:Face"}},
                     {"externalId", QString::fromUtf8(externalId)},
                     {"photo", QString::fromLatin1(jpeg.toBase64())}};
    for (auto value = more.begin(); value != more.end(); ++value)
        face.insert(value.key(), *value);
    return QJsonDocument(face).toJson(QJsonDocument::Compact);
}
