#pragma once

#include <QByteArray>
#include <QSize>

namespace qarn_bench
{

/// A JPEG file as hard to decode as a camera's: soft shapes under the grain of a sensor.
QByteArray photograph(quint32 seed, const QSize& size);

/// The same picture with other bytes, so that nothing takes it for one that it knows.
QByteArray withComment(QByteArray jpeg, int number);

} // namespace qarn_bench
