#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>

namespace XCOMMON
{

/// How the pixels of a photograph lie in its file, as EXIF numbers it: 1 is upright, 5 to 8 lie on a side.
constexpr int UprightOrientation = 1;

/// The orientation that an EXIF block tells, with or without its "Exif" mark; upright when it tells none.
int exifOrientation(const QByteArray& block);
/// The EXIF block of a WebP file; empty when it has none.
QByteArray webpExifBlock(const QByteArray& bytes);

bool liesOnSide(int orientation);
QImage upright(const QImage& image, int orientation);

} // namespace XCOMMON
