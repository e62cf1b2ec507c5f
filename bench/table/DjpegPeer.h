#pragma once

#include <QByteArray>
#include <QList>
#include <QTemporaryDir>

namespace qarn_bench
{

/// The djpeg program on files of the same photographs, full size, output thrown away.
class DjpegPeer
{
public:
    explicit DjpegPeer(const QList<QByteArray>& photographs);

    double decodeAll() const; ///< milliseconds, with the start of a process for each

private:
    QTemporaryDir m_directory;
};

} // namespace qarn_bench
