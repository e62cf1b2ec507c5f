// From the start of the client to the checked first page with 100,000 persons, against the same with an
// empty store. Whole processes, milliseconds.

#include "support/Figure.h"
#include "support/StoreFiles.h"

#include <QCoreApplication>
#include <QProcess>

using namespace qarn_bench;

namespace
{

constexpr int Count = 100000;
constexpr int Rounds = 7;

double selfTest(const QString& store)
{
    return milliseconds([&] {
        QProcess client;
        client.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        client.start(QStringLiteral(QARN_CLIENT),
                     {QStringLiteral("--self-test"), QStringLiteral("--store"), store});
        if (!client.waitForFinished(-1) || client.exitStatus() != QProcess::NormalExit ||
            client.exitCode() != 0)
            qFatal("the client's self-test fails");
    });
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
        figure, Rounds, [&] { return selfTest(big); }, [&] { return selfTest(empty); });
    return report(figure);
}
