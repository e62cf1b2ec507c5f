#pragma once

#include "sync/SynchronizeFacesThread.h"

#include <QSignalSpy>
#include <QTimer>
#include <QtTest>

/// One worker, run to its end, and what it told.
class SyncRun
{
public:
    template <typename... Arguments>
    explicit SyncRun(Arguments&&... arguments)
        : worker(std::forward<Arguments>(arguments)..., nullptr),
          finished(&worker, &qarn_personMgr::SynchronizeFacesThread::signalSyncFinished),
          timeouts(&worker, &qarn_personMgr::SynchronizeFacesThread::signalSyncTimeout)
    {
        QObject::connect(
            &worker, &qarn_personMgr::SynchronizeFacesThread::signalSyncMsg, &worker,
            [this](const QString& text, bool isNormal) { (isNormal ? progress : failures).append(text); });
    }

    /// True when it ended in time; all that it told has arrived then.
    bool run(int ms = 30000)
    {
        worker.start();
        const bool ended = QTest::qWaitFor([this] { return worker.isFinished(); }, ms);
        QCoreApplication::processEvents();
        return ended;
    }

    QTimer* watchdog() const { return worker.findChild<QTimer*>(); }

    qarn_personMgr::SynchronizeFacesThread worker;
    QSignalSpy finished;
    QSignalSpy timeouts;
    QStringList progress;
    QStringList failures;
};
