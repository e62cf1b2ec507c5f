#include "JpegReader.h"

#include <QRgb>

#include <csetjmp>
#include <cstdio> // jpeglib.h needs it

#include <jpeglib.h>

namespace XCOMMON
{

namespace
{

/// A progressive file has about ten scans. Thousands of empty ones in a small file would take minutes.
constexpr int MaxScans = 100;
constexpr QRgb Unread = qRgb(128, 128, 128);

struct ErrorManager : jpeg_error_mgr {
    std::jmp_buf stop;
};

[[noreturn]] void stopReading(j_common_ptr info)
{
    std::longjmp(static_cast<ErrorManager*>(info->err)->stop, 1);
}

void saySilence(j_common_ptr /*info*/) {}

void countWarning(j_common_ptr info, int level)
{
    if (level < 0)
        ++info->err->num_warnings;
}

void limitScans(j_common_ptr info)
{
    if (reinterpret_cast<j_decompress_ptr>(info)->input_scan_number > MaxScans)
        stopReading(info);
}

/// Adobe's programs write the amounts of ink inverted; 255 is bare paper there.
void cmykToRgb(const JSAMPLE* cmyk, QRgb* row, JDIMENSION width, bool inverted)
{
    const auto light = [inverted](JSAMPLE ink) { return inverted ? int(ink) : 255 - ink; };
    for (JDIMENSION x = 0; x < width; ++x, cmyk += 4) {
        const int black = light(cmyk[3]);
        row[x] =
            qRgb(light(cmyk[0]) * black / 255, light(cmyk[1]) * black / 255, light(cmyk[2]) * black / 255);
    }
}

bool suffices(int pixels, int divisor, int wanted)
{
    return (pixels + divisor - 1) / divisor >= qMin(wanted, pixels);
}

/// The decoder halves, quarters or eighths a picture at almost no cost.
unsigned divisorFor(const QSize& size, const QSize& target)
{
    for (const int divisor : {8, 4, 2}) {
        if (!target.isEmpty() && suffices(size.width(), divisor, target.width()) &&
            suffices(size.height(), divisor, target.height()))
            return static_cast<unsigned>(divisor);
    }
    return 1;
}

} // namespace

struct JpegReader::Private {
    const QByteArray& bytes;
    jpeg_decompress_struct info = {};
    ErrorManager errors = {};
    jpeg_progress_mgr progress = {};
    JDIMENSION rowsRead = 0;

    explicit Private(const QByteArray& source) : bytes(source)
    {
        info.err = jpeg_std_error(&errors);
        errors.error_exit = stopReading;
        errors.output_message = saySilence;
        errors.emit_message = countWarning;
        progress.progress_monitor = limitScans;
    }

    // The steps below leave by longjmp when the file is bad, so they hold plain values only.
    bool open()
    {
        if (setjmp(errors.stop) != 0)
            return false;
        jpeg_create_decompress(&info);
        info.progress = &progress;
        jpeg_save_markers(&info, JPEG_APP0 + 1, 0xFFFF);
        jpeg_mem_src(&info, reinterpret_cast<const unsigned char*>(bytes.constData()),
                     static_cast<unsigned long>(bytes.size()));
        return jpeg_read_header(&info, TRUE) == JPEG_HEADER_OK;
    }

    bool start(unsigned divisor)
    {
        if (setjmp(errors.stop) != 0)
            return false;
        const bool cmyk = info.jpeg_color_space == JCS_CMYK || info.jpeg_color_space == JCS_YCCK;
        info.out_color_space = cmyk                              ? JCS_CMYK
                               : Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? JCS_EXT_BGRX
                                                                 : JCS_EXT_XRGB;
        info.scale_num = 1;
        info.scale_denom = divisor;
        return jpeg_start_decompress(&info) != FALSE;
    }

    /// False when the file ends or breaks before the last row.
    bool readRows(uchar* pixels, qsizetype bytesPerLine, JSAMPLE* cmykRow)
    {
        if (setjmp(errors.stop) != 0)
            return false;
        while (info.output_scanline < info.output_height) {
            uchar* target = pixels + bytesPerLine * info.output_scanline;
            JSAMPROW row = cmykRow != nullptr ? cmykRow : target;
            if (jpeg_read_scanlines(&info, &row, 1) != 1)
                return false;
            if (cmykRow != nullptr)
                cmykToRgb(cmykRow, reinterpret_cast<QRgb*>(target), info.output_width,
                          info.saw_Adobe_marker != FALSE);
            rowsRead = info.output_scanline;
        }
        return true;
    }
};

JpegReader::JpegReader(const QByteArray& bytes) : d(std::make_unique<Private>(bytes)) {}

JpegReader::~JpegReader()
{
    jpeg_destroy_decompress(&d->info);
}

bool JpegReader::readHeader()
{
    return d->open();
}

QSize JpegReader::size() const
{
    return QSize(static_cast<int>(d->info.image_width), static_cast<int>(d->info.image_height));
}

QByteArray JpegReader::exif() const
{
    for (auto* marker = d->info.marker_list; marker != nullptr; marker = marker->next) {
        const auto data = QByteArray::fromRawData(reinterpret_cast<const char*>(marker->data),
                                                  static_cast<int>(marker->data_length));
        if (data.startsWith("Exif"))
            return QByteArray(data.constData(), data.size());
    }
    return QByteArray();
}

QImage JpegReader::read(const QSize& target)
{
    if (!d->start(divisorFor(size(), target)))
        return QImage();
    QImage image(static_cast<int>(d->info.output_width), static_cast<int>(d->info.output_height),
                 QImage::Format_RGB32);
    if (image.isNull())
        return QImage();
    image.fill(Unread);
    const bool cmyk = d->info.out_color_space == JCS_CMYK;
    QByteArray cmykRow(cmyk ? image.width() * 4 : 0, Qt::Uninitialized);
    d->readRows(image.bits(), image.bytesPerLine(),
                cmyk ? reinterpret_cast<JSAMPLE*>(cmykRow.data()) : nullptr);
    return d->rowsRead > 0 ? image : QImage();
}

} // namespace XCOMMON
