#pragma once

#include <QByteArray>
#include <QList>
#include <QSize>

class QImage;

namespace qarn_bench
{

QByteArray encodeJpeg(const QImage& image, int quality = -1); ///< -1: Qt's usual quality

/// A JPEG file as hard to decode as a camera's: soft shapes under the grain of a sensor.
QByteArray photograph(quint32 seed, const QSize& size);

QList<QByteArray> photographs(int count, const QSize& size); ///< all different

/// The same picture with other bytes, so that nothing takes it for one that it knows.
QByteArray withComment(QByteArray jpeg, int number);

} // namespace qarn_bench
