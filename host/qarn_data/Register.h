#pragma once

#include "RegisterState.h"

#include <QMutex>
#include <QReadWriteLock>
#include <QVector>

#include <functional>
#include <memory>

namespace qarn_data
{

class Checkpointer;
class SqlStore;

/// A notification that is due once no lock is held.
using Announcement = std::function<void()>;
using Announcements = QVector<Announcement>;

/// The open store: its database connection, what is held of it in memory, and their locks. Reads take the
/// memory's lock only. Writers queue at the connection (WriteSession), go to SQL first, and take the
/// memory's lock for the moment in which the result is entered.
class Register
{
public:
    static Register& instance();
    ~Register();

    bool open(const QString& location, QString* error);
    void close();
    bool isOpen() const;
    bool backup(const QString& filePath, QString* error);
    bool checkConsistency(QString* problem);

    template <class Read>
    auto read(Read read) const
    {
        const QReadLocker locker(&m_lock);
        return read(m_state);
    }

    /// What other processes changed since the last look, already entered. Comes back at once while a write
    /// is under way, which takes these changes in itself.
    Announcements takeForeignChanges();

private:
    friend class WriteSession;

    Register();
    bool load(QString* reason);
    bool catchUp(Announcements& announcements); ///< inside a transaction

    mutable QReadWriteLock m_lock; ///< of m_state and m_location, taken after m_writing
    RegisterState m_state;
    QString m_location;

    QMutex m_writing; ///< of everything below
    std::unique_ptr<SqlStore> m_store;
    std::unique_ptr<Checkpointer> m_checkpointer;
    bool m_isBehind = false; ///< others have changed something that is not entered yet
};

} // namespace qarn_data
