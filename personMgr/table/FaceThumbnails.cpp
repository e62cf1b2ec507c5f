#include "table/FaceThumbnails.h"

#include <XCOMMON/PhotoDecoder.h>

#include <QCryptographicHash>

namespace qarn_personMgr
{
namespace
{

constexpr int cacheBytes = 32 * 1024 * 1024;

QImage makeThumbnail(const QByteArray& photograph, const QSize& pixels, qreal pixelRatio)
{
    const QImage picture = XCOMMON::PhotoDecoder::decode(photograph, pixels);
    if (picture.isNull())
        return QImage();
    QImage image = picture.scaled(pixels, Qt::IgnoreAspectRatio, Qt::FastTransformation);
    // The format of pixmaps, so that the label takes the picture without another copy.
    image = std::move(image).convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                                     : QImage::Format_RGB32);
    image.setDevicePixelRatio(pixelRatio);
    return image;
}

} // namespace

FaceThumbnails::FaceThumbnails() : m_images(cacheBytes) {}

FaceThumbnails& FaceThumbnails::instance()
{
    static FaceThumbnails thumbnails;
    return thumbnails;
}

QImage FaceThumbnails::thumbnail(const QByteArray& photograph, const QSize& size, qreal pixelRatio)
{
    const QSize pixels = size * pixelRatio;
    if (photograph.isEmpty() || pixels.isEmpty())
        return QImage();
    // A digest of the bytes, not their address: another photograph may come to lie at the same place.
    const QByteArray key = QByteArray::number(pixels.width()) + 'x' + QByteArray::number(pixels.height()) +
                           ' ' + QCryptographicHash::hash(photograph, QCryptographicHash::Sha1);
    if (const QImage* known = m_images.object(key))
        return *known;
    auto* image = new QImage(makeThumbnail(photograph, pixels, pixelRatio));
    const QImage result = *image;
    m_images.insert(key, image, static_cast<int>(image->sizeInBytes()) + key.size());
    return result;
}

} // namespace qarn_personMgr
