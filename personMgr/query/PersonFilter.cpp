#include "query/PersonFilter.h"

#include "query/PersonQueryCondition.h"

#include <qarn_data/PersonInfo.h>

namespace qarn_personMgr
{
namespace
{

/// Tells from the calendar days alone, where these lie further apart than any two time zones. Comparing
/// local times on both sides of a change to or from daylight saving time makes Qt convert both.
bool isFarBefore(const QDateTime& first, const QDateTime& second)
{
    constexpr qint64 zonesApart = 2; // days
    return first.isValid() && second.isValid() &&
           second.date().toJulianDay() - first.date().toJulianDay() > zonesApart;
}

bool hasStarted(const QDateTime& start, const QDateTime& now)
{
    return isFarBefore(start, now) || (!isFarBefore(now, start) && start <= now);
}

/// The second that the end names still belongs to the period.
bool hasEnded(const QDateTime& end, const QDateTime& now)
{
    return isFarBefore(end, now) ||
           (!isFarBefore(now, end) && end < now && end.toSecsSinceEpoch() != now.toSecsSinceEpoch());
}

} // namespace

bool containsFragment(const QString& text, const QString& fragment)
{
    return fragment.isEmpty() || text.contains(fragment, Qt::CaseSensitive);
}

bool isWithin(const QDateTime& start, const QDateTime& end, const QDateTime& now)
{
    return hasStarted(start, now) && !hasEnded(end, now);
}

const QDateTime& PresentMoment::read()
{
    const qint64 msecs = QDateTime::currentMSecsSinceEpoch();
    if (msecs != m_msecs) {
        m_msecs = msecs;
        m_now = QDateTime::fromMSecsSinceEpoch(msecs);
    }
    return m_now;
}

bool matches(const qarn_data::PersonInfo& person, const PersonQueryCondition& condition, PresentMoment& now)
{
    if (!containsFragment(person.name, condition.name) ||
        !containsFragment(person.serialNum, condition.serialNum))
        return false;
    switch (condition.validType) {
    case ValidPersons:
        return isWithin(person.validStartTime, person.validEndTime, now.read());
    case InvalidPersons:
        return !isWithin(person.validStartTime, person.validEndTime, now.read());
    default:
        return true;
    }
}

bool isSelective(const PersonQueryCondition& condition)
{
    return !condition.name.isEmpty() || !condition.serialNum.isEmpty() ||
           condition.validType == ValidPersons || condition.validType == InvalidPersons;
}

} // namespace qarn_personMgr
