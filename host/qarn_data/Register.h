#pragma once

#include "RegisterState.h"

#include <QMutex>
#include <QReadWriteLock>
#include <QVector>
#include <QWaitCondition>

#include <functional>
#include <future>
#include <memory>
#include <thread>

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
    /// Comes back when the first persons are there; the others are read by a thread of its own. Should that
    /// fail, the store is closed again and the service says so.
    bool openAhead(const QString& location, QString* error);
    void close();
    bool isOpen() const;
    bool backup(const QString& filePath, QString* error);
    bool checkConsistency(QString* problem);

    /// Everything but the persons, which may still be missing.
    template <class Read>
    auto read(Read read) const
    {
        const QReadLocker locker(&m_lock);
        return read(m_state);
    }
    /// Waits until all persons are there.
    template <class Read>
    auto readPersons(Read read) const
    {
        const QReadLocker locker(&m_lock);
        while (m_missingPersons > 0)
            m_loaded.wait(&m_lock);
        return read(m_state.persons);
    }
    /// While persons are being read: the first ones, and how many there will be. False at any other time, and
    /// when fewer than `count` are there though more are to come.
    bool readFirstPersons(int count, PersonList* persons, int* total) const;

    /// What other processes changed since the last look, already entered. Comes back at once while a write
    /// is under way, which takes these changes in itself. A failure to read them is told once.
    Announcements takeForeignChanges();

private:
    friend class WriteSession;

    Register();
    /// Opens and reads in the calling thread. `ahead`, which may be empty, is called when the first persons
    /// can be shown; what fails after that still gives false.
    bool load(const QString& location, const std::function<void()>& ahead, QString* error);
    void loadInBackground(const QString& location, std::promise<QString> refusal);
    bool loadAll(const QString& location, const std::function<void()>& ahead);
    bool enterFirst(const RegisterState& others, const QString& location);
    void enter(RegisterState& state, const QString& location, int missingPersons);
    bool catchUp(Announcements& announcements); ///< inside a transaction

    mutable QReadWriteLock m_lock; ///< of what follows, taken after m_writing
    RegisterState m_state;
    QString m_location;
    int m_missingPersons = 0;        ///< that are being read; m_state has the first ones only
    mutable QWaitCondition m_loaded; ///< none is missing any more

    std::thread m_loader; ///< of the thread that opens and closes

    QMutex m_writing; ///< of everything below
    std::unique_ptr<SqlStore> m_store;
    std::unique_ptr<Checkpointer> m_checkpointer;
    bool m_isBehind = false;  ///< others have changed something that is not entered yet
    QString m_foreignFailure; ///< why that cannot be read, as last told
};

} // namespace qarn_data
