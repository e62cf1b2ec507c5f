#include "KillRun.h"

#include <qarn_data/DataService.h>
#include <qarn_data/PersonData.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QThread>

#include <memory>
#include <sqlite3.h>

using qarn_data::DataService;
using qarn_data::PersonData;

namespace
{

constexpr int EarlyKillOneIn = 6;
constexpr int LongestStart = 80;    // ms in which an early kill meets the writer opening the store
constexpr int LongestWriting = 250; // ms
constexpr int StartTimeout = 30000;

QString makeStore(const QString& path)
{
    QString error;
    if (!DataService::instance().open(path, &error))
        qFatal("%s", qPrintable(error));
    const QString root = PersonData::instance().getRootOrganizationId();
    DataService::instance().close();
    return root;
}

void send(QProcess& writer, const QJsonObject& command)
{
    writer.write(QJsonDocument(command).toJson(QJsonDocument::Compact) + '\n');
    writer.waitForBytesWritten();
}

int lastAcknowledged(const QByteArray& output, int before)
{
    const int start = output.lastIndexOf("ack ");
    const int end = start < 0 ? -1 : output.indexOf('\n', start);
    return end < 0 ? before : output.mid(start + 4, end - start - 4).toInt();
}

QString firstRow(sqlite3* connection, const char* sql)
{
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(connection, sql, -1, &statement, nullptr);
    const int result = sqlite3_step(statement);
    QString row;
    if (result == SQLITE_ROW)
        row = QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(statement, 0)));
    else if (result != SQLITE_DONE)
        row = QString::fromUtf8(sqlite3_errmsg(connection));
    sqlite3_finalize(statement);
    return row;
}

} // namespace

QString sqliteComplaint(const QString& storePath)
{
    sqlite3* raw = nullptr;
    const int opened = sqlite3_open_v2(storePath.toUtf8().constData(), &raw, SQLITE_OPEN_READWRITE, nullptr);
    const std::unique_ptr<sqlite3, int (*)(sqlite3*)> connection(raw, &sqlite3_close);
    if (opened != SQLITE_OK)
        return QString::fromUtf8(sqlite3_errmsg(raw));
    const QString integrity = firstRow(raw, "PRAGMA integrity_check");
    return integrity == QLatin1String("ok") ? firstRow(raw, "PRAGMA foreign_key_check") : integrity;
}

KillRun::KillRun(const QString& storePath, quint32 seed)
    : m_storePath(storePath),
      m_seed(seed),
      m_random(seed),
      m_workload(seed, makeStore(storePath))
{
}

int KillRun::runWriterAndKill()
{
    QProcess writer;
    writer.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    writer.start(QStringLiteral(STORE_WRITER), QStringList());
    send(writer, {{"do", "open"}, {"path", m_storePath}});
    send(writer, {{"do", "workload"}, {"seed", int(m_seed)}, {"done", m_workload.count()}});
    QByteArray output;
    if (m_random.bounded(EarlyKillOneIn) == 0) {
        QThread::msleep(m_random.bounded(quint32(LongestStart)));
    } else {
        while (!output.contains("ack ") && writer.waitForReadyRead(StartTimeout))
            output += writer.readAllStandardOutput();
        QThread::msleep(m_random.bounded(quint32(LongestWriting)));
    }
    writer.kill();
    writer.waitForFinished();
    output += writer.readAllStandardOutput();
    if (writer.exitStatus() != QProcess::CrashExit)
        qFatal("the writer ended by itself: %s", output.right(300).constData());
    m_killsWhileWriting += output.contains("ack ") ? 1 : 0;
    return lastAcknowledged(output, m_workload.count());
}

QString KillRun::check(int acknowledged)
{
    while (m_workload.count() < acknowledged)
        m_workload.next();
    const QString without = m_workload.model().differenceToStore();
    if (without.isEmpty())
        return {};
    m_workload.next(); // may have been committed without being acknowledged
    const QString with = m_workload.model().differenceToStore();
    if (with.isEmpty())
        return {};
    return QStringLiteral("after %1 acknowledged changes: %2; with the one under way: %3")
        .arg(acknowledged)
        .arg(without, with);
}

QString KillRun::killOnce()
{
    const int acknowledged = runWriterAndKill();
    QString problem;
    if (!DataService::instance().open(m_storePath, &problem))
        return problem;
    problem = check(acknowledged);
    if (problem.isEmpty())
        DataService::instance().checkConsistency(&problem);
    const QString complaint = sqliteComplaint(m_storePath);
    DataService::instance().close();
    return problem.isEmpty() ? complaint : problem;
}
