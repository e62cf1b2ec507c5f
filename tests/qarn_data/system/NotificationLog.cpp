#include "NotificationLog.h"

#include "Storm.h"

#include <qarn_data/DataSignals.h>
#include <qarn_data/PersonData.h>

#include <QMutexLocker>

using qarn_data::DataSignals;
using qarn_data::PersonData;
using qarn_data::PersonInfo;

NotificationLog::NotificationLog()
{
    const DataSignals* source = &DataSignals::instance();
    connect(source, &DataSignals::signalAddPersonsToLocalDB, this, &NotificationLog::onAdded,
            Qt::DirectConnection);
    connect(
        source, &DataSignals::signalUpdatePersonInLocalDB, this,
        [this](const PersonInfo& person, const QStringList&, bool success) { onUpdated(person, success); },
        Qt::DirectConnection);
    connect(source, &DataSignals::signalDeletePersonsFromLocalDB, this, &NotificationLog::onDeleted,
            Qt::DirectConnection);
}

void NotificationLog::onAdded(const qarn_data::PersonList& persons, bool success)
{
    for (const PersonInfo& person : persons) {
        const PersonInfo stored = PersonData::instance().getPersonBySerialNum(person.serialNum, true);
        const QMutexLocker lock(&m_mutex);
        if (!success)
            m_complaints.append(QStringLiteral("addition of %1 failed").arg(person.id));
        // Another process's person may be gone again; this one's writers delete long after they add.
        if (stored.id != person.id && !person.id.startsWith(QLatin1String("other")))
            m_complaints.append(QStringLiteral("%1 is announced but not there").arg(person.id));
        ++m_added[person.id];
    }
}

void NotificationLog::onUpdated(const PersonInfo& person, bool success)
{
    const PersonInfo stored = PersonData::instance().getPersonBySerialNum(person.serialNum, true);
    const QMutexLocker lock(&m_mutex);
    if (!success)
        m_complaints.append(QStringLiteral("update of %1 failed").arg(person.id));
    if (tokenWriter(stored.remarks) == tokenWriter(person.remarks) &&
        tokenNumber(stored.remarks) < tokenNumber(person.remarks))
        m_complaints.append(QStringLiteral("%1 announced, %2 stored").arg(person.remarks, stored.remarks));
    ++m_updated[person.remarks];
}

void NotificationLog::onDeleted(const QStringList& ids, bool success)
{
    for (const QString& id : ids) {
        const PersonInfo stored =
            PersonData::instance().getPersonBySerialNum(QStringLiteral("S-") + id, true);
        const QMutexLocker lock(&m_mutex);
        if (!success || !stored.id.isEmpty())
            m_complaints.append(QStringLiteral("%1 is announced as deleted but there").arg(id));
        ++m_deleted[id];
    }
}

int NotificationLog::count(const QHash<QString, int>& counts, const QString& key) const
{
    const QMutexLocker lock(&m_mutex);
    return counts.value(key);
}

QStringList NotificationLog::complaints() const
{
    const QMutexLocker lock(&m_mutex);
    return m_complaints;
}
