#include "LinkListener.h"
#include "ScriptedServer.h"
#include "SimulatedDevice.h"
#include "TestCertificate.h"
#include "TestStore.h"

#include <dvx_client_sdk/DeviceProbe.h>
#include <dvx_client_sdk/ResponseCodes.h>

#include <QSignalSpy>

using namespace dvx_sdk;
using qarn_data::Device;
using qarn_data::DeviceRegistry;

class tst_DeviceProbe : public QObject
{
    Q_OBJECT
private slots:
    void findsNameAndChannels();
    void storedDeviceIsNotedReachable();
    void listOfChannelsIsMissing();
    void failures_data();
    void failures();
    void showsTheCertificate();
    void destroyedBeforeTheAnswer();
    void everyCodeHasWords();

private:
    static ProbeResult probe(const Device& device)
    {
        DeviceProbe prober;
        QSignalSpy spy(&prober, &DeviceProbe::signalFinished);
        prober.start(device);
        if (!spy.wait(15000))
            return {LinkListener::NoAnswer, {}, {}, 0, {}};
        return spy.first().first().value<ProbeResult>();
    }

    TestStore m_store;
};

void tst_DeviceProbe::findsNameAndChannels()
{
    SimulatedDevice sim({"--channels", "3", "--name", "North gate", "--token", "t"});
    Device device = sim.device();
    device.id.clear(); // not stored yet
    const ProbeResult result = probe(device);
    QCOMPARE(result.code, int(Success));
    QCOMPARE(result.name, QString("North gate"));
    QCOMPARE(result.channels.count(), 3);
    QCOMPARE(result.channels.at(2).number, 3);
    QCOMPARE(result.channels.at(2).name, QString("Channel 3"));
    QCOMPARE(result.channels.at(2).abilities, int(qarn_data::FaceListAbility));
}

void tst_DeviceProbe::storedDeviceIsNotedReachable()
{
    SimulatedDevice sim;
    sim.addToRegistry();
    probe(sim.device());
    QTRY_COMPARE(DeviceRegistry::instance().reachability(sim.id()), DeviceRegistry::Reachability::Online);
    sim.stop();
    probe(sim.device());
    QTRY_COMPARE(DeviceRegistry::instance().reachability(sim.id()), DeviceRegistry::Reachability::Offline);
}

void tst_DeviceProbe::listOfChannelsIsMissing()
{
    ScriptedServer server([](const QByteArray& request) {
        const bool known = request.contains("/channels/1/scim/v2/ResourceTypes") ||
                           request.contains("/channels/2/scim/v2/ResourceTypes");
        return known ? ScriptedServer::resourceTypes() : ScriptedServer::json("{}", "404 Not Found");
    });
    const ProbeResult result = probe(DeviceRegistry::instance().device(server.id()));
    QCOMPARE(result.code, int(Success));
    QCOMPARE(result.channels.count(), 2);
    QCOMPARE(result.channels.at(1).number, 2);
}

void tst_DeviceProbe::failures_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<int>("code");
    QTest::newRow("web page") << ScriptedServer::json("<html>") << int(BadAnswer);
    QTest::newRow("no channels") << ScriptedServer::json("{\"channels\":[]}") << int(BadAnswer);
    QTest::newRow("channel without number") << ScriptedServer::json("{\"channels\":[{}]}") << int(BadAnswer);
    QTest::newRow("nothing there") << ScriptedServer::json("", "404 Not Found") << int(404);
    QTest::newRow("refused") << ScriptedServer::json("", "403 Forbidden") << 403;
}

void tst_DeviceProbe::failures()
{
    QFETCH(QByteArray, answer);
    QFETCH(int, code);
    ScriptedServer server([&](const QByteArray&) { return answer; });
    QCOMPARE(probe(DeviceRegistry::instance().device(server.id())).code, code);
}

void tst_DeviceProbe::showsTheCertificate()
{
    TestCertificate certificate;
    SimulatedDevice sim(certificate.options());
    Device device = sim.device();
    const ProbeResult first = probe(device);
    QCOMPARE(first.code, int(Untrusted));
    QCOMPARE(first.certificate.fingerprint.size(), 32);
    QCOMPARE(first.certificate.subject, QString("face-device"));
    QVERIFY(!first.certificate.problems.isEmpty());
    QVERIFY(first.certificate.validTo > QDateTime::currentDateTime());
    device.pinnedCertificate = first.certificate.fingerprint;
    QCOMPARE(probe(device).code, int(Success));
    device.pinnedCertificate = QByteArray(32, 'x');
    const ProbeResult changed = probe(device);
    QCOMPARE(changed.code, int(Untrusted));
    QCOMPARE(changed.certificate.fingerprint, first.certificate.fingerprint);
}

void tst_DeviceProbe::destroyedBeforeTheAnswer()
{
    SimulatedDevice sim;
    for (int i = 0; i < 50; ++i) {
        DeviceProbe prober;
        prober.start(sim.device());
    }
    QCOMPARE(probe(sim.device()).code, int(Success));
}

void tst_DeviceProbe::everyCodeHasWords()
{
    QSet<QString> texts;
    for (int code = ShuttingDown; code <= Success; ++code)
        texts.insert(responseText(code));
    QCOMPARE(texts.count(), Success - ShuttingDown + 1);
    QVERIFY(responseText(418).contains("418"));
}

QTEST_GUILESS_MAIN(tst_DeviceProbe)
#include "tst_DeviceProbe.moc"
