#pragma once

#include <QBuffer>
#include <QColor>
#include <QImage>
#include <QPainter>

/// A picture whose quarters are, from the upper left clockwise, red, green, blue and grey, so that a turned
/// or mirrored one is recognised.
inline QImage quarters(const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    const int halfWidth = size.width() / 2;
    const int halfHeight = size.height() / 2;
    QPainter painter(&image);
    painter.fillRect(image.rect(), QColor(200, 30, 30));
    painter.fillRect(halfWidth, 0, size.width(), halfHeight, QColor(30, 180, 30));
    painter.fillRect(halfWidth, halfHeight, size.width(), size.height(), QColor(30, 30, 200));
    painter.fillRect(0, halfHeight, halfWidth, size.height(), QColor(120, 120, 120));
    return image;
}

inline QByteArray encoded(const QImage& image, const char* format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    return image.save(&buffer, format) ? bytes : QByteArray();
}

/// The largest mean difference of a color channel over a grid of points; 255 for pictures of other sizes.
inline int difference(const QImage& left, const QImage& right)
{
    if (left.size() != right.size() || left.isNull())
        return 255;
    constexpr int points = 16;
    int sums[3] = {};
    for (int i = 0; i < points * points; ++i) {
        const int x = (2 * (i % points) + 1) * left.width() / (2 * points);
        const int y = (2 * (i / points) + 1) * left.height() / (2 * points);
        const QRgb a = left.pixel(x, y);
        const QRgb b = right.pixel(x, y);
        sums[0] += qAbs(qRed(a) - qRed(b));
        sums[1] += qAbs(qGreen(a) - qGreen(b));
        sums[2] += qAbs(qBlue(a) - qBlue(b));
    }
    return qMax(sums[0], qMax(sums[1], sums[2])) / (points * points);
}
