#include <qarn_worker/DictDef.h>

namespace qarn_worker
{

DictDef::DictDef()
    : warningAlertTitle(tr("Warning")),
      successAlertTitle(tr("Success")),
      errorAlertTitle(tr("Error"))
{
}

DictDef& DictDef::instance()
{
    static DictDef dictionary;
    return dictionary;
}

} // namespace qarn_worker
