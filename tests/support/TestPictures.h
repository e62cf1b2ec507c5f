#pragma once

#include <QBuffer>
#include <QColor>
#include <QImage>
#include <QSize>

/// A picture of one colour as the bytes of a JPEG file.
inline QByteArray jpeg(const QColor& color, const QSize& size = QSize(200, 240))
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPG", 95);
    return bytes;
}
