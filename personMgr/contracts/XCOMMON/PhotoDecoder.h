#pragma once

#include <XCOMMON/Export.h>

#include <QByteArray>
#include <QImage>
#include <QSize>

namespace XCOMMON
{

/// Turns the bytes of a photograph into an upright picture. The one decoder for every place that shows or
/// re-encodes one: the format is told from the bytes, the EXIF orientation is honoured, the header is read
/// first and more than 100 megapixels are refused before memory is taken. Any thread; never throws.
class XCOMMON_EXPORT PhotoDecoder
{
public:
    /// A null image when the bytes are no picture or too large. With `target` the decoder may scale while
    /// it reads: the result is at least as large as `target` where the photograph is, never larger than
    /// the photograph; an invalid size asks for the full one.
    static QImage decode(const QByteArray& bytes, const QSize& target = QSize());
};

} // namespace XCOMMON
