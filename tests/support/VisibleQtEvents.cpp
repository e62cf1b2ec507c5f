// ThreadSanitizer does not see either that a queued call happens after it was posted, and what follows
// QThread::wait() after what the thread did. As in VisibleQtLocks.cpp these definitions tell it. A queued
// call of a signal is ordered behind everything that its emitter did, a posted function behind what the
// poster to the same object did, an emission behind the connecting; nothing else becomes ordered by them.

#include "QtsOwn.h"

#include <QDeadlineTimer>
#include <QEvent>
#include <QObject>
#include <QThread>

#include <sanitizer/tsan_interface.h>

namespace
{

/// How Qt 5.15 lays out an event that carries a call (QAbstractMetaCallEvent of its private headers).
struct QueuedCall {
    void* table;
    void* unused;
    quint16 type;
    quint16 flags;
    QObject* sender; ///< null when a function was posted
};

/// An address that stands for the list of an object's connections, which Qt guards.
void* connectionsOf(const QObject* object)
{
    return reinterpret_cast<char*>(const_cast<QObject*>(object)) + 2;
}

/// An address that stands for the calls that are posted to, or by, an object.
void* queueOf(const QObject* object)
{
    return reinterpret_cast<char*>(const_cast<QObject*>(object)) + 1;
}

} // namespace

QMetaObject::Connection QObject::connectImpl(const QObject* sender, void** signal, const QObject* receiver,
                                             void** slotPointer, QtPrivate::QSlotObjectBase* slot,
                                             Qt::ConnectionType type, const int* types,
                                             const QMetaObject* senderMeta)
{
    static auto* const own = qtsOwn<decltype(QObject::connectImpl)>(
        "_ZN7QObject11connectImplEPKS_PPvS1_S3_"
        "PN9QtPrivate15QSlotObjectBaseEN2Qt14ConnectionTypeEPKiPK11QMetaObject");
    __tsan_release(connectionsOf(sender));
    return own(sender, signal, receiver, slotPointer, slot, type, types, senderMeta);
}

void QMetaObject::activate(QObject* sender, const QMetaObject* meta, int signal, void** arguments)
{
    static auto* const own = qtsOwn<void(QObject*, const QMetaObject*, int, void**)>(
        "_ZN11QMetaObject8activateEP7QObjectPKS_iPPv");
    __tsan_acquire(connectionsOf(sender));
    __tsan_release(queueOf(sender));
    own(sender, meta, signal, arguments);
    __tsan_release(queueOf(sender)); // and what slots of the emitter's thread did
}

bool QMetaObject::invokeMethodImpl(QObject* object, QtPrivate::QSlotObjectBase* slot, Qt::ConnectionType type,
                                   void* result)
{
    static auto* const own = qtsOwn<bool(QObject*, QtPrivate::QSlotObjectBase*, Qt::ConnectionType, void*)>(
        "_ZN11QMetaObject16invokeMethodImplEP7QObjectPN9QtPrivate15QSlotObjectBaseEN2Qt14ConnectionTypeEPv");
    __tsan_release(queueOf(object));
    return own(object, slot, type, result);
}

bool QObject::event(QEvent* event)
{
    static auto* const own = qtsOwn<bool(QObject*, QEvent*)>("_ZN7QObject5eventEP6QEvent");
    if (event->type() == QEvent::MetaCall) {
        const QObject* sender = reinterpret_cast<QueuedCall*>(event)->sender;
        __tsan_acquire(queueOf(sender == nullptr ? this : sender));
    }
    return own(this, event);
}

void QThread::start(Priority priority)
{
    static auto* const own = qtsOwn<void(QThread*, Priority)>("_ZN7QThread5startENS_8PriorityE");
    const auto tellEnd = [this] { __tsan_release(queueOf(this)); };
    QObject::connect(this, &QThread::finished, this, tellEnd, Qt::DirectConnection);
    own(this, priority);
}

bool QThread::wait(QDeadlineTimer deadline)
{
    static auto* const own = qtsOwn<bool(QThread*, QDeadlineTimer)>("_ZN7QThread4waitE14QDeadlineTimer");
    const bool ended = own(this, deadline);
    if (ended)
        __tsan_acquire(queueOf(this));
    return ended;
}

bool QThread::isFinished() const
{
    static auto* const own = qtsOwn<bool(const QThread*)>("_ZNK7QThread10isFinishedEv");
    const bool ended = own(this);
    if (ended)
        __tsan_acquire(queueOf(this));
    return ended;
}
