#pragma once

#include <QString>

namespace qarn_data
{

class SqlStore;
struct RegisterState;

/// The first difference between what is stored and what `state` holds, or what the database finds wrong in
/// itself; empty when all is well.
QString findInconsistency(SqlStore& store, const RegisterState& state);

} // namespace qarn_data
