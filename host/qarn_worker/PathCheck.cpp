#include "PathCheck.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>
#include <QTemporaryFile>

namespace qarn_worker
{

namespace
{

/// Permissions alone do not tell: a file system may be read-only, or refuse even the administrator.
bool canMakeFiles(const QString& directory)
{
    QTemporaryFile probe(QDir(directory).filePath(QStringLiteral(".qarn-XXXXXX")));
    return probe.open();
}

} // namespace

PathCheck checkPath(const QString& path, const FreeBytes& freeBytes)
{
    if (path.isEmpty())
        return {PathProblem::Missing, path};
    const QFileInfo target(path);
    const QFileInfo directory(target.isDir() ? target.filePath() : target.path());
    if (!directory.exists())
        return {PathProblem::Missing, directory.filePath()};
    if (!directory.isDir())
        return {PathProblem::NotADirectory, directory.filePath()};
    if (!canMakeFiles(directory.filePath()))
        return {PathProblem::NotWritable, directory.filePath()};
    if (target.isFile() && !target.isWritable())
        return {PathProblem::NotWritable, target.filePath()};
    const qint64 room = freeBytes(directory.filePath());
    if (room >= 0 && room < NeededBytes)
        return {PathProblem::NoRoom, directory.filePath()};
    return {};
}

QString describe(const PathCheck& check)
{
    struct Texts {
        Q_DECLARE_TR_FUNCTIONS(qarn_worker::DiskManager)
    };
    const QString place = QDir::toNativeSeparators(check.place);
    switch (check.problem) {
    case PathProblem::None:
        break;
    case PathProblem::Missing:
        return Texts::tr("The directory \"%1\" does not exist. Create it or choose another one.").arg(place);
    case PathProblem::NotADirectory:
        return Texts::tr("\"%1\" is not a directory. Choose a directory.").arg(place);
    case PathProblem::NotWritable:
        return Texts::tr("\"%1\" cannot be written to. Change its permissions or choose another place.")
            .arg(place);
    case PathProblem::NoRoom:
        return Texts::tr("There is no room left at \"%1\". Free some space or choose another place.")
            .arg(place);
    }
    return QString();
}

qint64 freeBytesOf(const QString& directory)
{
    return QStorageInfo(directory).bytesAvailable();
}

} // namespace qarn_worker
