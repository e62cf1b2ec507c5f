#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace qarn_bench
{

struct SqlBlob {
    std::string bytes;
};
using SqlValue = std::variant<std::monostate, std::int64_t, double, std::string, SqlBlob>;

/// The values that stand in `expanded` where `sql` has its parameters. SQLite tells a statement's bound
/// values only in this written-out form.
std::vector<SqlValue> boundValues(const std::string& sql, const std::string& expanded);

} // namespace qarn_bench
