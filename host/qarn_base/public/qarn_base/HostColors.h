#pragma once

#include <QColor>

/// Colours of the host's dark palette that are also painted by hand; everything else takes them from the
/// client's style sheet.
namespace qarn_base::colors
{

inline constexpr QColor Window(0x0b, 0x12, 0x1e);
inline constexpr QColor Panel(0x14, 0x1f, 0x30);
inline constexpr QColor TitleBar(0x17, 0x23, 0x35);
inline constexpr QColor Line(0x21, 0x31, 0x47);
inline constexpr QColor Border(0x34, 0x49, 0x6b);
inline constexpr QColor Hover(0x21, 0x31, 0x47);
inline constexpr QColor Selected(0x29, 0x3a, 0x56);
inline constexpr QColor Text(0xcc, 0xd3, 0xdd);
inline constexpr QColor QuietText(0x9a, 0xa5, 0xb5);
inline constexpr QColor FaintText(0x84, 0x8f, 0x9f);
inline constexpr QColor Accent(0x2c, 0x7d, 0xce);
inline constexpr QColor ErrorText(0xf0, 0x70, 0x70);
inline constexpr QColor Error(0xdc, 0x4d, 0x4d);

} // namespace qarn_base::colors
