#pragma once

#include <QString>
#include <QVector>

namespace qarn_data
{

struct NumberRange {
    qint64 first = 0;
    qint64 last = 0;
};

/// Whole numbers as short text, "3-7,12": how the change log names the records of one change.
QString toRanges(QVector<qint64> numbers);
/// Sorted; leaves out what is not a range.
QVector<NumberRange> fromRanges(const QString& text);

} // namespace qarn_data
