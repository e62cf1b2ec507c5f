#pragma once

namespace qarn_bench
{

/// Resident memory of this process, after the allocator has given back what it holds in reserve.
double residentBytes();

} // namespace qarn_bench
