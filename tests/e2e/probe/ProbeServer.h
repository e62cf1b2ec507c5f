#pragma once

#include <QObject>

class QLocalServer;
class QLocalSocket;

/// Answers questions about the windows of this process, one JSON object a line. It reads and never acts:
/// input comes from the X server, as from a person.
class ProbeServer : public QObject
{
    Q_OBJECT
public:
    explicit ProbeServer(const QString& socketPath);

private:
    void accept();
    void answer(QLocalSocket* socket);

    QLocalServer* m_server;
};
