#include "DeviceFaces.h"
#include "SyncRun.h"
#include "TestStore.h"

#include <qarn_data/PersonData.h>

using qarn_data::PersonData;
using qarn_data::PersonInfo;
using Channels = QList<QPair<QString, int>>;

/// The way to the devices.
class tst_SynchronizeFacesThread : public QObject
{
    Q_OBJECT
private slots:
    void emptyChannelGetsAllPersons();
    void tellsEachStep();
    void pushesThePersonsOfOrganizations();
    void sendsWhatADeviceNeeds();
    void replacesFacesThatAreThere();
    void deletesRemovedOnlyWhenAsked_data();
    void deletesRemovedOnlyWhenAsked();
    void laterPersonOfOneSerialNumberWins();
    void readsManyPages_data();
    void readsManyPages();
    void failedAddIsToldAndTheRestGoesOn();
    void failedDeleteIsToldAndTheRestGoesOn();
    void failedReadsAddUp();
    void unknownDeviceFailsAtOnce();
    void noChannelsFinishAtOnce();
    void noPersonsAddNothing();
    void twoWorkersDoNotMeet();

private:
    TestStore m_store;
};

void tst_SynchronizeFacesThread::emptyChannelGetsAllPersons()
{
    SimulatedDevice sim({"--channels", "2"});
    sim.addToRegistry();
    SyncRun sync(QList<PersonInfo>{person("B", "Ben"), person("A", "Ann")},
                 Channels{{sim.id(), 1}, {sim.id(), 2}}, false);
    QVERIFY(sync.run());
    QCOMPARE(sync.finished.count(), 1);
    QCOMPARE(sync.timeouts.count(), 0);
    QCOMPARE(sync.failures, QStringList());
    const QStringList inSerialNumberOrder{"A", "B"};
    QCOMPARE(serialNumsOn(sim.id(), 1), inSerialNumberOrder);
    QCOMPARE(serialNumsOn(sim.id(), 2), inSerialNumberOrder);
    QVERIFY(sync.watchdog()->isActive());
    QVERIFY(sync.watchdog()->isSingleShot());
    QCOMPARE(sync.watchdog()->interval(), 60000);
}

void tst_SynchronizeFacesThread::tellsEachStep()
{
    FilledDevice device(faceLine(1, "A", "Ann") + faceLine(1, "Gone", "Gus"));
    SyncRun sync(QList<PersonInfo>{person("A", "Ann")}, Channels{{device.sim.id(), 1}}, true);
    QVERIFY(sync.run());
    const QString channel = "Gate-Channel 1";
    // Both delete phases run: Gus is gone from the register, and so is Ann, who is not in it either; she is
    // then deleted twice.
    QCOMPARE(sync.progress,
             QStringList({"getting " + channel + " faces....", "deleting " + channel + " faces....",
                          "deleting " + channel + " faces....", "adding " + channel + " faces..."}));
    QCOMPARE(sync.failures, QStringList{"del Ann face from " + channel + " failed"});
    QCOMPARE(serialNumsOn(device.sim.id(), 1), QStringList{"A"});
}

void tst_SynchronizeFacesThread::pushesThePersonsOfOrganizations()
{
    PersonData& data = PersonData::instance();
    const QString one = data.createOrganization({"One"});
    const QString two = data.createOrganization({"Two"});
    PersonInfo inOne = person("O1", "Olga");
    inOne.organizationId = one;
    PersonInfo inTwo = person("T1", "Tom");
    inTwo.organizationId = two;
    QVERIFY(data.addPersons({inOne, inTwo}));
    SimulatedDevice sim;
    sim.addToRegistry();
    SyncRun sync(QStringList{two}, Channels{{sim.id(), 1}}, false);
    QVERIFY(sync.run());
    QCOMPARE(serialNumsOn(sim.id(), 1), QStringList{"T1"});
    QVERIFY(data.deletePersons({inOne.id, inTwo.id}));
}

