#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>

#include <memory>

namespace XCOMMON
{

/// Reads one JPEG picture of any kind. Of a damaged or cut file it gives what can be read.
class JpegReader
{
public:
    explicit JpegReader(const QByteArray& bytes); ///< the bytes must outlive the reader
    ~JpegReader();

    bool readHeader();
    QSize size() const;      ///< after readHeader(): the picture as it lies in the file
    QByteArray exif() const; ///< after readHeader(): the EXIF block; empty when there is none
    /// After readHeader(): the pixels, at least as many as `target` asks for where the picture has them, or
    /// all for an empty target. Null when not even a first row can be read.
    QImage read(const QSize& target);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace XCOMMON
