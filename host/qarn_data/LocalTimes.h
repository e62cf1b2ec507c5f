#pragma once

#include <QDateTime>
#include <QHash>

namespace qarn_data
{

/// Milliseconds since 1970 to local times. A conversion asks the time zone rules, and registers hold the
/// same times over and over, so that known ones are remembered.
class LocalTimes
{
public:
    QDateTime fromMSecs(qint64 msecs);

private:
    QHash<qint64, QDateTime> m_known;
};

} // namespace qarn_data
