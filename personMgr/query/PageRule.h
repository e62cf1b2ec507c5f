#pragma once

namespace qarn_personMgr
{

/// The rows of one page within a list of all rows.
struct PageSpan {
    int number = 0; ///< counted from 1; 0: there is no page
    int first = 0;  ///< index of the first row
    int count = 0;
};

/// The page that is shown when `wanted` is asked for: that page when it is there, otherwise the last one.
PageSpan choosePage(int total, int wanted, int pageSize);

} // namespace qarn_personMgr
