#include <XCOMMON/ThreadRegistry.h>
#include <XCOMMON/XThread.h>

#include <QSemaphore>
#include <QSignalSpy>
#include <QtTest>

using XCOMMON::ThreadRegistry;
using XCOMMON::XThread;

namespace
{

/// Runs until it is let go.
class Worker : public XThread
{
public:
    ~Worker() override
    {
        finish();
        wait();
    }
    void finish() { m_done.release(); }

protected:
    void run() override { m_done.acquire(); }

private:
    QSemaphore m_done;
};

} // namespace

class tst_XThread : public QObject
{
    Q_OBJECT
private slots:
    void isKnownFromStartToEnd();
    void saysWhenTheLastOneHasEnded();
    void countsASecondRun();
    void waitsForItsEnd();
    void countsManyThatEndAtOnce();
};

void tst_XThread::isKnownFromStartToEnd()
{
    ThreadRegistry& registry = ThreadRegistry::instance();
    Worker worker;
    QCOMPARE(registry.runningCount(), 0);
    worker.start();
    QCOMPARE(registry.runningCount(), 1); // at once, not only when the thread has begun
    worker.finish();
    QTRY_COMPARE(registry.runningCount(), 0);
}

void tst_XThread::saysWhenTheLastOneHasEnded()
{
    ThreadRegistry& registry = ThreadRegistry::instance();
    QSignalSpy spy(&registry, &ThreadRegistry::signalAllFinished);
    std::atomic<int> countAtSignal{-1};
    connect(
        &registry, &ThreadRegistry::signalAllFinished, this, [&] { countAtSignal = registry.runningCount(); },
        Qt::DirectConnection);
    Worker first;
    Worker second;
    first.start();
    second.start();
    QCOMPARE(registry.runningCount(), 2);
    first.finish();
    QVERIFY(first.wait(5000));
    QCOMPARE(spy.count(), 0);
    second.finish();
    QVERIFY(second.wait(5000));
    QTRY_COMPARE(spy.count(), 1);
    QCOMPARE(countAtSignal.load(), 0);
    disconnect(&registry, nullptr, this, nullptr);
}

void tst_XThread::countsASecondRun()
{
    ThreadRegistry& registry = ThreadRegistry::instance();
    Worker worker;
    for (int run = 0; run < 2; ++run) {
        QSignalSpy spy(&registry, &ThreadRegistry::signalAllFinished);
        worker.start();
        QTRY_COMPARE(registry.runningCount(), 1);
        worker.finish();
        QVERIFY(worker.wait(5000));
        QCOMPARE(registry.runningCount(), 0);
        QTRY_COMPARE(spy.count(), 1);
    }
}

void tst_XThread::waitsForItsEnd()
{
    std::atomic<bool> ended{false};
    struct Slow : XThread {
        explicit Slow(std::atomic<bool>& flag) : m_flag(flag) {}
        void run() override
        {
            msleep(50);
            m_flag = true;
        }
        std::atomic<bool>& m_flag;
    };
    {
        auto thread = std::make_unique<Slow>(ended);
        thread->start();
        QTRY_VERIFY(thread->isRunning());
        QVERIFY(thread->wait(5000));
    }
    QVERIFY(ended);
    QCOMPARE(ThreadRegistry::instance().runningCount(), 0);
}

void tst_XThread::countsManyThatEndAtOnce()
{
    constexpr int threads = 16;
    for (int round = 0; round < 10; ++round) {
        QSignalSpy spy(&ThreadRegistry::instance(), &ThreadRegistry::signalAllFinished);
        std::vector<std::unique_ptr<Worker>> workers;
        for (int i = 0; i < threads; ++i) {
            workers.push_back(std::make_unique<Worker>());
            workers.back()->start();
        }
        for (const auto& worker : workers)
            worker->finish();
        for (const auto& worker : workers)
            QVERIFY(worker->wait(5000));
        QCOMPARE(ThreadRegistry::instance().runningCount(), 0);
        QTRY_VERIFY(spy.count() >= 1);
    }
}

QTEST_GUILESS_MAIN(tst_XThread)
#include "tst_XThread.moc"
