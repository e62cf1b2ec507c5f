// Qt itself is not built with ThreadSanitizer, so that it does not see Qt's locks being taken and would
// report everything that they guard. These definitions stand before Qt's own in the dynamic linker's order:
// they tell ThreadSanitizer, then do what Qt does. Built in only where QARN_SANITIZE_THREAD is on.

#include "QtsOwn.h"

#include <QDeadlineTimer>
#include <QMutex>
#include <QReadWriteLock>
#include <QVector>
#include <QWaitCondition>

#include <sanitizer/tsan_interface.h>

namespace
{

constexpr unsigned ForReading = __tsan_mutex_read_lock;
constexpr unsigned ForWriting = 0;

void tellUnlock(void* lock, unsigned mode)
{
    __tsan_mutex_pre_unlock(lock, mode);
    __tsan_mutex_post_unlock(lock, mode);
}

void tellLock(void* lock, unsigned mode)
{
    __tsan_mutex_pre_lock(lock, mode);
    __tsan_mutex_post_lock(lock, mode, 0);
}

// Which read-write locks the thread holds for reading: unlock() is the same call for both kinds.
thread_local QVector<const void*> readLocks;

} // namespace

void QMutex::lock() QT_MUTEX_LOCK_NOEXCEPT
{
    static auto* const own = qtsOwn<void(QMutex*)>("_ZN6QMutex4lockEv");
    __tsan_mutex_pre_lock(this, 0);
    own(this);
    __tsan_mutex_post_lock(this, 0, 0);
}

bool QMutex::tryLock(int timeout) QT_MUTEX_LOCK_NOEXCEPT
{
    static auto* const own = qtsOwn<bool(QMutex*, int)>("_ZN6QMutex7tryLockEi");
    __tsan_mutex_pre_lock(this, __tsan_mutex_try_lock);
    const bool locked = own(this, timeout);
    __tsan_mutex_post_lock(this,
                           __tsan_mutex_try_lock | (locked ? 0u : unsigned(__tsan_mutex_try_lock_failed)), 0);
    return locked;
}

void QMutex::unlock() noexcept
{
    static auto* const own = qtsOwn<void(QMutex*)>("_ZN6QMutex6unlockEv");
    __tsan_mutex_pre_unlock(this, 0);
    own(this);
    __tsan_mutex_post_unlock(this, 0);
}

void QReadWriteLock::lockForRead()
{
    static auto* const own = qtsOwn<void(QReadWriteLock*)>("_ZN14QReadWriteLock11lockForReadEv");
    own(this);
    tellLock(this, ForReading);
    readLocks.append(this);
}

void QReadWriteLock::lockForWrite()
{
    static auto* const own = qtsOwn<void(QReadWriteLock*)>("_ZN14QReadWriteLock12lockForWriteEv");
    own(this);
    tellLock(this, ForWriting);
}

void QReadWriteLock::unlock()
{
    static auto* const own = qtsOwn<void(QReadWriteLock*)>("_ZN14QReadWriteLock6unlockEv");
    tellUnlock(this, readLocks.removeOne(this) ? ForReading : ForWriting);
    own(this);
}

bool QWaitCondition::wait(QMutex* mutex, unsigned long time)
{
    static auto* const own =
        qtsOwn<bool(QWaitCondition*, QMutex*, unsigned long)>("_ZN14QWaitCondition4waitEP6QMutexm");
    tellUnlock(mutex, ForWriting);
    const bool woken = own(this, mutex, time);
    tellLock(mutex, ForWriting);
    return woken;
}

// Of a lock that is held for reading: nobody waits with one for writing.
bool QWaitCondition::wait(QReadWriteLock* lock, QDeadlineTimer deadline)
{
    static auto* const own = qtsOwn<bool(QWaitCondition*, QReadWriteLock*, QDeadlineTimer)>(
        "_ZN14QWaitCondition4waitEP14QReadWriteLock14QDeadlineTimer");
    tellUnlock(lock, ForReading);
    const bool woken = own(this, lock, deadline);
    tellLock(lock, ForReading);
    return woken;
}

bool QWaitCondition::wait(QMutex* mutex, QDeadlineTimer deadline)
{
    static auto* const own = qtsOwn<bool(QWaitCondition*, QMutex*, QDeadlineTimer)>(
        "_ZN14QWaitCondition4waitEP6QMutex14QDeadlineTimer");
    tellUnlock(mutex, ForWriting);
    const bool woken = own(this, mutex, deadline);
    tellLock(mutex, ForWriting);
    return woken;
}
