// From the start of the client's process to the painted first page with 100,000 persons, against the same
// with an empty store, in milliseconds. Then the client compares the page with the store, on both sides.

#include "client/ClientStart.h"
#include "support/Figure.h"
#include "support/StoreFiles.h"

#include <QCoreApplication>

using namespace qarn_bench;

namespace
{

constexpr int Count = 100000;
constexpr int Rounds = 7;

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
