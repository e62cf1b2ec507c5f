#include "DeviceFaces.h"
#include "SyncRun.h"
#include "TestStore.h"

#include <dvx_client_sdk/ClientSignals.h>
#include <qarn_contact/SystemMsg.h>

#include <QRandomGenerator>

#include <memory>

using qarn_contact::SystemMsg;
using qarn_data::PersonInfo;
using qarn_personMgr::SynchronizeFacesThread;
using Channels = QList<QPair<QString, int>>;

/// How a run ends: by time, by the program's end, by its owner, and under faults.
class tst_SynchronizeFacesEnds : public QObject
{
    Q_OBJECT
private slots:
    void silenceEndsTheRun();
    void everyAnswerRestartsTheWatchdog();
    void quitEndsTheRunWithoutAWord();
    void quitBeforeTheStart();
    void watchdogAfterTheEndIsNotTold();
    void answersAfterTheEndBreakNothing();
    void destroyedWhileItWaits();
    void destroyedWithoutAStart();
    void foreignAnswersAreIgnored();
    void answerInsideTheCallIsNotLost();
    void randomFaultsAndQuits();

private:
    TestStore m_store;
};

void tst_SynchronizeFacesEnds::silenceEndsTheRun()
{
    SimulatedDevice sim({"--channels", "2", "--fail", "hang,on=add,channel=1"});
    sim.addToRegistry();
    SyncRun sync(QList<PersonInfo>{person("A", "Ann")}, Channels{{sim.id(), 1}, {sim.id(), 2}}, false);
    sync.worker.setWatchdogInterval(300);
    QVERIFY(sync.run(5000));
    QCOMPARE(sync.timeouts.count(), 1);
    QCOMPARE(sync.finished.count(), 0);
    QCOMPARE(serialNumsOn(sim.id(), 2), QStringList());
    QVERIFY(!sync.progress.contains("getting Gate-Channel 2 faces...."));
}

void tst_SynchronizeFacesEnds::everyAnswerRestartsTheWatchdog()
{
    SimulatedDevice sim({"--latency-ms", "100"});
    sim.addToRegistry();
    QList<PersonInfo> persons;
    for (int i = 0; i < 10; ++i)
        persons.append(person(QString::number(i), "Ann"));
    SyncRun sync(persons, Channels{{sim.id(), 1}}, false);
    sync.worker.setWatchdogInterval(700);
    QVERIFY(sync.run(10000)); // lasts longer than the interval
    QCOMPARE(sync.timeouts.count(), 0);
    QCOMPARE(sync.finished.count(), 1);
}

void tst_SynchronizeFacesEnds::quitEndsTheRunWithoutAWord()
{
    SimulatedDevice sim({"--fail", "hang,on=list"});
    sim.addToRegistry();
    SyncRun sync(QList<PersonInfo>{person("A", "Ann")}, Channels{{sim.id(), 1}}, false);
    sync.worker.setWatchdogInterval(400);
    sync.worker.start();
    QTRY_COMPARE(sync.progress.count(), 1);
    emit SystemMsg::instance().signalPrepareQuitSystem();
    QVERIFY(sync.worker.wait(2000));
    QTRY_VERIFY(!sync.watchdog()->isActive()); // it has run out
    QCOMPARE(sync.timeouts.count(), 0);
    QCOMPARE(sync.finished.count(), 0);
}

void tst_SynchronizeFacesEnds::quitBeforeTheStart()
{
    SyncRun sync(QList<PersonInfo>{person("A", "Ann")}, Channels(), false);
    emit SystemMsg::instance().signalPrepareQuitSystem();
    QVERIFY(sync.run(2000));
    QCOMPARE(sync.finished.count(), 0);
}

void tst_SynchronizeFacesEnds::watchdogAfterTheEndIsNotTold()
{
    SyncRun sync(QList<PersonInfo>(), Channels(), false);
    QVERIFY(sync.run(2000));
    QCOMPARE(sync.finished.count(), 1);
    sync.worker.setWatchdogInterval(1);
    QTRY_VERIFY(!sync.watchdog()->isActive());
    QCOMPARE(sync.timeouts.count(), 0);
}

void tst_SynchronizeFacesEnds::answersAfterTheEndBreakNothing()
{
    SimulatedDevice sim({"--latency-ms", "300"});
    sim.addToRegistry();
    SyncRun sync(QList<PersonInfo>{person("A", "Ann")}, Channels{{sim.id(), 1}}, true);
    sync.worker.setWatchdogInterval(100);
    QObject listener; // no QSignalSpy: the answers come from another thread
    int answers = 0;
    connect(&dvx_sdk::ClientSignals::instance(), &dvx_sdk::ClientSignals::signalGetFacesRes, &listener,
            [&answers] { ++answers; });
    QVERIFY(sync.run(5000));
    QCOMPARE(sync.timeouts.count(), 1);
    QCOMPARE(answers, 0);
    QTRY_COMPARE(answers, 1);
    QCOMPARE(sync.progress.count(), 1);
    sync.worker.slotAddFaceRes({});
    sync.worker.slotDelFaceRes({});
    sync.worker.slotGetFacesRes({}, {}, 0);
}

