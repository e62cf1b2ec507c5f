#pragma once

#include "Register.h"

namespace qarn_data
{

/// What is to be announced when `after` takes the place of `before`.
Announcements differences(const RegisterState& before, const RegisterState& after);

} // namespace qarn_data
