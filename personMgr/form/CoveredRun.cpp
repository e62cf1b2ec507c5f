#include "form/CoveredRun.h"

#include <qarn_base/DisabledWaitingWt.h>
#include <qarn_base/DisabledWaitingWtManager.h>

#include <QThread>

namespace qarn_personMgr
{

CoveredRun::CoveredRun(QWidget* form, QThread* thread, const QString& caption)
    : m_thread(thread),
      m_overlay(new qarn_base::DisabledWaitingWt(form, caption, QString(), false)),
      m_overlayId(m_overlay->getUuid().toString()),
      m_ended(std::make_shared<bool>(false))
{
    m_overlay->show();
}

void CoveredRun::start(const QObject* context, const std::function<void()>& onLost) const
{
    QObject::connect(m_thread, &QThread::finished, context, [run = *this, onLost] {
        if (run.end() && onLost)
            onLost();
    });
    m_thread->start();
}

void CoveredRun::updateDescription(const QString& description) const
{
    if (m_overlay)
        m_overlay->updateDescription(description);
}

bool CoveredRun::end() const
{
    if (*m_ended)
        return false;
    *m_ended = true;
    if (m_thread)
        m_thread->deleteLater();
    qarn_base::DisabledWaitingWtManager::instance().destroyDisabledWaitingWt(QUuid(m_overlayId));
    return true;
}

} // namespace qarn_personMgr
