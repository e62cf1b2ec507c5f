// From the start of the client's process to the painted first page with 100,000 persons, against the same
// with an empty store, in milliseconds. Then the client compares the page with the store, on both sides.

#include "support/Figure.h"
#include "support/StoreFiles.h"

#include <QCoreApplication>
#include <QProcess>

using namespace qarn_bench;

namespace
{

constexpr int Count = 100000;
constexpr int Rounds = 7;

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

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const StoreFiles files;
    const QString big = makeStore(files, QStringLiteral("big.db"), Count);
    const QString empty = makeStore(files, QStringLiteral("empty.db"), 0);
    Figure figure{"first_page_100000_ms"};
    figure.limit = 2.5;
    measureAlternately(
        figure, Rounds, [&] { return untilFirstPage(big); }, [&] { return untilFirstPage(empty); });
    return report(figure);
}
