#pragma once

#include <qarn_data/PersonInfo.h>

#include <QList>

namespace qarn_personMgr
{

/// Asks the processor to fetch what a walk through a list of persons comes to next. The persons of a large
/// register lie scattered in memory: waiting for each costs more than looking at it. Changes nothing;
/// always inline, for a call without an effect is one that the compiler leaves out.
class ReadAhead
{
public:
    static constexpr int Copies = 4; ///< so many persons before its own turn beforeCopying() does most

    explicit ReadAhead(const QList<qarn_data::PersonInfo>& persons) : m_persons(persons) {}

    /// To be called on the way at each index, for a walk that looks at the names.
    Q_ALWAYS_INLINE void passingName(int index) const
    {
        if (index + Far < m_persons.count())
            __builtin_prefetch(&m_persons.at(index + Far).name);
        if (index + Near < m_persons.count())
            fetchText(m_persons.at(index + Near).name);
    }

    /// What copying the person at an index touches: the counters of all shared texts.
    Q_ALWAYS_INLINE void beforeCopying(int index) const
    {
        using qarn_data::PersonInfo;
        const PersonInfo& person = m_persons.at(index);
        for (const QString PersonInfo::*text :
             {&PersonInfo::id, &PersonInfo::organizationId, &PersonInfo::serialNum, &PersonInfo::name,
              &PersonInfo::email, &PersonInfo::phoneNum, &PersonInfo::remarks, &PersonInfo::identityId,
              &PersonInfo::job, &PersonInfo::address})
            fetchText(person.*text);
    }

private:
    // The record first, then, when it has come, the text that it points to.
    static constexpr int Far = 24;
    static constexpr int Near = 12;

    static Q_ALWAYS_INLINE void fetchText(const QString& text)
    {
        __builtin_prefetch(const_cast<QString&>(text).data_ptr()); // does not detach
    }

    const QList<qarn_data::PersonInfo>& m_persons;
};

} // namespace qarn_personMgr
