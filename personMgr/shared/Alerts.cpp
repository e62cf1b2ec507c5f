#include "shared/Alerts.h"

#include <qarn_worker/DictDef.h>
#include <qarn_worker/SystemAssistant.h>

using qarn_worker::DictDef;
using qarn_worker::SystemAssistant;

namespace qarn_personMgr
{

void alertWarning(const QString& text)
{
    SystemAssistant::instance().messageAlert(DictDef::instance().warningAlertTitle, text);
}

void alertSuccess(const QString& text)
{
    SystemAssistant::instance().messageAlert(DictDef::instance().successAlertTitle, text);
}

void alertError(const QString& text)
{
    SystemAssistant::instance().messageAlert(DictDef::instance().errorAlertTitle, text);
}

} // namespace qarn_personMgr
