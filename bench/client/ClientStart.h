#pragma once

#include <QString>

namespace qarn_bench
{

/// Milliseconds from the start of the client's process to the painted first page of a store. Then the client
/// compares the page with the store, and this program ends when it finds a difference.
double untilFirstPage(const QString& store);

} // namespace qarn_bench
