#include "table/DjpegPeer.h"

#include "support/Figure.h"

#include <QFile>
#include <QProcess>

namespace qarn_bench
{

DjpegPeer::DjpegPeer(const QList<QByteArray>& photographs)
{
    for (int i = 0; i < photographs.count(); ++i) {
        QFile file(m_directory.filePath(QStringLiteral("%1.jpg").arg(i)));
        if (!file.open(QIODevice::WriteOnly) || file.write(photographs.at(i)) != photographs.at(i).size())
            qFatal("cannot write the photographs");
    }
}

double DjpegPeer::decodeAll() const
{
    return milliseconds([this] {
        QProcess shell;
        shell.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        shell.start(QStringLiteral("sh"),
                    {QStringLiteral("-ec"),
                     QStringLiteral("for f in \"$0\"/*.jpg; do djpeg \"$f\" >/dev/null; done"),
                     m_directory.path()});
        if (!shell.waitForFinished(-1) || shell.exitCode() != 0)
            qFatal("djpeg fails: is libjpeg-turbo-progs installed?");
    });
}

} // namespace qarn_bench
