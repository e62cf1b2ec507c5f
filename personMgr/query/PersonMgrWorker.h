#pragma once

#include <qarn_data/PersonInfo.h>

#include <QList>
#include <QObject>
#include <QStringList>

namespace qarn_personMgr
{

struct PersonQueryCondition;

/// Answers which persons belong on the page that is to be shown. Keeps the result of the last query, so
/// that turning pages does not go back to the data service. Called by the main form in the GUI thread; the
/// answer arrives by the signal, before the call returns.
class PersonMgrWorker : public QObject
{
    Q_OBJECT
public:
    static PersonMgrWorker& instance();

    /// Asks the data service, filters, keeps the result and shows the wanted page of it.
    void queryPersons(const PersonQueryCondition& condition);
    void showFirstPage(int pageSize);
    void gotoPage(int page, int pageSize);

    /// Bring the kept result up to date after a change of the store. They show nothing.
    void removeCachedPersons(const QStringList& ids);
    /// Gives the kept persons with these ids all values of `info` but id and organization.
    void updateCachedPersons(const qarn_data::PersonInfo& info, const QStringList& ids);

    QStringList cachedPersonIds() const; ///< of all pages

signals:
    /// curPage: the page that is delivered, counted from 1; 0 when there is none. totalCnt: all pages.
    void signalCurPagePersons(const QList<qarn_data::PersonInfo>& persons, int curPage, int totalCnt);

private:
    explicit PersonMgrWorker(QObject* parent);

    /// The result of the last query. Fetches it now if only its first page was shown so far.
    const QList<qarn_data::PersonInfo>& persons() const;
    /// Right after the start, the first page of all persons without waiting for the others.
    bool showWhileReading(const PersonQueryCondition& condition);

    mutable QList<qarn_data::PersonInfo> m_persons;
    mutable bool m_isPending = false; ///< m_persons is still to be fetched
};

} // namespace qarn_personMgr
