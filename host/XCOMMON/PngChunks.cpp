#include "PngChunks.h"

#include <QtEndian>

#include <algorithm>
#include <array>

namespace XCOMMON
{

namespace
{

constexpr int SignatureSize = 8;
constexpr int ChunkFrame = 12; ///< length, name and checksum around a chunk's data

bool isNeeded(const QByteArray& name)
{
    static const std::array<const char*, 5> needed = {"IHDR", "PLTE", "tRNS", "IDAT", "IEND"};
    return std::any_of(needed.begin(), needed.end(), [&name](const char* known) { return name == known; });
}

} // namespace

PngChunks splitPng(const QByteArray& bytes)
{
    PngChunks chunks;
    chunks.picture = bytes.left(SignatureSize);
    qint64 at = SignatureSize;
    while (at + ChunkFrame <= bytes.size()) {
        const int start = static_cast<int>(at);
        const qint64 length = qFromBigEndian<quint32>(bytes.constData() + start);
        const QByteArray name = bytes.mid(start + 4, 4);
        const qint64 size = std::min<qint64>(length + ChunkFrame, bytes.size() - at); // cut short
        if (isNeeded(name))
            chunks.picture += bytes.mid(start, static_cast<int>(size));
        else if (name == "eXIf" && size == length + ChunkFrame)
            chunks.exif = bytes.mid(start + SignatureSize, static_cast<int>(length));
        at += size;
    }
    return chunks;
}

} // namespace XCOMMON
