#include "sync/ChannelGate.h"

#include <QEventLoop>
#include <QSignalSpy>
#include <QThread>
#include <QTimer>
#include <QtTest>

#include <memory>

using qarn_personMgr::ChannelGate;

class tst_ChannelGate : public QObject
{
    Q_OBJECT
private slots:
    void openBeforeTheWait();
    void openDuringTheWait();
    void openedTwiceDoesNotEndTheNextPhase();
    void earlierPhaseDoesNotOpenALaterOne();
    void openForGoodHoldsForAllPhases();
    void endedFromElsewhere();
    void noWakeUpIsLost();
};

void tst_ChannelGate::openBeforeTheWait()
{
    ChannelGate gate;
    QEventLoop loop;
    gate.open(gate.startPhase());
    QVERIFY(gate.wait(loop));
}

void tst_ChannelGate::openDuringTheWait()
{
    ChannelGate gate;
    QEventLoop loop;
    const int phase = gate.startPhase();
    QTimer::singleShot(0, this, [&] { gate.open(phase); });
    QVERIFY(gate.wait(loop));
}

void tst_ChannelGate::openedTwiceDoesNotEndTheNextPhase()
{
    ChannelGate gate;
    QEventLoop loop;
    const int first = gate.startPhase();
    QTimer::singleShot(0, this, [&] {
        gate.open(first);
        gate.open(first);
    });
    QVERIFY(gate.wait(loop));
    const int second = gate.startPhase();
    bool opened = false;
    QTimer::singleShot(20, this, [&] {
        opened = true;
        gate.open(second);
    });
    QVERIFY(gate.wait(loop));
    QVERIFY(opened);
}

void tst_ChannelGate::earlierPhaseDoesNotOpenALaterOne()
{
    ChannelGate gate;
    QEventLoop loop;
    const int first = gate.startPhase();
    const int second = gate.startPhase();
    gate.open(first);
    QTimer::singleShot(20, this, [&] { gate.open(second); });
    QElapsedTimer elapsed;
    elapsed.start();
    QVERIFY(gate.wait(loop));
    QVERIFY(elapsed.elapsed() >= 15);
}

void tst_ChannelGate::openForGoodHoldsForAllPhases()
{
    ChannelGate gate;
    QEventLoop loop;
    gate.openForGood();
    gate.startPhase();
    QVERIFY(gate.wait(loop));
    gate.startPhase();
    QVERIFY(gate.wait(loop));
}

void tst_ChannelGate::endedFromElsewhere()
{
    ChannelGate gate;
    QEventLoop loop;
    gate.startPhase();
    QTimer::singleShot(0, &loop, &QEventLoop::quit);
    QVERIFY(!gate.wait(loop));
}

void tst_ChannelGate::noWakeUpIsLost()
{
    for (int round = 0; round < 2000; ++round) {
        auto gate = std::make_shared<ChannelGate>();
        const int phase = gate->startPhase();
        std::unique_ptr<QThread> opener(QThread::create([gate, phase] { gate->open(phase); }));
        opener->start();
        {
            QEventLoop loop;
            QVERIFY(gate->wait(loop));
        }
        gate->open(phase); // the loop is gone
        QVERIFY(opener->wait(5000));
    }
}

QTEST_GUILESS_MAIN(tst_ChannelGate)
#include "tst_ChannelGate.moc"
