#include "query/PageRule.h"

#include <algorithm>
#include <cmath>

namespace qarn_personMgr
{

PageSpan choosePage(int total, int wanted, int pageSize)
{
    if (total <= 0)
        return {};
    const int rows = std::max(pageSize, 1);
    const int pageCount = static_cast<int>(std::ceil(static_cast<double>(total) / rows));
    const int index = (wanted >= 1 && wanted < pageCount ? wanted : pageCount) - 1;
    const int first = index * rows;
    return {index + 1, first, std::min(rows, total - first)};
}

} // namespace qarn_personMgr
