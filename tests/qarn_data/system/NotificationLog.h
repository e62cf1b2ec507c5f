#pragma once

#include <qarn_data/PersonInfo.h>

#include <QHash>
#include <QMutex>
#include <QObject>
#include <QStringList>

/// Counts what the data service announces, in the thread that announces it, and looks each time whether
/// reads already give the announced state or a later one.
class NotificationLog : public QObject
{
    Q_OBJECT
public:
    NotificationLog();

    int additions(const QString& id) const { return count(m_added, id); }
    int deletions(const QString& id) const { return count(m_deleted, id); }
    int updates(const QString& token) const { return count(m_updated, token); }
    QStringList complaints() const;

private:
    void onAdded(const qarn_data::PersonList& persons, bool success);
    void onUpdated(const qarn_data::PersonInfo& person, bool success);
    void onDeleted(const QStringList& ids, bool success);
    int count(const QHash<QString, int>& counts, const QString& key) const;

    mutable QMutex m_mutex;
    QHash<QString, int> m_added;
    QHash<QString, int> m_updated; ///< by token
    QHash<QString, int> m_deleted;
    QStringList m_complaints;
};
