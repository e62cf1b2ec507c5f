#pragma once

#include "RegisterState.h"

#include <QStringList>

namespace qarn_data
{

/// A person as the store keeps it: times in local time, texts that are well-formed Unicode.
PersonInfo normalised(PersonInfo info);

/// "Anna (A1)" or "Anna", for the operator.
QString caption(const PersonInfo& info);

/// Several refusals as one text, the first few by name.
QString listed(const QStringList& refusals);

} // namespace qarn_data
