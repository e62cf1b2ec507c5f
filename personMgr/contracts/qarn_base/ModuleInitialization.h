#pragma once

#include <qarn_base/Export.h>

#include <QObject>

namespace qarn_base
{

/// Base of a module's entry object; the host calls these operations on every module. GUI thread.
class QARN_BASE_EXPORT ModuleInitialization : public QObject
{
    Q_OBJECT
public:
    ~ModuleInitialization() override;

    virtual void recoveryToInitialState(); ///< back to the state after start-up; does nothing here
    virtual void moduleInit();             ///< once, after the client has started; calls init()

protected:
    explicit ModuleInitialization(QObject* parent);

    virtual void init(); ///< does nothing here
};

} // namespace qarn_base
