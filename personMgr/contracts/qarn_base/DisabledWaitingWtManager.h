#pragma once

#include <qarn_base/Export.h>

#include <QHash>
#include <QUuid>

namespace qarn_base
{

class DisabledWaitingWt;

/// Knows every living DisabledWaitingWt. GUI thread.
class QARN_BASE_EXPORT DisabledWaitingWtManager
{
public:
    static DisabledWaitingWtManager& instance();

    void destroyDisabledWaitingWt(const QUuid& uuid); ///< an unknown identity is ignored

private:
    friend class DisabledWaitingWt;
    DisabledWaitingWtManager() = default;
    Q_DISABLE_COPY(DisabledWaitingWtManager)

    QHash<QUuid, DisabledWaitingWt*> m_widgets;
};

} // namespace qarn_base
