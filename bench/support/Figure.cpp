#include "support/Figure.h"

#include "support/Memory.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

namespace qarn_bench
{

namespace
{

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

} // namespace

int report(const Figure& figure)
{
    std::printf(R"({"name": "%s", "ours": %.3f, "peer": %.3f, "ratio": %.3f, "limit": %.2f, "rss_mb": %.1f})"
                "\n",
                figure.name, figure.ours, figure.peer, figure.ratio(), figure.limit,
                residentBytes() / 1048576.0);
    std::fflush(stdout);
    return figure.holds() ? 0 : 1;
}

double milliseconds(const std::function<void()>& action)
{
    const auto start = std::chrono::steady_clock::now();
    action();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

void measureAlternately(Figure& figure, int rounds, const std::function<double()>& ours,
                        const std::function<double()>& peer)
{
    std::vector<double> mine;
    std::vector<double> theirs;
    for (int round = 0; round < rounds; ++round) {
        mine.push_back(ours());
        theirs.push_back(peer());
    }
    figure.ours = median(mine);
    figure.peer = median(theirs);
}

} // namespace qarn_bench
