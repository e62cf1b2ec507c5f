#include "transfer/ImportedDays.h"

#include "transfer/PersonFileFormat.h"

namespace qarn_personMgr
{

namespace
{

constexpr int MaxKnown = 10000; // about 27 years
constexpr int MaxLength = 32;   // no day has a longer text

} // namespace

ImportedDays::ImportedDays(const QTime& time) : m_time(time) {}

QDateTime ImportedDays::read(const QString& text)
{
    const auto known = m_known.constFind(text);
    if (known != m_known.constEnd())
        return *known;
    const QDateTime dateTime = importedDateTime(text, m_time);
    if (m_known.count() >= MaxKnown)
        m_known.clear();
    if (text.length() <= MaxLength)
        m_known.insert(text, dateTime);
    return dateTime;
}

} // namespace qarn_personMgr
