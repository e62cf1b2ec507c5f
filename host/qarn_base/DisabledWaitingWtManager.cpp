#include <qarn_base/DisabledWaitingWtManager.h>

#include <qarn_base/DisabledWaitingWt.h>

namespace qarn_base
{

DisabledWaitingWtManager& DisabledWaitingWtManager::instance()
{
    static DisabledWaitingWtManager manager;
    return manager;
}

void DisabledWaitingWtManager::destroyDisabledWaitingWt(const QUuid& uuid)
{
    DisabledWaitingWt* widget = m_widgets.take(uuid);
    if (widget == nullptr)
        return;
    widget->hide(); // the page is usable at once
    widget->deleteLater();
}

} // namespace qarn_base
