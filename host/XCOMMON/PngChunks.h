#pragma once

#include <QByteArray>

namespace XCOMMON
{

struct PngChunks {
    QByteArray picture; ///< the file with nothing but what its pixels need
    QByteArray exif;    ///< the EXIF block; empty when there is none
};

/// Splits a PNG file. Its texts and profiles are left out: packed, they may hide gigabytes in a small file.
PngChunks splitPng(const QByteArray& bytes);

} // namespace XCOMMON