void tst_SynchronizeFacesThread::sendsWhatADeviceNeeds()
{
    SimulatedDevice sim;
    sim.addToRegistry();
    PersonInfo info = person("A", "Änne");
    info.sex = 2;
    info.validStartTime = QDateTime(QDate(2025, 3, 30), QTime(3, 30));
    info.validEndTime = QDateTime(QDate(2026, 10, 25), QTime(2, 30));
    SyncRun sync(QList<PersonInfo>{info}, Channels{{sim.id(), 1}}, false);
    QVERIFY(sync.run());
    const auto faces = facesOn(sim.id(), 1, true);
    QCOMPARE(faces.count(), 1);
    QCOMPARE(faces.first().name, info.name);
    QCOMPARE(faces.first().sex, 2);
    QCOMPARE(faces.first().validStartTime, info.validStartTime);
    QCOMPARE(faces.first().validEndTime, info.validEndTime);
    QCOMPARE(QByteArray::fromBase64(faces.first().faceImages.value(0)), info.faceImage1);
}

void tst_SynchronizeFacesThread::replacesFacesThatAreThere()
{
    FilledDevice device(faceLine(1, "A", "Old Ann") + faceLine(1, "B", "Ben"));
    SyncRun sync(QList<PersonInfo>{person("A", "New Ann")}, Channels{{device.sim.id(), 1}}, false);
    QVERIFY(sync.run());
    QCOMPARE(sync.failures, QStringList());
    const auto faces = facesOn(device.sim.id(), 1);
    QCOMPARE(faces.count(), 2);
    QCOMPARE(faces.at(0).serialNum, QString("B"));
    QCOMPARE(faces.at(1).name, QString("New Ann"));
}

void tst_SynchronizeFacesThread::deletesRemovedOnlyWhenAsked_data()
{
    QTest::addColumn<bool>("deleteRemoved");
    QTest::addColumn<QStringList>("left");
    QTest::newRow("asked") << true << QStringList{"Known", "New"};
    QTest::newRow("not asked") << false << QStringList{"Known", "Gone", "New"};
}

void tst_SynchronizeFacesThread::deletesRemovedOnlyWhenAsked()
{
    QFETCH(bool, deleteRemoved);
    QFETCH(QStringList, left);
    const PersonInfo known = person("Known", "Ken");
    QVERIFY(PersonData::instance().addPerson(known));
    FilledDevice device(faceLine(1, "Known", "Ken") + faceLine(1, "Gone", "Gus"));
    SyncRun sync(QList<PersonInfo>{person("New", "Nils")}, Channels{{device.sim.id(), 1}}, deleteRemoved);
    QVERIFY(sync.run());
    QCOMPARE(serialNumsOn(device.sim.id(), 1), left);
    QVERIFY(PersonData::instance().deletePersons({known.id}));
}

void tst_SynchronizeFacesThread::laterPersonOfOneSerialNumberWins()
{
    SimulatedDevice sim;
    sim.addToRegistry();
    SyncRun sync(QList<PersonInfo>{person("A", "Earlier"), person("A", "Later")}, Channels{{sim.id(), 1}},
                 false);
    QVERIFY(sync.run());
    const auto faces = facesOn(sim.id(), 1);
    QCOMPARE(faces.count(), 1);
    QCOMPARE(faces.first().name, QString("Later"));
}

void tst_SynchronizeFacesThread::readsManyPages_data()
{
    QTest::addColumn<int>("faces");
    QTest::addColumn<QString>("pageLimit");
    QTest::newRow("none") << 0 << "1000";
    QTest::newRow("a full page") << 32 << "1000";
    QTest::newRow("one more") << 33 << "1000";
    QTest::newRow("three pages") << 70 << "1000";
    QTest::newRow("smaller pages than asked for") << 70 << "7";
}

void tst_SynchronizeFacesThread::readsManyPages()
{
    QFETCH(int, faces);
    QFETCH(QString, pageLimit);
    QByteArray lines;
    for (int i = 0; i < faces; ++i)
        lines += faceLine(1, "Gone" + QByteArray::number(i), "Gus");
    FilledDevice device(lines, {"--page-limit", pageLimit});
    SyncRun sync(QList<PersonInfo>(), Channels{{device.sim.id(), 1}}, true);
    QVERIFY(sync.run());
    QCOMPARE(sync.finished.count(), 1);
    QCOMPARE(sync.failures, QStringList());
    QCOMPARE(serialNumsOn(device.sim.id(), 1), QStringList());
}

