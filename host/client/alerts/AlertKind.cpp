#include "alerts/AlertKind.h"

#include <qarn_worker/DictDef.h>

using qarn_worker::DictDef;

bool isSuccess(const QString& title)
{
    return title == DictDef::instance().successAlertTitle;
}

QString alertKindName(const QString& title)
{
    if (isSuccess(title))
        return QStringLiteral("success");
    if (title == DictDef::instance().errorAlertTitle)
        return QStringLiteral("error");
    return QStringLiteral("warning");
}
