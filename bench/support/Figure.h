#pragma once

#include <functional>

namespace qarn_bench
{

/// One measured figure: what we cost, what the peer costs in the same run, and how much more we may cost.
struct Figure {
    const char* name; ///< with its unit at the end
    double ours = 0;
    double peer = 0;
    double limit = 0; ///< the highest ratio of ours to peer that is good

    double ratio() const { return peer > 0 ? ours / peer : 0; }
    bool holds() const { return peer > 0 && ratio() <= limit; }
};

/// Prints the figure as one JSON line with the resident memory of this process. Returns what main() gives
/// back: 0 when the figure holds, else 1.
int report(const Figure& figure);

/// Milliseconds that an action takes.
double milliseconds(const std::function<void()>& action);

/// Runs both in turn so that what else the machine does meets both, and puts the medians into the figure. A
/// run gives its own measure back, so that it can prepare outside of it.
void measureAlternately(Figure& figure, int rounds, const std::function<double()>& ours,
                        const std::function<double()>& peer);

} // namespace qarn_bench
