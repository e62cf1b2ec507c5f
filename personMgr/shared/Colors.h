#pragma once

#include <QColor>

namespace qarn_personMgr
{

/// The module's fixed colours; all others come with the host's style.
namespace Colors
{
constexpr QRgb Page = 0xff0b121e; ///< of the page, the table and its rows
constexpr QRgb Focus = 0xff2c7dce;
constexpr QRgb QuietText = 0xff6c7586;
} // namespace Colors

} // namespace qarn_personMgr