void tst_SynchronizeFacesEnds::destroyedWhileItWaits()
{
    SimulatedDevice sim({"--fail", "hang,on=list"});
    sim.addToRegistry();
    auto sync = std::make_unique<SyncRun>(QList<PersonInfo>(), Channels{{sim.id(), 1}}, false);
    sync->worker.start();
    QTRY_COMPARE(sync->progress.count(), 1);
    QElapsedTimer elapsed;
    elapsed.start();
    sync.reset();
    QVERIFY(elapsed.elapsed() < 2000);
}

void tst_SynchronizeFacesEnds::destroyedWithoutAStart()
{
    SyncRun sync(QList<PersonInfo>{person("A", "Ann")}, Channels{{"d", 1}}, false);
    QVERIFY(!sync.worker.isRunning());
}

void tst_SynchronizeFacesEnds::foreignAnswersAreIgnored()
{
    SimulatedDevice sim({"--fail", "hang,on=list"});
    sim.addToRegistry();
    SyncRun sync(QList<PersonInfo>(), Channels{{sim.id(), 1}}, false);
    sync.worker.setWatchdogInterval(400);
    QSignalSpy ended(&sync.worker, &SynchronizeFacesThread::signalGetAllFacesFromDevFinished);
    QTimer::singleShot(100, &sync.worker, [] {
        emit dvx_sdk::ClientSignals::instance().signalGetFacesRes({"another", 0}, {}, 0, 0);
        emit dvx_sdk::ClientSignals::instance().signalGetFacesRes({"another", 404}, {}, 0, 0);
    });
    QVERIFY(sync.run(5000));
    QCOMPARE(ended.count(), 0);
    QCOMPARE(sync.timeouts.count(), 1);
}

/// An unknown channel is answered by the link at once; many runs make the answer meet every moment of the
/// worker between its request and its wait.
void tst_SynchronizeFacesEnds::answerInsideTheCallIsNotLost()
{
    for (int i = 0; i < 200; ++i) {
        SyncRun sync(QList<PersonInfo>{person("A", "Ann")}, Channels{{"d", 1}, {"d", 2}}, true);
        QVERIFY(sync.run(5000));
        QCOMPARE(sync.finished.count(), 1);
        QCOMPARE(sync.failures.count(), 5); // reads: 1 + 2, adds: 2
    }
}

/// QARN_SOAK_RUNS sets another number of runs.
void tst_SynchronizeFacesEnds::randomFaultsAndQuits()
{
    const int wanted = qEnvironmentVariableIntValue("QARN_SOAK_RUNS");
    const int runs = wanted > 0 ? wanted : 60;
    QStringList options{"--channels", "3"};
    for (const char* fault : {"refuse", "503", "drop", "half", "rubbish", "hang", "total", "empty", "huge"})
        options << "--fail" << QString("%1,percent=2").arg(fault);
    // Now and then another device: a hanging one keeps its connections for as long as the link waits, and all
    // that follows would only time out.
    constexpr int RunsADevice = 10;
    std::unique_ptr<SimulatedDevice> sim;
    QRandomGenerator random(1);
    const QList<PersonInfo> persons{person("A", "Ann"), person("B", "Ben"), person("C", "Cem")};
    int ends = 0;
    int quits = 0;
    int timeouts = 0;
    for (int i = 0; i < runs; ++i) {
        if (i % RunsADevice == 0) {
            sim = std::make_unique<SimulatedDevice>(options + QStringList{"--seed", QString::number(i)});
            sim->addToRegistry();
        }
        const Channels channels{{sim->id(), 1}, {sim->id(), random.bounded(2, 4)}};
        auto sync = random.bounded(2) == 0 ? std::make_unique<SyncRun>(persons, channels, true)
                                           : std::make_unique<SyncRun>(QStringList{"none"}, channels);
        sync->worker.setWatchdogInterval(150);
        const bool quits_ = random.bounded(5) == 0;
        if (quits_)
            QTimer::singleShot(random.bounded(60), &sync->worker,
                               [] { emit SystemMsg::instance().signalPrepareQuitSystem(); });
        // A failed read from devices stops the watchdog: when the next channel is silent, the link ends the
        // request after its 30 seconds.
        QVERIFY2(sync->run(40000), qPrintable(QString("run %1 hangs").arg(i)));
        const int told = sync->finished.count() + sync->timeouts.count();
        QVERIFY2(quits_ ? told <= 1 : told == 1, qPrintable(QString("run %1: %2 ends").arg(i).arg(told)));
        ends += told;
        quits += 1 - told;
        timeouts += sync->timeouts.count();
        if (random.bounded(3) == 0)
            sync.reset(); // with answers still on their way
    }
    qInfo("%d runs: %d told their end, %d of them a time-out, %d were quit", runs, ends, timeouts, quits);
}

QTEST_GUILESS_MAIN(tst_SynchronizeFacesEnds)
#include "tst_SynchronizeFacesEnds.moc"
