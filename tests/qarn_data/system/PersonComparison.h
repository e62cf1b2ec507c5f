#pragma once

#include <QString>

namespace qarn_data
{
struct PersonInfo;
}

/// The name of the first member in which two records differ; empty when they are equal.
QString differingMember(const qarn_data::PersonInfo& a, const qarn_data::PersonInfo& b);
