#pragma once

#include <qarn_data/DeviceRegistry.h>

#include <QTcpServer>
#include <QTcpSocket>
#include <QUuid>

#include <functional>

/// Answers every request with bytes of the test's choice: what no well-behaved server sends.
class ScriptedServer : public QObject
{
public:
    using Answer = std::function<QByteArray(const QByteArray& request)>;

    explicit ScriptedServer(Answer answer) : m_answer(std::move(answer))
    {
        if (!m_server.listen(QHostAddress::LocalHost))
            qFatal("no port to listen at");
        connect(&m_server, &QTcpServer::newConnection, this, &ScriptedServer::accept);
        qarn_data::Device device;
        device.id = m_id;
        device.name = QStringLiteral("Scripted");
        device.address = QUrl(QStringLiteral("http://127.0.0.1:%1/base/").arg(m_server.serverPort()));
        device.channels = {{1, {}, qarn_data::FaceListAbility}};
        qarn_data::DeviceRegistry::instance().saveDevice(device);
    }

    QString id() const { return m_id; }
    const QList<QByteArray>& requests() const { return m_requests; } ///< the request lines
    bool closesAfterAnswer = false;

    static QByteArray json(const QByteArray& body, const QByteArray& status = "200 OK")
    {
        return "HTTP/1.1 " + status + "\r\nContent-Type: application/scim+json\r\nContent-Length: " +
               QByteArray::number(body.size()) + "\r\n\r\n" + body;
    }

    static QByteArray resourceTypes(const QByteArray& endpoint = "/Faces")
    {
        return json("{\"Resources\":[{\"name\":\"Face\",\"endpoint\":\"" + endpoint +
                    "\",\"schema\":\"urn:x:Face\"}]}");
    }

private:
    void accept()
    {
        QTcpSocket* socket = m_server.nextPendingConnection();
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { read(socket); });
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    }

    void read(QTcpSocket* socket)
    {
        QByteArray request = socket->property("request").toByteArray() + socket->readAll();
        const int end = request.indexOf("\r\n\r\n");
        const int lengthAt = request.indexOf("Content-Length: ");
        const int length =
            lengthAt < 0
                ? 0
                : request.mid(lengthAt + 16, request.indexOf('\r', lengthAt) - lengthAt - 16).toInt();
        if (end >= 0 && request.size() >= end + 4 + length) {
            m_requests.append(request.left(request.indexOf('\r')));
            socket->write(m_answer(request));
            if (closesAfterAnswer)
                socket->disconnectFromHost();
            request.clear();
        }
        socket->setProperty("request", request);
    }

    Answer m_answer;
    QTcpServer m_server;
    QList<QByteArray> m_requests;
    const QString m_id = QUuid::createUuid().toString();
};
