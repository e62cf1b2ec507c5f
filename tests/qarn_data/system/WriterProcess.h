#pragma once

#include <QJsonObject>
#include <QList>
#include <QProcess>

/// store_writer as a child of a test. While it waits for an answer the event loop runs, so that this
/// process's own data service goes on too.
class WriterProcess
{
public:
    WriterProcess();
    explicit WriterProcess(const QString& storePath); ///< with the store open
    ~WriterProcess();

    /// The whole answer line, empty when the writer ended or did not answer within half a minute.
    QJsonObject ask(const QJsonObject& command);
    bool does(const QJsonObject& command) { return ask(command)["answer"].toBool(); }
    void send(const QJsonObject& command); ///< does not wait; read the answer with waitForAnswer()
    QJsonObject waitForAnswer();

    /// What the writer's data service has announced so far, oldest first.
    const QList<QJsonObject>& events();
    int eventCount(const QString& name);
    QProcess& process() { return m_process; }

private:
    void readLines();

    QProcess m_process;
    QList<QJsonObject> m_answers;
    QList<QJsonObject> m_events;
};
