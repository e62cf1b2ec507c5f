#pragma once

#include <XCOMMON/Export.h>

#include <QObject>
#include <QString>

namespace XCOMMON
{

/// Carries what this library has to tell the operator to whoever shows alerts, which stands above it.
/// Host only, any thread.
class XCOMMON_EXPORT OperatorNotice : public QObject
{
    Q_OBJECT
public:
    static OperatorNotice& instance();

    void refuse(const QString& text); ///< what was refused and what to do next, in words

signals:
    void signalRefused(const QString& text); ///< emitted in the thread of the call

private:
    OperatorNotice();
};

} // namespace XCOMMON
