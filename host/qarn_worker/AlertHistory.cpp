#include "AlertStore.h"

#include <qarn_worker/AlertHistory.h>

#include <mutex>

namespace qarn_worker
{

namespace
{

constexpr int MaxAlerts = 500;

struct History {
    std::mutex mutex;
    QList<Alert> alerts;
};

History& history()
{
    static History history;
    return history;
}

} // namespace

void rememberAlert(const Alert& alert)
{
    const std::lock_guard<std::mutex> lock(history().mutex);
    history().alerts.append(alert);
    if (history().alerts.size() > MaxAlerts)
        history().alerts.removeFirst();
}

QList<Alert> alertHistory()
{
    const std::lock_guard<std::mutex> lock(history().mutex);
    return history().alerts;
}

} // namespace qarn_worker
