#include "client/ClientStart.h"

#include "support/Figure.h"

#include <QProcess>

namespace qarn_bench
{

double untilFirstPage(const QString& store)
{
    QProcess client;
    const double time = milliseconds([&] {
        client.start(QStringLiteral(QARN_CLIENT),
                     {QStringLiteral("--self-test"), QStringLiteral("--store"), store});
        while (!client.canReadLine() && client.waitForReadyRead(-1)) {
        }
    });
    if (client.readLine() != "first page shown\n")
        qFatal("the client shows no page");
    if (!client.waitForFinished(-1) || client.exitStatus() != QProcess::NormalExit || client.exitCode() != 0)
        qFatal("the client's self-test fails: %s", client.readAllStandardError().constData());
    return time;
}

} // namespace qarn_bench
