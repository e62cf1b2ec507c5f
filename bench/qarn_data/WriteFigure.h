#pragma once

#include "support/StoreFiles.h"

#include <functional>

namespace qarn_bench
{

/// Measures writes of the service, each round on a new copy of a closed store, against the statements that
/// the service was seen to run for them, through SQLite's C interface. Returns what main() gives back.
int measureWrites(const char* name, const StoreFiles& files, const QString& store,
                  const std::function<void()>& write);

} // namespace qarn_bench
