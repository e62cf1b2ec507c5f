#pragma once

#include <QString>

namespace XCOMMON
{

/// `fileName` with the suffix of a name filter such as "CSV(*.csv)", unless it ends in one that the filter
/// lists. A filter for all files adds nothing.
QString withFilterSuffix(const QString& fileName, const QString& nameFilter);

} // namespace XCOMMON
