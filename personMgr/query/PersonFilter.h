#pragma once

#include <QDateTime>
#include <QString>

namespace qarn_data
{
struct PersonInfo;
}

namespace qarn_personMgr
{

struct PersonQueryCondition;

/// Case-sensitive; an empty fragment is in every text.
bool containsFragment(const QString& text, const QString& fragment);

/// Whether `now` lies in a period of validity; both bounds belong to it,
/// the end with its whole second.
bool isWithin(const QDateTime& start, const QDateTime& end, const QDateTime& now);

/// The present moment for a test of many persons: the clock is read on every call, but its reading is
/// turned into a local date and time only once a millisecond, for that costs more than all other tests.
class PresentMoment
{
public:
    const QDateTime& read();

private:
    qint64 m_msecs = -1;
    QDateTime m_now;
};

/// Whether a person belongs to the answer, apart from the organization.
bool matches(const qarn_data::PersonInfo& person, const PersonQueryCondition& condition, PresentMoment& now);

/// Whether matches() can refuse anyone at all.
bool isSelective(const PersonQueryCondition& condition);

} // namespace qarn_personMgr
