#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace sim
{

/// The bytes of padded Base64 text of the standard alphabet; nothing for any other text.
std::optional<std::string> decodeBase64(std::string_view text);

} // namespace sim
