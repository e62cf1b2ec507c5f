#include "Samples.h"
#include "TestStore.h"

#include <qarn_data/DeviceRegistry.h>

#include <QFile>
#include <QStandardPaths>
#include <QtTest>

using namespace qarn_data;

namespace
{

DeviceRegistry& registry()
{
    return DeviceRegistry::instance();
}

Device door()
{
    Device device;
    device.id = "door";
    device.name = QString::fromUtf8("Tür");
    device.address = QUrl("https://10.0.0.1:8443/base?x=1");
    device.token = "a very secret token";
    device.channels = {{2, "Inside", FaceListAbility}, {1, "Outside", 0}};
    device.pinnedCertificate = QByteArray("\0\1\2", 3);
    return device;
}

QString keyFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) + "/device-key";
}

} // namespace

class tst_DeviceRegistry : public QObject
{
    Q_OBJECT
private slots:
    void keepsDevices();
    void refuses();
    void tokensAreNotInTheFile();
    void keepsATokenThatCannotBeRead();
    void reachabilityIsNotStored();
};

void tst_DeviceRegistry::keepsDevices()
{
    TestStore store;
    QSignalSpy changed(&registry(), &DeviceRegistry::signalDevicesChanged);
    QVERIFY(registry().saveDevice(door()));
    Device gate = door();
    gate.id = "gate";
    gate.token.clear();
    gate.channels.clear();
    QVERIFY(registry().saveDevice(gate));
    QCOMPARE(changed.count(), 2);
    for (int round = 0; round < 2; ++round) {
        QCOMPARE(registry().devices().size(), 2);
        const Device read = registry().device("door");
        QCOMPARE(read.name, door().name);
        QCOMPARE(read.address, door().address);
        QCOMPARE(read.token, door().token);
        QCOMPARE(read.pinnedCertificate, door().pinnedCertificate);
        QCOMPARE(read.channels.size(), 2);
        QCOMPARE(read.channels.at(0).number, 2); // in the order given
        QCOMPARE(read.channels.at(0).name, QString("Inside"));
        QCOMPARE(read.channels.at(0).abilities, int(FaceListAbility));
        QVERIFY(registry().device("gate").token.isEmpty());
        store.reopen();
    }
    Device changedDoor = door();
    changedDoor.name = "Front door";
    changedDoor.channels.removeFirst();
    QVERIFY(registry().saveDevice(changedDoor));
    QVERIFY(registry().removeDevice("gate"));
    store.reopen();
    QCOMPARE(registry().devices().size(), 1);
    QCOMPARE(registry().devices().first().name, QString("Front door"));
    QCOMPARE(registry().devices().first().channels.size(), 1);
    QVERIFY(registry().device("gate").id.isEmpty());
    QCOMPARE(samples::inconsistency(), QString());
}

void tst_DeviceRegistry::refuses()
{
    QSignalSpy failed(&DataService::instance(), &DataService::signalFailed);
    QVERIFY(!registry().saveDevice(door())); // no store
    QVERIFY(!registry().removeDevice("door"));
    QCOMPARE(failed.count(), 2);
    TestStore store;
    Device device = door();
    device.id.clear();
    QVERIFY(!registry().saveDevice(device));
    QCOMPARE(failed.count(), 3);
    QVERIFY(registry().devices().isEmpty());
}

void tst_DeviceRegistry::tokensAreNotInTheFile()
{
    TestStore store;
    QVERIFY(registry().saveDevice(door()));
    DataService::instance().close();
    QFile file(store.filePath());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray content = file.readAll();
    QVERIFY(content.contains(door().name.toUtf8()));
    QVERIFY(!content.contains(door().token.toUtf8()));
    QCOMPARE(QFile::permissions(keyFile()) &
                 (QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup | QFile::WriteOther),
             QFile::Permissions());
}

void tst_DeviceRegistry::keepsATokenThatCannotBeRead()
{
    TestStore store;
    QVERIFY(registry().saveDevice(door()));
    QVERIFY(QFile::rename(keyFile(), keyFile() + ".away"));
    store.reopen();
    Device device = registry().device("door");
    QVERIFY(device.token.isEmpty());
    device.name = "Renamed";
    QVERIFY(registry().saveDevice(device));
    QVERIFY(QFile::rename(keyFile() + ".away", keyFile()));
    store.reopen();
    QCOMPARE(registry().device("door").name, QString("Renamed"));
    QCOMPARE(registry().device("door").token, door().token);
}

void tst_DeviceRegistry::reachabilityIsNotStored()
{
    TestStore store;
    QSignalSpy changed(&registry(), &DeviceRegistry::signalReachabilityChanged);
    QCOMPARE(registry().reachability("door"), DeviceRegistry::Reachability::Unknown);
    registry().setReachability("door", DeviceRegistry::Reachability::Online);
    registry().setReachability("door", DeviceRegistry::Reachability::Online);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().first().toString(), QString("door"));
    QCOMPARE(registry().reachability("door"), DeviceRegistry::Reachability::Online);
}

QTEST_GUILESS_MAIN(tst_DeviceRegistry)
#include "tst_DeviceRegistry.moc"
