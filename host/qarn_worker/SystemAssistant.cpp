#include "AlertStore.h"

#include <XCOMMON/OperatorNotice.h>
#include <qarn_worker/DictDef.h>
#include <qarn_worker/SystemAssistant.h>

#include <QCoreApplication>
#include <QThread>

namespace qarn_worker
{

namespace
{

void relayRefusal(const QString& text)
{
    SystemAssistant::instance().messageAlert(DictDef::instance().warningAlertTitle, text);
}

/// What XCOMMON refuses becomes an alert, although it knows nothing of alerts.
void listenToXcommon()
{
    static const bool listening = [] {
        QObject::connect(&XCOMMON::OperatorNotice::instance(), &XCOMMON::OperatorNotice::signalRefused,
                         &SystemAssistant::instance(), relayRefusal, Qt::DirectConnection);
        return true;
    }();
    Q_UNUSED(listening)
}

Q_COREAPP_STARTUP_FUNCTION(listenToXcommon)

} // namespace

SystemAssistant::SystemAssistant()
{
    if (QCoreApplication::instance() != nullptr)
        moveToThread(QCoreApplication::instance()->thread());
}

SystemAssistant& SystemAssistant::instance()
{
    static SystemAssistant assistant;
    return assistant;
}

void SystemAssistant::messageAlert(const QString& title, const QString& text)
{
    rememberAlert({QDateTime::currentDateTime(), title, text});
    QMetaObject::invokeMethod(this, [this, title, text] { emit signalMessageAlert(title, text); });
}

} // namespace qarn_worker
