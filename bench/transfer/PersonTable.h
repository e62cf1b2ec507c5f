#pragma once

#include <QString>

namespace qarn_bench
{

/// Writes an import file of `count` invented persons, after the first `skipped` ones. Behind the fields that
/// an import reads stands an id of each person, so that a table beside ours can have the same unique indexes.
void writePersonTable(const QString& path, int count, int skipped = 0);

/// Lines above the first person.
constexpr int personTableTitleLines = 6;

} // namespace qarn_bench
