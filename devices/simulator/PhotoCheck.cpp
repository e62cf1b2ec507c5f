#include "PhotoCheck.h"

namespace sim
{

namespace
{

constexpr std::size_t FrameHeaderBytes = 9; ///< marker, length, precision, height, width

unsigned byteAt(std::string_view bytes, std::size_t position)
{
    return static_cast<unsigned char>(bytes[position]);
}

unsigned wordAt(std::string_view bytes, std::size_t position)
{
    return byteAt(bytes, position) << 8 | byteAt(bytes, position + 1);
}

bool isFrameHeader(unsigned marker)
{
    const bool tableOrReserved = marker == 0xc4 || marker == 0xc8 || marker == 0xcc;
    return marker >= 0xc0 && marker <= 0xcf && !tableOrReserved;
}

} // namespace

bool isJpeg(std::string_view bytes)
{
    if (bytes.size() < 4 || wordAt(bytes, 0) != 0xffd8 || wordAt(bytes, bytes.size() - 2) != 0xffd9)
        return false;
    std::size_t position = 2;
    while (position + FrameHeaderBytes <= bytes.size()) {
        if (byteAt(bytes, position) != 0xff)
            return false;
        const unsigned marker = byteAt(bytes, position + 1);
        if (marker == 0xff) { // fill byte
            ++position;
            continue;
        }
        if (isFrameHeader(marker))
            return wordAt(bytes, position + 5) != 0 && wordAt(bytes, position + 7) != 0;
        position += 2 + wordAt(bytes, position + 2);
    }
    return false;
}

} // namespace sim
