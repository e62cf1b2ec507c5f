#include "ProcessLimits.h"

#include <QFile>

#include <csignal>
#include <pwd.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <unistd.h>

bool dropPrivileges()
{
    if (geteuid() != 0)
        return true;
    const passwd* nobody = getpwnam("nobody");
    return nobody != nullptr && setgid(nobody->pw_gid) == 0 && setuid(nobody->pw_uid) == 0 && geteuid() != 0;
}

bool limitFileSize(qint64 bytes)
{
    std::signal(SIGXFSZ, SIG_IGN); // the write fails instead
    rlimit limit{};
    if (getrlimit(RLIMIT_FSIZE, &limit) != 0)
        return false;
    limit.rlim_cur = bytes < 0 ? limit.rlim_max : rlim_t(bytes);
    return setrlimit(RLIMIT_FSIZE, &limit) == 0;
}

bool useSmallDisk(const QString& directory, qint64 bytes)
{
    const QByteArray path = QFile::encodeName(directory);
    const QByteArray size = "size=" + QByteArray::number(bytes);
    static bool mounted = false;
    if (mounted)
        return mount("small", path.constData(), "tmpfs", MS_REMOUNT, size.constData()) == 0;
    mounted = unshare(CLONE_NEWNS | (geteuid() == 0 ? 0 : CLONE_NEWUSER)) == 0 &&
              mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
              mount("small", path.constData(), "tmpfs", 0, size.constData()) == 0;
    return mounted;
}
