#include "window/QuitGuard.h"

#include <XCOMMON/ThreadRegistry.h>
#include <qarn_base/DisabledWaitingWt.h>
#include <qarn_contact/SystemMsg.h>

#include <QWidget>

using XCOMMON::ThreadRegistry;

QuitGuard::QuitGuard(QWidget* window) : QObject(window), m_window(window)
{
    connect(&ThreadRegistry::instance(), &ThreadRegistry::signalAllFinished, this, [this] {
        if (m_waiting)
            emit signalMayQuit();
    });
}

bool QuitGuard::mayQuit()
{
    if (!m_waiting) {
        // Also when nothing runs: whoever listens may want to end something of its own.
        emit qarn_contact::SystemMsg::instance().signalPrepareQuitSystem();
    }
    if (ThreadRegistry::instance().runningCount() == 0)
        return true;
    if (!m_waiting) {
        m_waiting = true;
        auto* overlay = new qarn_base::DisabledWaitingWt(
            m_window, tr("Quitting..."), tr("The work that is running ends first. Nothing is lost."), false);
        overlay->show();
        overlay->raise();
    }
    return false;
}
