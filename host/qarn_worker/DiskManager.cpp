#include "PathCheck.h"

#include <qarn_worker/DictDef.h>
#include <qarn_worker/DiskManager.h>
#include <qarn_worker/SystemAssistant.h>

#include <QDir>

namespace qarn_worker
{

DiskManager& DiskManager::instance()
{
    static DiskManager manager;
    return manager;
}

bool DiskManager::isPathAvailable(const QString& path, bool tellOperator)
{
    const PathCheck check = checkPath(path, freeBytesOf);
    if (check.problem == PathProblem::None)
        return true;
    if (tellOperator)
        SystemAssistant::instance().messageAlert(DictDef::instance().warningAlertTitle, describe(check));
    return false;
}

} // namespace qarn_worker
