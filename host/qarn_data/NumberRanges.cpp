#include "NumberRanges.h"

#include <QStringList>

#include <algorithm>

namespace qarn_data
{

QString toRanges(QVector<qint64> numbers)
{
    std::sort(numbers.begin(), numbers.end());
    QStringList parts;
    for (int i = 0; i < numbers.size();) {
        int end = i;
        while (end + 1 < numbers.size() && numbers.at(end + 1) - numbers.at(end) <= 1)
            ++end;
        const QString first = QString::number(numbers.at(i));
        parts.append(numbers.at(i) == numbers.at(end) ? first
                                                      : first + u'-' + QString::number(numbers.at(end)));
        i = end + 1;
    }
    return parts.join(u',');
}

QVector<NumberRange> fromRanges(const QString& text)
{
    QVector<NumberRange> ranges;
    const QStringList parts = text.split(u',', Qt::SkipEmptyParts);
    for (const QString& part : parts) {
        const QStringList bounds = part.split(u'-');
        bool firstOk = false;
        bool lastOk = false;
        const qint64 first = bounds.first().toLongLong(&firstOk);
        const qint64 last = bounds.last().toLongLong(&lastOk);
        if (bounds.size() <= 2 && firstOk && lastOk && first <= last)
            ranges.append({first, last});
    }
    std::sort(ranges.begin(), ranges.end(),
              [](const NumberRange& a, const NumberRange& b) { return a.first < b.first; });
    return ranges;
}

} // namespace qarn_data
