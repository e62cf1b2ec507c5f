#pragma once

#include "FaultPlan.h"

#include <httplib.h>

#include <atomic>
#include <string>

namespace sim
{

/// Whether the fault stands in place of the real answer; the others only alter it.
bool replacesAnswer(Fault fault);

/// Misbehaves in place of an answer. `stopping` ends those that last.
void actFault(const FaultRule& rule, const httplib::Request& request, httplib::Response& response,
              const std::atomic<bool>& stopping);

} // namespace sim
