#pragma once

#include <qarn_base/Export.h>

namespace qarn_base
{

/// Choices for a tree; a tree without a configuration has the defaults.
struct TreeConfig {
    bool checkable = false; ///< every item has a check box
};

} // namespace qarn_base
