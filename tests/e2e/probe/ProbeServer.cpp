#include "ProbeServer.h"

#include "WidgetReport.h"

#include <QApplication>
#include <QClipboard>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocalServer>
#include <QLocalSocket>

namespace
{

QJsonObject answerTo(const QJsonObject& question)
{
    const QString command = question.value(QLatin1String("command")).toString();
    if (command == QLatin1String("widgets"))
        return {{QStringLiteral("widgets"), reportWidgets(question.value(QLatin1String("name")).toString())}};
    if (command == QLatin1String("items"))
        return {{QStringLiteral("items"), reportItems(question.value(QLatin1String("name")).toString())}};
    if (command == QLatin1String("windows"))
        return {{QStringLiteral("windows"), reportWindows()}};
    if (command == QLatin1String("clipboard")) {
        QApplication::clipboard()->setText(question.value(QLatin1String("text")).toString());
        return {{QStringLiteral("ok"), true}};
    }
    return {{QStringLiteral("error"), QStringLiteral("unknown command")}};
}

} // namespace

ProbeServer::ProbeServer(const QString& socketPath) : m_server(new QLocalServer(this))
{
    connect(m_server, &QLocalServer::newConnection, this, &ProbeServer::accept);
    if (!m_server->listen(socketPath))
        qWarning("probe: %s: %s", qPrintable(socketPath), qPrintable(m_server->errorString()));
}

void ProbeServer::accept()
{
    while (QLocalSocket* socket = m_server->nextPendingConnection()) {
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] { answer(socket); });
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
    }
}

void ProbeServer::answer(QLocalSocket* socket)
{
    while (socket->canReadLine()) {
        const QJsonObject question = QJsonDocument::fromJson(socket->readLine()).object();
        socket->write(QJsonDocument(answerTo(question)).toJson(QJsonDocument::Compact) + '\n');
    }
}
