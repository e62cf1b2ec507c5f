#include "WriterProcess.h"

#include <QJsonDocument>
#include <QTest>

#include <algorithm>

namespace
{

constexpr int AnswerTimeout = 30000;

}

WriterProcess::WriterProcess()
{
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(QStringLiteral(STORE_WRITER), QStringList());
    if (!m_process.waitForStarted())
        qFatal("%s does not start: %s", STORE_WRITER, qPrintable(m_process.errorString()));
}

WriterProcess::WriterProcess(const QString& storePath) : WriterProcess()
{
    const QJsonObject answer = ask({{"do", "open"}, {"path", storePath}});
    if (!answer["answer"].toBool())
        qFatal("the second process cannot open the store: %s", qPrintable(answer["error"].toString()));
}

WriterProcess::~WriterProcess()
{
    m_process.closeWriteChannel();
    if (!m_process.waitForFinished(AnswerTimeout))
        m_process.kill();
    m_process.waitForFinished();
}

void WriterProcess::send(const QJsonObject& command)
{
    m_process.write(QJsonDocument(command).toJson(QJsonDocument::Compact) + '\n');
    m_process.waitForBytesWritten();
}

QJsonObject WriterProcess::waitForAnswer()
{
    const bool answered = QTest::qWaitFor(
        [this] {
            readLines();
            return !m_answers.isEmpty() || m_process.state() == QProcess::NotRunning;
        },
        AnswerTimeout);
    return answered && !m_answers.isEmpty() ? m_answers.takeFirst() : QJsonObject();
}

QJsonObject WriterProcess::ask(const QJsonObject& command)
{
    send(command);
    return waitForAnswer();
}

void WriterProcess::readLines()
{
    while (m_process.canReadLine()) {
        const QJsonObject line = QJsonDocument::fromJson(m_process.readLine()).object();
        (line.contains(QStringLiteral("event")) ? m_events : m_answers).append(line);
    }
}

const QList<QJsonObject>& WriterProcess::events()
{
    readLines();
    return m_events;
}

int WriterProcess::eventCount(const QString& name)
{
    const QList<QJsonObject>& all = events();
    return int(std::count_if(all.begin(), all.end(),
                             [&](const QJsonObject& event) { return event["event"].toString() == name; }));
}