void tst_SynchronizeFacesThread::failedAddIsToldAndTheRestGoesOn()
{
    SimulatedDevice sim({"--fail", "refuse,on=add,every=2"});
    sim.addToRegistry();
    SyncRun sync(
        QList<PersonInfo>{person("A", "Ann"), person("B", ""), person("C", "Cem"), person("D", "Dora")},
        Channels{{sim.id(), 1}}, false);
    QVERIFY(sync.run());
    QCOMPARE(sync.failures,
             QStringList({"add B face to Gate-Channel 1 failed", "add Dora face to Gate-Channel 1 failed"}));
    QCOMPARE(sync.finished.count(), 1);
    QCOMPARE(serialNumsOn(sim.id(), 1), QStringList({"A", "C"}));
}

void tst_SynchronizeFacesThread::failedDeleteIsToldAndTheRestGoesOn()
{
    FilledDevice device(faceLine(1, "A", "Ann") + faceLine(1, "B", "Ben") + faceLine(1, "C", "Cem"),
                        {"--fail", "drop,on=delete,every=2"});
    SyncRun sync(QList<PersonInfo>(), Channels{{device.sim.id(), 1}}, true);
    QVERIFY(sync.run());
    QCOMPARE(sync.failures, QStringList{"del Ben face from Gate-Channel 1 failed"});
    QCOMPARE(serialNumsOn(device.sim.id(), 1), QStringList{"B"});
}

void tst_SynchronizeFacesThread::failedReadsAddUp()
{
    SimulatedDevice sim({"--channels", "3", "--fail", "503,on=list,channel=3"});
    sim.addToRegistry();
    SyncRun sync(QList<PersonInfo>{person("A", "Ann")}, Channels{{sim.id(), 1}, {sim.id(), 2}, {sim.id(), 3}},
                 false);
    QVERIFY(sync.run());
    const QString failure = "get Gate-Channel 3 faces failed";
    QCOMPARE(sync.failures, QStringList({failure, failure, failure}));
    QCOMPARE(sync.finished.count(), 1);
    QCOMPARE(sync.progress.last(), QString("adding Gate-Channel 3 faces..."));
}

void tst_SynchronizeFacesThread::unknownDeviceFailsAtOnce()
{
    SyncRun sync(QList<PersonInfo>{person("A", "Ann")}, Channels{{"nowhere", 7}}, true);
    QVERIFY(sync.run(5000));
    QCOMPARE(sync.failures, QStringList({"get nowhere-7 faces failed", "add Ann face to nowhere-7 failed"}));
    QCOMPARE(sync.finished.count(), 1);
}

void tst_SynchronizeFacesThread::noChannelsFinishAtOnce()
{
    SyncRun sync(QList<PersonInfo>{person("A", "Ann")}, Channels(), true);
    QVERIFY(sync.run(5000));
    QCOMPARE(sync.finished.count(), 1);
    QCOMPARE(sync.progress, QStringList());
}

void tst_SynchronizeFacesThread::noPersonsAddNothing()
{
    SimulatedDevice sim;
    sim.addToRegistry();
    SyncRun sync(QList<PersonInfo>(), Channels{{sim.id(), 1}}, false);
    QVERIFY(sync.run());
    QCOMPARE(sync.progress, QStringList{"getting Gate-Channel 1 faces...."});
}

void tst_SynchronizeFacesThread::twoWorkersDoNotMeet()
{
    SimulatedDevice sim({"--channels", "3"});
    sim.addToRegistry();
    QList<PersonInfo> first;
    QList<PersonInfo> second;
    for (int i = 0; i < 40; ++i) {
        first.append(person(QString("F%1").arg(i, 2, 10, QLatin1Char('0')), "Fay"));
        second.append(person(QString("S%1").arg(i, 2, 10, QLatin1Char('0')), "Sam"));
    }
    SyncRun one(first, Channels{{sim.id(), 1}, {sim.id(), 2}}, false);
    SyncRun two(second, Channels{{sim.id(), 2}, {sim.id(), 3}}, false);
    two.worker.start();
    QVERIFY(one.run());
    QTRY_VERIFY(two.worker.isFinished());
    QCOMPARE(one.failures + two.failures, QStringList());
    QCOMPARE(serialNumsOn(sim.id(), 1).count(), 40);
    QCOMPARE(serialNumsOn(sim.id(), 2).count(), 80);
    QCOMPARE(serialNumsOn(sim.id(), 3).count(), 40);
}

QTEST_GUILESS_MAIN(tst_SynchronizeFacesThread)
#include "tst_SynchronizeFacesThread.moc"
