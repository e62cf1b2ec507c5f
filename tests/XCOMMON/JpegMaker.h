#pragma once

#include <QByteArray>
#include <QImage>

/// Writes JPEG files of the kinds that Qt does not write.
struct JpegMaker {
    enum Color { Rgb, Grey, Cmyk, Ycck };

    Color color = Rgb;
    bool progressive = false;
    bool arithmetic = false;
    bool adobeMarker = true; ///< of CMYK and YCCK: the amounts of ink are inverted
    int restartInterval = 0;

    QByteArray make(const QImage& image) const;
};

/// The JPEG file with an EXIF block that tells the orientation, in the byte order of Intel or Motorola.
QByteArray withOrientation(const QByteArray& jpeg, int orientation, bool bigEndian = false);
/// The EXIF block alone, beginning with its "Exif" mark.
QByteArray exifBlock(int orientation, bool bigEndian = false);
