#pragma once

#include <qarn_worker/AlertHistory.h>

namespace qarn_worker
{

/// Appends an alert to the history and drops the oldest over the limit. Any thread.
void rememberAlert(const Alert& alert);

} // namespace qarn_worker
