#pragma once

#include "sync/SynchronizeFacesThread.h"

#include <QEventLoop>
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
        // Each answer is handled when it comes: QTest::qWaitFor() would look only every ten milliseconds.
        QEventLoop loop;
        QObject::connect(&worker, &QThread::finished, &loop, &QEventLoop::quit);
        QTimer::singleShot(ms, &loop, &QEventLoop::quit);
        worker.start();
        loop.exec();
        const bool ended = worker.wait(100);
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
