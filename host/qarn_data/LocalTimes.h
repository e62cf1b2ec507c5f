#pragma once

#include <QDateTime>
#include <QHash>

namespace qarn_data
{

/// Converts between milliseconds since 1970 and local times, many at a go. Asking the time zone rules costs
/// microseconds a time (with TZ unset the C library looks at a file each time), which would be most of what
/// opening a large register takes. So they are asked for the first and the last moment of a day only; a day
/// without a clock change in it is uniform in between. Days that come up once are not worth that. Meant to
/// live for one operation: rules may change.
class LocalTimes
{
public:
    QDateTime fromMSecs(qint64 msecs);
    qint64 toMSecs(const QDateTime& time); ///< of a valid time

private:
    enum class Kind { SeenOnce, Uniform, Uneven };
    struct UtcDay {
        QDateTime start;
        Kind kind = Kind::SeenOnce;
    };
    struct LocalDay {
        qint64 start = 0;
        Kind kind = Kind::SeenOnce;
    };

    QHash<qint64, UtcDay> m_utcDays;     ///< by days since 1970
    QHash<qint64, LocalDay> m_localDays; ///< by Julian day
};

} // namespace qarn_data
