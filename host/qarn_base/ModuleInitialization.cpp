#include <qarn_base/ModuleInitialization.h>

namespace qarn_base
{

ModuleInitialization::ModuleInitialization(QObject* parent) : QObject(parent) {}

ModuleInitialization::~ModuleInitialization() = default;

void ModuleInitialization::recoveryToInitialState() {}

void ModuleInitialization::moduleInit()
{
    init();
}

void ModuleInitialization::init() {}

} // namespace qarn_base
