#include "JpegMaker.h"

#include <QDataStream>
#include <QVector>

#include <cstdio>
#include <cstdlib>

#include <jpeglib.h>

namespace
{

constexpr int quality = 95;

QVector<JSAMPLE> samples(const QImage& image, int y, const JpegMaker& maker)
{
    QVector<JSAMPLE> row;
    const auto add = [&row](int value) { row.append(static_cast<JSAMPLE>(value)); };
    for (int x = 0; x < image.width(); ++x) {
        const QColor color = image.pixelColor(x, y);
        if (maker.color == JpegMaker::Grey) {
            add(qGray(color.rgb()));
            continue;
        }
        const bool light = maker.color == JpegMaker::Rgb || maker.adobeMarker;
        for (const int value : {color.red(), color.green(), color.blue()})
            add(light ? value : 255 - value);
        if (maker.color == JpegMaker::Cmyk || maker.color == JpegMaker::Ycck)
            add(light ? 255 : 0); // no black ink
    }
    return row;
}

void setUp(jpeg_compress_struct& info, const JpegMaker& maker)
{
    const bool cmyk = maker.color == JpegMaker::Cmyk || maker.color == JpegMaker::Ycck;
    info.input_components = maker.color == JpegMaker::Grey ? 1 : cmyk ? 4 : 3;
    info.in_color_space = maker.color == JpegMaker::Grey ? JCS_GRAYSCALE : cmyk ? JCS_CMYK : JCS_RGB;
    jpeg_set_defaults(&info);
    if (maker.color == JpegMaker::Ycck)
        jpeg_set_colorspace(&info, JCS_YCCK);
    if (cmyk)
        info.write_Adobe_marker = maker.adobeMarker ? TRUE : FALSE;
    jpeg_set_quality(&info, quality, TRUE);
    info.arith_code = maker.arithmetic ? TRUE : FALSE;
    info.restart_interval = static_cast<unsigned>(maker.restartInterval);
    if (maker.progressive)
        jpeg_simple_progression(&info);
}

} // namespace

QByteArray JpegMaker::make(const QImage& image) const
{
    jpeg_compress_struct info = {};
    jpeg_error_mgr errors = {};
    info.err = jpeg_std_error(&errors); // a mistake ends the test with a message
    jpeg_create_compress(&info);
    unsigned char* memory = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&info, &memory, &size);
    info.image_width = static_cast<JDIMENSION>(image.width());
    info.image_height = static_cast<JDIMENSION>(image.height());
    setUp(info, *this);
    jpeg_start_compress(&info, TRUE);
    for (int y = 0; y < image.height(); ++y) {
        QVector<JSAMPLE> row = samples(image, y, *this);
        JSAMPROW rows[] = {row.data()};
        jpeg_write_scanlines(&info, rows, 1);
    }
    jpeg_finish_compress(&info);
    jpeg_destroy_compress(&info);
    const QByteArray bytes(reinterpret_cast<const char*>(memory), static_cast<int>(size));
    std::free(memory);
    return bytes;
}

QByteArray exifBlock(int orientation, bool bigEndian)
{
    QByteArray tiff;
    QDataStream stream(&tiff, QIODevice::WriteOnly);
    stream.setByteOrder(bigEndian ? QDataStream::BigEndian : QDataStream::LittleEndian);
    stream.writeRawData(bigEndian ? "MM" : "II", 2);
    stream << quint16(42) << quint32(8);                                      // header; the directory follows
    stream << quint16(2);                                                     // two entries
    stream << quint16(0x010F) << quint16(2) << quint32(2) << quint32(0x4141); // maker: "A"
    stream << quint16(0x0112) << quint16(3) << quint32(1) << quint16(orientation) << quint16(0);
    stream << quint32(0); // no further directory
    return QByteArray("Exif\0\0", 6) + tiff;
}

QByteArray withOrientation(const QByteArray& jpeg, int orientation, bool bigEndian)
{
    const QByteArray block = exifBlock(orientation, bigEndian);
    QByteArray marker;
    QDataStream stream(&marker, QIODevice::WriteOnly);
    stream << quint16(0xFFE1) << quint16(block.size() + 2);
    return jpeg.left(2) + marker + block + jpeg.mid(2);
}
