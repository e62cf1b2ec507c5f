#include "Base64.h"

#include <array>
#include <cstdint>

namespace sim
{

namespace
{

constexpr std::int8_t Invalid = -1;

constexpr std::array<std::int8_t, 256> makeValues()
{
    std::array<std::int8_t, 256> values{};
    for (auto& value : values)
        value = Invalid;
    constexpr std::string_view alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    for (std::size_t i = 0; i < alphabet.size(); ++i)
        values[static_cast<unsigned char>(alphabet[i])] = static_cast<std::int8_t>(i);
    return values;
}

constexpr auto values = makeValues();

} // namespace

std::optional<std::string> decodeBase64(std::string_view text)
{
    if (text.size() % 4 != 0)
        return std::nullopt;
    std::size_t padding = 0;
    while (padding < 2 && padding < text.size() && text[text.size() - 1 - padding] == '=')
        ++padding;
    std::string bytes;
    bytes.reserve(text.size() / 4 * 3);
    std::uint32_t bits = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool padded = i >= text.size() - padding;
        const std::int8_t value = padded ? std::int8_t(0) : values[static_cast<unsigned char>(text[i])];
        if (value == Invalid)
            return std::nullopt;
        bits = bits << 6 | static_cast<std::uint32_t>(value);
        if (i % 4 == 3) {
            bytes += static_cast<char>(bits >> 16 & 0xff);
            bytes += static_cast<char>(bits >> 8 & 0xff);
            bytes += static_cast<char>(bits & 0xff);
        }
    }
    bytes.resize(bytes.size() - padding);
    return bytes;
}

} // namespace sim
