#pragma once

#include "FaultPlan.h"

#include <httplib.h>

namespace sim
{

/// Whether the fault stands in place of the real answer; the others only alter it.
bool replacesAnswer(Fault fault);

/// Misbehaves in place of an answer.
void actFault(const FaultRule& rule, const httplib::Request& request, httplib::Response& response);

} // namespace sim
