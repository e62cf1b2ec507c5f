#include "DatetimeSpanRules.h"

namespace qarn_base
{

SpanProblem checkSpan(const QDateTime& start, const QDateTime& end, qint64 maxSecs)
{
    if (!start.isValid())
        return SpanProblem::NoStart;
    if (!end.isValid())
        return SpanProblem::NoEnd;
    if (end < start)
        return SpanProblem::EndBeforeStart;
    if (maxSecs > 0 && start.msecsTo(end) > maxSecs * 1000)
        return SpanProblem::TooLong;
    return SpanProblem::None;
}

QDateTime wallClock(const QDateTime& time)
{
    const QDateTime local = time.toLocalTime();
    return QDateTime(local.date(), local.time(), Qt::UTC);
}

QDateTime editedTime(const QDateTime& original, const QDateTime& shown)
{
    const auto wholeSecond = [](const QTime& time) {
        return QTime(time.hour(), time.minute(), time.second());
    };
    const QDateTime local = original.toLocalTime();
    if (local.date() == shown.date() && wholeSecond(local.time()) == wholeSecond(shown.time()))
        return original;
    return QDateTime(shown.date(), wholeSecond(shown.time()));
}

} // namespace qarn_base
