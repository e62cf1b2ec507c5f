#pragma once

#include <QString>

#include <functional>

namespace qarn_worker
{

/// What keeps a path from being written to.
enum class PathProblem { None, Missing, NotADirectory, NotWritable, NoRoom };

struct PathCheck {
    PathProblem problem = PathProblem::None;
    QString place; ///< the directory or file that the problem is about
};

/// Bytes that this user may still write to a directory's file system; negative when that is not known.
using FreeBytes = std::function<qint64(const QString& directory)>;

/// Less room than this counts as none.
constexpr qint64 NeededBytes = 1024 * 1024;

/// `path` is a directory, or a file that is there or is to be made.
PathCheck checkPath(const QString& path, const FreeBytes& freeBytes);
/// The problem in words for the operator, with the next step.
QString describe(const PathCheck& check);
qint64 freeBytesOf(const QString& directory);

} // namespace qarn_worker
