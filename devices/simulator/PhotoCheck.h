#pragma once

#include <cstddef>
#include <string_view>

namespace sim
{

constexpr std::size_t MaxPhotoBytes = 2 * 1024 * 1024;

/// Whether the bytes are a JPEG file with a picture in it. Looks at its segments, decodes nothing.
bool isJpeg(std::string_view bytes);

} // namespace sim
