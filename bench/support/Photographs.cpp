#include "support/Photographs.h"

#include <QBuffer>
#include <QImage>
#include <QRandomGenerator>

namespace qarn_bench
{

QByteArray encodeJpeg(const QImage& image, int quality)
{
    QBuffer buffer;
    image.save(&buffer, "jpg", quality);
    return buffer.data();
}

QByteArray photograph(quint32 seed, const QSize& size)
{
    QRandomGenerator random(seed);
    QImage shapes(40, 30, QImage::Format_RGB32);
    for (int y = 0; y < shapes.height(); ++y) {
        for (int x = 0; x < shapes.width(); ++x)
            shapes.setPixel(x, y, random.generate());
    }
    QImage photo = shapes.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                       .convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < photo.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(photo.scanLine(y));
        for (int x = 0; x < photo.width(); ++x)
            line[x] ^= random.generate() & 0x00070707;
    }
    return encodeJpeg(photo, 90);
}

QList<QByteArray> photographs(int count, const QSize& size)
{
    QList<QByteArray> all;
    for (int i = 0; i < count; ++i)
        all.append(photograph(quint32(i + 1), size));
    return all;
}

QByteArray withComment(QByteArray jpeg, int number)
{
    const QByteArray text = QByteArray::number(number).rightJustified(10, '0');
    const auto length = static_cast<char>(text.size() + 2);
    return jpeg.insert(2, QByteArray("\xff\xfe\x00", 3) + length + text);
}

} // namespace qarn_bench
