#include "ExifOrientation.h"
#include "JpegReader.h"
#include "PngChunks.h"

#include <XCOMMON/PhotoDecoder.h>

#include <QBuffer>
#include <QImageReader>

namespace XCOMMON
{

namespace
{

constexpr qint64 MaxPixels = 100'000'000;

bool isAcceptable(const QSize& size)
{
    return !size.isEmpty() && static_cast<qint64>(size.width()) * size.height() <= MaxPixels;
}

QImage decodeJpeg(const QByteArray& bytes, const QSize& target)
{
    JpegReader reader(bytes);
    if (!reader.readHeader() || !isAcceptable(reader.size()))
        return QImage();
    const int orientation = exifOrientation(reader.exif());
    return upright(reader.read(liesOnSide(orientation) ? target.transposed() : target), orientation);
}

QImage decodeOther(QByteArray bytes, const char* format)
{
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer, format);
    reader.setAutoDetectImageFormat(false);
    return isAcceptable(reader.size()) ? reader.read() : QImage();
}

QImage decodePng(const QByteArray& bytes)
{
    const PngChunks chunks = splitPng(bytes);
    return upright(decodeOther(chunks.picture, "png"), exifOrientation(chunks.exif));
}

} // namespace

QImage PhotoDecoder::decode(const QByteArray& bytes, const QSize& target)
{
    if (bytes.startsWith("\xff\xd8\xff"))
        return decodeJpeg(bytes, target);
    if (bytes.startsWith("\x89PNG\r\n\x1a\n"))
        return decodePng(bytes);
    if (bytes.startsWith("RIFF") && bytes.mid(8, 4) == "WEBP")
        return upright(decodeOther(bytes, "webp"), exifOrientation(webpExifBlock(bytes)));
    if (bytes.startsWith("BM"))
        return decodeOther(bytes, "bmp");
    if (bytes.startsWith("GIF8"))
        return decodeOther(bytes, "gif");
    return QImage();
}

} // namespace XCOMMON
