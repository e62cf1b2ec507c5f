#pragma once

#include <QStringList>

namespace qarn_bench
{

/// Starts this program again with other arguments, so that a measure meets the heap of a new process, and
/// returns the number that the child prints.
double measureInChild(const QStringList& arguments);

/// What the child does at its end.
int printMeasure(double value);

} // namespace qarn_bench
