#pragma once

#include <qarn_worker/Export.h>

#include <QCoreApplication>
#include <QString>

namespace qarn_worker
{

/// Texts that the whole client shares, in the language that is set when they are first asked for.
class QARN_WORKER_EXPORT DictDef
{
    Q_DECLARE_TR_FUNCTIONS(qarn_worker::DictDef)
public:
    static DictDef& instance();

    const QString warningAlertTitle;
    const QString successAlertTitle;
    const QString errorAlertTitle;

private:
    DictDef();
    Q_DISABLE_COPY(DictDef)
};

} // namespace qarn_worker
