#pragma once

#include <qarn_base/ModuleInitialization.h>

namespace qarn_base
{
class BaseForm;
}

namespace qarn_personMgr
{

/// Entry of the person register: the one class of this library that the host sees. GUI thread.
class Q_DECL_EXPORT PersonMgrInit : public qarn_base::ModuleInitialization
{
    Q_OBJECT
public:
    static PersonMgrInit& instance();
    ~PersonMgrInit() override;

    /// A new page each time; the caller owns it.
    qarn_base::BaseForm* createPersonMgrForm();

    void recoveryToInitialState() override; ///< does nothing: there is no state here, and pages keep theirs

private:
    explicit PersonMgrInit(QObject* parent);
};

} // namespace qarn_personMgr
