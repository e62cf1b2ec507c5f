#pragma once

#include "ChangeLog.h"
#include "Register.h"

namespace qarn_data
{

/// Enters what other processes changed into memory, and says what is to be announced. Works inside a
/// transaction, hence on one state of the database: each change is read as it is now, not as it was when it
/// was logged.
class ChangeFeed
{
public:
    ChangeFeed(SqlStore& store, RegisterState& state, QReadWriteLock& lock)
        : m_store(store),
          m_state(state),
          m_lock(lock)
    {
    }

    /// False when the database cannot be read; what was entered until then stays.
    bool takeIn(Announcements& announcements);

private:
    bool take(const Change& change);
    bool takeRecords(const QString& subject, PersonList* records);
    bool takeUpdate(qint64 record);
    bool takeMove(const QString& subject);
    void takeDeletion(const QString& subject);
    bool takeOrganizations(const QString& subject, bool added);
    void takeOrganizationDeletion(const QString& subject);
    bool takeFields();
    bool takeDevices();
    bool reload();
    QStringList removeRecords(const QString& subject);

    SqlStore& m_store;
    RegisterState& m_state;
    QReadWriteLock& m_lock;
    Announcements m_due;
};

} // namespace qarn_data
