#include "LocalTimes.h"

#include <cstring>

namespace qarn_data
{

namespace
{

constexpr qint64 dayMs = 24 * 60 * 60 * 1000;
constexpr int mostDays = 50000; ///< that are remembered

// A local QDateTime of the years that matter is one word: flags in the low byte, local milliseconds above.
// Qt has no function that makes one without asking the time zone rules. This relies on the layout only where
// Qt itself has shown it: shift() is used between two moments that Qt made and that differ by just the shift.
// Where a QDateTime is no such word, as on 32-bit systems, every time is asked for.
constexpr bool isOneWord = sizeof(QDateTime) == sizeof(quint64);

quint64 wordOf(const QDateTime& time)
{
    quint64 word = 0;
    if constexpr (isOneWord)
        std::memcpy(&word, static_cast<const void*>(&time), sizeof word);
    return word;
}

constexpr quint64 isInline = 1; ///< the flag of a word that is not a pointer

quint64 shifted(quint64 word, qint64 msecs)
{
    return word + (quint64(msecs) << 8);
}

bool isUniform(const QDateTime& start, const QDateTime& end, qint64 msecs)
{
    return (wordOf(start) & isInline) != 0 && wordOf(end) == shifted(wordOf(start), msecs);
}

QDateTime shift(const QDateTime& start, qint64 msecs)
{
    QDateTime time;
    const quint64 word = shifted(wordOf(start), msecs);
    if constexpr (isOneWord)
        std::memcpy(static_cast<void*>(&time), &word, sizeof word);
    return time;
}

qint64 startOf(const QDate& date)
{
    return QDateTime(date, QTime(0, 0)).toMSecsSinceEpoch();
}

qint64 endOf(const QDate& date)
{
    return QDateTime(date, QTime(23, 59, 59, 999)).toMSecsSinceEpoch();
}

qint64 dayOf(qint64 msecs)
{
    return msecs >= 0 ? msecs / dayMs : -((-msecs + dayMs - 1) / dayMs);
}

} // namespace

QDateTime LocalTimes::fromMSecs(qint64 msecs)
{
    const qint64 number = dayOf(msecs);
    const qint64 startMs = number * dayMs;
    const auto known = m_utcDays.find(number);
    if (known == m_utcDays.end()) {
        if (m_utcDays.size() < mostDays)
            m_utcDays.insert(number, {});
        return QDateTime::fromMSecsSinceEpoch(msecs);
    }
    UtcDay& day = *known;
    if (day.kind == Kind::SeenOnce) {
        day.start = QDateTime::fromMSecsSinceEpoch(startMs);
        const QDateTime end = QDateTime::fromMSecsSinceEpoch(startMs + dayMs - 1);
        day.kind = isUniform(day.start, end, dayMs - 1) ? Kind::Uniform : Kind::Uneven;
    }
    return day.kind == Kind::Uniform ? shift(day.start, msecs - startMs)
                                     : QDateTime::fromMSecsSinceEpoch(msecs);
}

qint64 LocalTimes::toMSecs(const QDateTime& time)
{
    if (time.timeSpec() != Qt::LocalTime)
        return time.toMSecsSinceEpoch();
    const QDate date = time.date();
    const auto known = m_localDays.find(date.toJulianDay());
    if (known == m_localDays.end()) {
        if (m_localDays.size() < mostDays)
            m_localDays.insert(date.toJulianDay(), {});
        return time.toMSecsSinceEpoch();
    }
    LocalDay& day = *known;
    if (day.kind == Kind::SeenOnce) {
        day.start = startOf(date);
        // An hour that comes twice may lie at either end of the day; then the neighbours do not fit.
        const bool fits = endOf(date) - day.start == dayMs - 1 && day.start - endOf(date.addDays(-1)) == 1 &&
                          startOf(date.addDays(1)) - day.start == dayMs;
        day.kind = fits ? Kind::Uniform : Kind::Uneven;
    }
    return day.kind == Kind::Uniform ? day.start + time.time().msecsSinceStartOfDay()
                                     : time.toMSecsSinceEpoch();
}

} // namespace qarn_data
