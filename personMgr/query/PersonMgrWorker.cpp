#include "query/PersonMgrWorker.h"

#include "query/PageRule.h"
#include "query/PersonFilter.h"
#include "query/PersonQueryCondition.h"
#include "query/ReadAhead.h"

#include <qarn_data/PersonData.h>

#include <QSet>
#include <QVector>
#include <algorithm>

using qarn_data::PersonData;
using qarn_data::PersonInfo;

namespace qarn_personMgr
{
namespace
{

QList<PersonInfo> fetch(const QStringList& organizationIds)
{
    if (organizationIds.isEmpty())
        return PersonData::instance().getAllPersons(false);
    return PersonData::instance().getPersons(organizationIds, false);
}

QVector<int> matching(const QList<PersonInfo>& persons, const PersonQueryCondition& condition)
{
    QVector<int> indexes;
    PresentMoment now;
    const ReadAhead readAhead(persons);
    for (int i = 0; i < persons.count(); ++i) {
        readAhead.passingName(i);
        if (matches(persons.at(i), condition, now))
            indexes.append(i);
    }
    return indexes;
}

/// Copies those who stay instead of removing the others: the fetched list is shared with the data service,
/// and taking a single entry out of it would copy all of it first.
QList<PersonInfo> filtered(const QList<PersonInfo>& persons, const PersonQueryCondition& condition)
{
    if (!isSelective(condition))
        return persons;
    const QVector<int> indexes = matching(persons, condition);
    const ReadAhead readAhead(persons);
    QList<PersonInfo> kept;
    kept.reserve(indexes.count());
    for (int i = 0; i < indexes.count(); ++i) {
        if (i + ReadAhead::Copies < indexes.count())
            readAhead.beforeCopying(indexes.at(i + ReadAhead::Copies));
        kept.append(persons.at(indexes.at(i)));
    }
    return kept;
}

QSet<QString> toSet(const QStringList& ids)
{
    return {ids.cbegin(), ids.cend()};
}

} // namespace

PersonMgrWorker::PersonMgrWorker(QObject* parent) : QObject(parent) {}

PersonMgrWorker& PersonMgrWorker::instance()
{
    static PersonMgrWorker worker(nullptr);
    return worker;
}

const QList<PersonInfo>& PersonMgrWorker::persons() const
{
    if (m_isPending) {
        m_isPending = false;
        m_persons = fetch({});
    }
    return m_persons;
}

void PersonMgrWorker::queryPersons(const PersonQueryCondition& condition)
{
    m_persons.clear();
    m_isPending = false;
    if (showWhileReading(condition))
        return;
    m_persons = filtered(fetch(condition.organizationIds), condition);
    gotoPage(condition.curPage, condition.pageSize);
}

bool PersonMgrWorker::showWhileReading(const PersonQueryCondition& condition)
{
    QList<PersonInfo> first;
    int total = 0;
    if (!condition.organizationIds.isEmpty() || isSelective(condition) ||
        !PersonData::instance().getFirstPersons(condition.pageSize, &first, &total))
        return false;
    const PageSpan span = choosePage(total, condition.curPage, condition.pageSize);
    if (span.first != 0)
        return false;
    m_isPending = true;
    emit signalCurPagePersons(first, span.number, total);
    return true;
}

void PersonMgrWorker::showFirstPage(int pageSize)
{
    QList<PersonInfo> first;
    int total = 0;
    if (m_isPending && PersonData::instance().getFirstPersons(pageSize, &first, &total))
        emit signalCurPagePersons(first, 1, total);
    else
        emit signalCurPagePersons(persons().mid(0, std::max(pageSize, 0)), 1, persons().count());
}

void PersonMgrWorker::gotoPage(int page, int pageSize)
{
    const PageSpan span = choosePage(persons().count(), page, pageSize);
    emit signalCurPagePersons(persons().mid(span.first, span.count), span.number, persons().count());
}

void PersonMgrWorker::removeCachedPersons(const QStringList& ids)
{
    const QSet<QString> removed = toSet(ids);
    const auto isRemoved = [&removed](const PersonInfo& person) { return removed.contains(person.id); };
    if (std::none_of(persons().cbegin(), persons().cend(), isRemoved))
        return;
    m_persons.erase(std::remove_if(m_persons.begin(), m_persons.end(), isRemoved), m_persons.end());
}

void PersonMgrWorker::updateCachedPersons(const PersonInfo& info, const QStringList& ids)
{
    QSet<QString> pending = toSet(ids);
    for (int i = 0; i < persons().count() && !pending.isEmpty(); ++i) {
        if (!pending.remove(m_persons.at(i).id))
            continue;
        PersonInfo updated = info;
        updated.id = m_persons.at(i).id;
        updated.organizationId = m_persons.at(i).organizationId;
        m_persons[i] = std::move(updated);
    }
}

QStringList PersonMgrWorker::cachedPersonIds() const
{
    QStringList ids;
    ids.reserve(persons().count());
    for (const PersonInfo& person : persons())
        ids.append(person.id);
    return ids;
}

} // namespace qarn_personMgr
