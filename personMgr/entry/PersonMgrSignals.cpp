#include "entry/PersonMgrSignals.h"

namespace qarn_personMgr
{

PersonMgrSignals::PersonMgrSignals(QObject* parent) : QObject(parent) {}

PersonMgrSignals& PersonMgrSignals::instance()
{
    static PersonMgrSignals hub(nullptr);
    return hub;
}

} // namespace qarn_personMgr
