#pragma once

#include <qarn_worker/Export.h>

#include <QDateTime>
#include <QList>
#include <QString>

namespace qarn_worker
{

struct Alert {
    QDateTime time; ///< local
    QString title;
    QString text;
};

/// The last 500 alerts, oldest first. Host only, any thread.
QARN_WORKER_EXPORT QList<Alert> alertHistory();

} // namespace qarn_worker
