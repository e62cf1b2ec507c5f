#include "ExifOrientation.h"

#include <QTransform>
#include <QtEndian>

namespace XCOMMON
{

namespace
{

constexpr int TiffHeaderSize = 8;
constexpr int EntrySize = 12;
constexpr quint16 OrientationTag = 0x0112;
constexpr quint16 ShortType = 3;

/// Reads numbers of a TIFF structure; what lies outside it reads as 0.
class TiffView
{
public:
    explicit TiffView(const QByteArray& bytes) : m_bytes(bytes), m_bigEndian(bytes.startsWith("MM")) {}

    bool isValid() const
    {
        return m_bytes.size() >= TiffHeaderSize && (m_bigEndian || m_bytes.startsWith("II")) && u16(2) == 42;
    }
    quint16 u16(qint64 at) const { return read<quint16>(at); }
    quint32 u32(qint64 at) const { return read<quint32>(at); }

private:
    template <typename Number>
    Number read(qint64 at) const
    {
        if (at < 0 || at > m_bytes.size() - static_cast<qint64>(sizeof(Number)))
            return 0;
        const char* from = m_bytes.constData() + at;
        return m_bigEndian ? qFromBigEndian<Number>(from) : qFromLittleEndian<Number>(from);
    }

    const QByteArray& m_bytes;
    bool m_bigEndian;
};

} // namespace

int exifOrientation(const QByteArray& block)
{
    const QByteArray mark("Exif\0\0", 6);
    const QByteArray tiff = block.startsWith(mark) ? block.mid(mark.size()) : block;
    const TiffView view(tiff);
    if (!view.isValid())
        return UprightOrientation;
    const qint64 directory = view.u32(4);
    const int entries = view.u16(directory);
    for (int i = 0; i < entries; ++i) {
        const qint64 entry = directory + 2 + static_cast<qint64>(i) * EntrySize;
        if (view.u16(entry) != OrientationTag || view.u16(entry + 2) != ShortType)
            continue;
        const int orientation = view.u16(entry + 8);
        return orientation >= 1 && orientation <= 8 ? orientation : UprightOrientation;
    }
    return UprightOrientation;
}

QByteArray webpExifBlock(const QByteArray& bytes)
{
    constexpr int riffHeader = 12;
    constexpr int chunkHeader = 8;
    qint64 at = riffHeader;
    while (at + chunkHeader <= bytes.size()) {
        const qint64 length = qFromLittleEndian<quint32>(bytes.constData() + at + 4);
        if (qstrncmp(bytes.constData() + at, "EXIF", 4) == 0)
            return bytes.mid(static_cast<int>(at) + chunkHeader,
                             static_cast<int>(qMin<qint64>(length, bytes.size())));
        at += chunkHeader + length + length % 2;
    }
    return QByteArray();
}

bool liesOnSide(int orientation)
{
    return orientation >= 5;
}

QImage upright(const QImage& image, int orientation)
{
    const QTransform quarterTurn = QTransform().rotate(90);
    switch (orientation) {
    case 2:
        return image.mirrored(true, false);
    case 3:
        return image.mirrored(true, true);
    case 4:
        return image.mirrored(false, true);
    case 5:
        return image.transformed(quarterTurn).mirrored(true, false);
    case 6:
        return image.transformed(quarterTurn);
    case 7:
        return image.transformed(quarterTurn).mirrored(false, true);
    case 8:
        return image.transformed(quarterTurn).mirrored(true, true);
    default:
        return image;
    }
}

} // namespace XCOMMON
