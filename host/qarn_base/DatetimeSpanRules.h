#pragma once

#include <QDateTime>

namespace qarn_base
{

enum class SpanProblem { None, NoStart, NoEnd, EndBeforeStart, TooLong };

/// What is wrong with a span; a time that the clock change skips counts as no time. maxSecs 0: no limit.
SpanProblem checkSpan(const QDateTime& start, const QDateTime& end, qint64 maxSecs);

/// What the clock on the wall shows at that time, as a UTC time, which every field can hold.
QDateTime wallClock(const QDateTime& time);

/// What fields with seconds stand for: the original where they still show it, so that what the fields do
/// not show (milliseconds, the second one of two equal hours) survives; otherwise the shown time.
QDateTime editedTime(const QDateTime& original, const QDateTime& shown);

} // namespace qarn_base
