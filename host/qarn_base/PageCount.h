#pragma once

namespace qarn_base
{

/// How many pages of `pageSize` rows hold `totalCnt` rows; 0 without rows.
constexpr int pageCountOf(int totalCnt, int pageSize)
{
    return totalCnt > 0 && pageSize > 0 ? (totalCnt - 1) / pageSize + 1 : 0;
}

} // namespace qarn_base
