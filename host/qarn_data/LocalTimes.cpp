#include "LocalTimes.h"

namespace qarn_data
{

QDateTime LocalTimes::fromMSecs(qint64 msecs)
{
    const auto known = m_known.constFind(msecs);
    if (known != m_known.constEnd())
        return *known;
    constexpr int mostRemembered = 4096;
    if (m_known.size() >= mostRemembered)
        m_known.clear();
    return *m_known.insert(msecs, QDateTime::fromMSecsSinceEpoch(msecs));
}

} // namespace qarn_data
