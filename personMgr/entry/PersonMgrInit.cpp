#include "entry/PersonMgrInit.h"

#include "form/PersonMgrForm.h"

namespace qarn_personMgr
{

PersonMgrInit::PersonMgrInit(QObject* parent) : ModuleInitialization(parent) {}

PersonMgrInit::~PersonMgrInit() = default;

PersonMgrInit& PersonMgrInit::instance()
{
    static PersonMgrInit init(nullptr);
    return init;
}

qarn_base::BaseForm* PersonMgrInit::createPersonMgrForm()
{
    return new PersonMgrForm;
}

void PersonMgrInit::recoveryToInitialState() {}

} // namespace qarn_personMgr
