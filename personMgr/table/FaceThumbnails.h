#pragma once

#include <QByteArray>
#include <QCache>
#include <QImage>
#include <QSize>

namespace qarn_personMgr
{

/// Small pictures of faces for the rows. Remembers the last ones, so that a page that is shown again need
/// not be decoded again. GUI thread.
class FaceThumbnails
{
public:
    static FaceThumbnails& instance();

    /// The photograph stretched to exactly `size`, in pixels of a screen with that pixel ratio; null when
    /// there is none or it cannot be read.
    QImage thumbnail(const QByteArray& photograph, const QSize& size, qreal pixelRatio);

private:
    FaceThumbnails();

    QCache<QByteArray, QImage> m_images; ///< by size and digest of the photograph; cost in bytes
};

} // namespace qarn_personMgr
