#pragma once

#include <QString>

/// Goes on as the user "nobody" when this process is root's, whom no permission stops. True when this
/// process is no longer root's.
bool dropPrivileges();

/// From now on no file of this process grows beyond `bytes`, as on a full disk; below 0: no limit again.
bool limitFileSize(qint64 bytes);

/// Puts an empty disk of `bytes` on a directory, seen by this process only and gone with it; a second call
/// changes its size. False where the system does not allow it.
bool useSmallDisk(const QString& directory, qint64 bytes);
