#include "LinkListener.h"
#include "ScriptedServer.h"
#include "SimulatedDevice.h"
#include "TestCertificate.h"
#include "TestStore.h"

#include <dvx_client_sdk/ResponseCodes.h>

#include <QFile>
#include <QSslCertificate>
#include <QSslSocket>

#include <memory>

using namespace dvx_sdk;
using qarn_data::Device;
using qarn_data::DeviceRegistry;

namespace
{

qint64 peakMemoryKb()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').first().toLongLong();
    }
    return 0;
}

QByteArray chunk(const QByteArray& text)
{
    return QByteArray::number(text.size(), 16) + ";extension=1\r\n" + text + "\r\n";
}

} // namespace

/// Two requests that get no answer, asked when this is made, and when each was given up.
class SilentDevices : public QObject
{
public:
    SilentDevices() : m_hanging({"--fail", "hang"}), m_dripping({"--fail", "drip,on=delete"})
    {
        m_hanging.addToRegistry();
        m_dripping.addToRegistry();
        const auto note = [this](const Response& response) {
            if (response.requestId == link.id)
                endsMs.append(m_elapsed.elapsed());
        };
        connect(&ClientSignals::instance(), &ClientSignals::signalGetFacesRes, this, note);
        connect(&ClientSignals::instance(), &ClientSignals::signalDelFaceRes, this, note);
        m_elapsed.start();
        link.askList(m_hanging.id(), 1);
        del_face_req({link.id, m_dripping.id(), 1, 5});
    }

    QString hangingId() const { return m_hanging.id(); }

    LinkListener link;
    QList<qint64> endsMs;

private:
    SimulatedDevice m_hanging;
    SimulatedDevice m_dripping; ///< bytes come all the time, but no answer
    QElapsedTimer m_elapsed;
};

/// Whatever a device does, each request has one answer, in time, and the next one works.
class tst_FaceRequestFaults : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { m_silent = std::make_unique<SilentDevices>(); }
    void everyFaultHasOneAnswer_data();
    void everyFaultHasOneAnswer();
    void unknownDeviceAndChannel();
    void refusedConnection();
    void wrongToken();
    void addressOrTokenThatCannotBeSent();
    void fullChannelAndBadPhotographs();
    void hugeAnswerTakesNoMemory();
    void strangeAnswers_data();
    void strangeAnswers();
    void totalsThatMove();
    void otherServersAreUnderstood();
    void busyDeviceIsNotAskedAgain();
    void closedConnectionIsReplaced();
    void slowDeviceDelaysNobody();
    void manyRequestsAtOnce();
    void restartedDeviceIsFoundAgain();
    void certificates();
    void tlsWhereThereIsNone();
    void silentDeviceTimesOut();

    void cleanupTestCase() { m_silent.reset(); }

private:
    TestStore m_store;
    std::unique_ptr<SilentDevices> m_silent; ///< wait while the other tests run
};

void tst_FaceRequestFaults::everyFaultHasOneAnswer_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<int>("list");
    QTest::addColumn<int>("add");
    QTest::addColumn<int>("del");
    const auto all = [](const char* fault, int code) {
        QTest::newRow(fault) << fault << code << code << code;
    };
    for (const int status : {302, 400, 401, 403, 404, 409, 413, 429, 500, 503, 507})
        all(qPrintable(QString::number(status)), status);
    all("drop", ConnectionLost);
    all("half", ConnectionLost);
    all("rubbish", BadAnswer);
    all("huge", BadAnswer);
    QTest::newRow("total") << "total" << int(BadAnswer) << 0 << 0;
    QTest::newRow("empty") << "empty" << int(BadAnswer) << 0 << 0;
}

void tst_FaceRequestFaults::everyFaultHasOneAnswer()
{
    QFETCH(QString, fault);
    QFETCH(int, list);
    QFETCH(int, add);
    QFETCH(int, del);
    SimulatedDevice sim({"--fail", fault + ",on=list,after=1", "--fail", fault + ",on=add,after=1", "--fail",
                         fault + ",on=delete"});
    sim.addToRegistry();
    LinkListener link;
    QCOMPARE(link.add(sim.id(), 1, "first", testPhoto()), int(Success));
    const LinkListener::Page page = link.list(sim.id(), 1);
    QCOMPARE(page.code, int(Success));
    const int faceId = page.faces.first().faceId;
    QCOMPARE(link.list(sim.id(), 1).code, list);
    QCOMPARE(link.add(sim.id(), 1, "second", testPhoto(80000)), add);
    QCOMPARE(link.del(sim.id(), 1, faceId), del);
    QTest::qWait(50);
    QCOMPARE(link.pages.count(), 2);
    QCOMPARE(link.adds.count(), 2);
    QCOMPARE(link.deletes.count(), 1);
    QVERIFY(link.pages.last().faces.isEmpty());
}

void tst_FaceRequestFaults::unknownDeviceAndChannel()
{
    SimulatedDevice sim;
    sim.addToRegistry();
    LinkListener link;
    QCOMPARE(link.list("nobody", 1).code, int(UnknownDevice));
    QCOMPARE(link.add("nobody", 1, "A", testPhoto()), int(UnknownDevice));
    QCOMPARE(link.del("nobody", 1, 5), int(UnknownDevice));
    QCOMPARE(link.list(sim.id(), 2).code, int(UnknownChannel));
    QCOMPARE(link.list(sim.id(), -1).code, int(UnknownChannel));
    QCOMPARE(link.del(sim.id(), 1, FaceInfo().faceId), int(UnknownFace));
    QCOMPARE(link.del(sim.id(), 1, 12345), 404);
}

void tst_FaceRequestFaults::refusedConnection()
{
    SimulatedDevice sim;
    sim.addToRegistry();
    sim.stop();
    LinkListener link;
    QCOMPARE(link.list(sim.id(), 1).code, int(NoRoute));
    QTRY_COMPARE(DeviceRegistry::instance().reachability(sim.id()), DeviceRegistry::Reachability::Offline);
}

void tst_FaceRequestFaults::wrongToken()
{
    SimulatedDevice sim({"--token", "right"});
    Device device = sim.device();
    device.token = "wrong";
    DeviceRegistry::instance().saveDevice(device);
    LinkListener link;
    QCOMPARE(link.list(sim.id(), 1).code, 401);
    QTRY_COMPARE(DeviceRegistry::instance().reachability(sim.id()), DeviceRegistry::Reachability::Online);
    device.token = "right";
    DeviceRegistry::instance().saveDevice(device);
    QCOMPARE(link.list(sim.id(), 1).code, int(Success));
}

void tst_FaceRequestFaults::addressOrTokenThatCannotBeSent()
{
    SimulatedDevice sim;
    Device device = sim.device();
    LinkListener link;
    device.token = "two\r\nX-Injected: lines";
    DeviceRegistry::instance().saveDevice(device);
    QCOMPARE(link.list(sim.id(), 1).code, int(BadSettings));
    device.token.clear();
    for (const char* address : {"", "ftp://127.0.0.1", "http://", "just text"}) {
        device.address = QUrl(QString(address));
        DeviceRegistry::instance().saveDevice(device);
        QCOMPARE(link.list(sim.id(), 1).code, int(BadSettings));
    }
}

void tst_FaceRequestFaults::fullChannelAndBadPhotographs()
{
    SimulatedDevice sim({"--capacity", "1"});
    sim.addToRegistry();
    LinkListener link;
    QCOMPARE(link.add(sim.id(), 1, "A", "no JPEG at all"), 400);
    QCOMPARE(link.add(sim.id(), 1, "A", QByteArray()), 400);
    QCOMPARE(link.add(sim.id(), 1, "A", testPhoto(2 * 1024 * 1024 + 1000)), 413);
    // The device answers before it has taken all of this, and closes: the answer may be lost on the way.
    const int tooLarge = link.add(sim.id(), 1, "A", testPhoto(8 * 1024 * 1024));
    QVERIFY2(tooLarge == 413 || tooLarge == ConnectionLost, qPrintable(QString::number(tooLarge)));
    QCOMPARE(link.add(sim.id(), 1, "A", testPhoto(2 * 1024 * 1024 - 1000)), int(Success));
    QCOMPARE(link.add(sim.id(), 1, "B", testPhoto()), 507);
    QCOMPARE(link.list(sim.id(), 1, 1, 1, true).faces.count(), 1);
}

void tst_FaceRequestFaults::hugeAnswerTakesNoMemory()
{
    LinkListener link;
    ScriptedServer endlessHead([](const QByteArray&) {
        return "HTTP/1.1 200 OK\r\nX-Endless: " + QByteArray(64 * 1024 * 1024, 'x');
    });
    ScriptedServer untilClose([](const QByteArray& request) {
        return request.contains("/ResourceTypes")
                   ? ScriptedServer::resourceTypes()
                   : "HTTP/1.1 200 OK\r\n\r\n" + QByteArray(64 * 1024 * 1024, ' ');
    });
    SimulatedDevice sim({"--fail", "huge,on=list"});
    sim.addToRegistry();
    QCOMPARE(link.list(endlessHead.id(), 1).code, int(BadAnswer));
    QCOMPARE(link.list(untilClose.id(), 1).code, int(BadAnswer));
    const qint64 before = peakMemoryKb();
    for (int i = 0; i < 5; ++i)
        QCOMPARE(link.list(sim.id(), 1, 1, 1, true).code, int(BadAnswer));
    QVERIFY2(peakMemoryKb() - before < 32 * 1024, "an answer of 4 GB was taken in");
}

void tst_FaceRequestFaults::strangeAnswers_data()
{
    QTest::addColumn<QByteArray>("answer");
    const auto list = [](const char* name, const QByteArray& body) {
        QTest::newRow(name) << ScriptedServer::json(body);
    };
    list("nothing", "");
    list("an array", "[]");
    list("no total", "{\"Resources\":[]}");
    list("negative total", "{\"totalResults\":-1}");
    list("total as a text", "{\"totalResults\":\"5\"}");
    list("more faces than any device has", "{\"totalResults\":4000000000,\"Resources\":[{\"id\":\"1\"}]}");
    list("a total beyond all numbers", "{\"totalResults\":1e300,\"Resources\":[{\"id\":\"1\"}]}");
    list("another page", "{\"totalResults\":9,\"startIndex\":5,\"Resources\":[{\"id\":\"1\"}]}");
    list("face without id", "{\"totalResults\":1,\"Resources\":[{\"externalId\":\"A\"}]}");
    list("face that is a number", "{\"totalResults\":1,\"Resources\":[1]}");
    list("very long id", "{\"totalResults\":1,\"Resources\":[{\"id\":\"" + QByteArray(5000, 'x') + "\"}]}");
    list("deep nesting", QByteArray(100000, '['));
    list("torn text", "{\"totalResults\":1,\"Resources\":[{\"id\":\"1");
    QTest::newRow("no HTTP") << QByteArray("SSH-2.0-OpenSSH_9.2\r\n");
    QTest::newRow("binary") << QByteArray(100, '\0') + "\n";
    QTest::newRow("two lengths") << QByteArray(
        "HTTP/1.1 200 OK\r\nContent-Length: 2\r\nContent-Length: 3\r\n\r\n{}");
    QTest::newRow("negative length") << QByteArray("HTTP/1.1 200 OK\r\nContent-Length: -2\r\n\r\n{}");
    QTest::newRow("compressed") << QByteArray(
        "HTTP/1.1 200 OK\r\nContent-Encoding: gzip\r\nContent-Length: 2\r\n\r\n{}");
    QTest::newRow("chunk of the wrong length")
        << QByteArray("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n1\r\n{}\r\n0\r\n\r\n");
    QTest::newRow("no content") << QByteArray("HTTP/1.1 204 No Content\r\n\r\n");
}

void tst_FaceRequestFaults::strangeAnswers()
{
    QFETCH(QByteArray, answer);
    ScriptedServer server([&](const QByteArray& request) {
        return request.contains("/ResourceTypes") ? ScriptedServer::resourceTypes() : answer;
    });
    LinkListener link;
    QCOMPARE(link.list(server.id(), 1).code, int(BadAnswer));
}

void tst_FaceRequestFaults::totalsThatMove()
{
    int total = 4;
    ScriptedServer server([&](const QByteArray& request) {
        if (request.contains("/ResourceTypes"))
            return ScriptedServer::resourceTypes();
        --total; // somebody deletes faces meanwhile; one face an answer
        return ScriptedServer::json("{\"totalResults\":" + QByteArray::number(total) +
                                    ",\"Resources\":[{\"id\":\"f" + QByteArray::number(total) + "\"}]}");
    });
    LinkListener link;
    const LinkListener::Page page = link.list(server.id(), 1);
    QCOMPARE(page.code, int(Success));
    QCOMPARE(page.faces.count(), 2);
    QCOMPARE(page.total, 2u);
}

void tst_FaceRequestFaults::otherServersAreUnderstood()
{
    QByteArray posted;
    ScriptedServer server([&](const QByteArray& request) -> QByteArray {
        if (request.contains("/ResourceTypes")) // no list, one object, chunked
            return "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n" + chunk("{\"Na") +
                   chunk("me\":\"face\",\"Endpoint\":\"/v1/Persons\",\"schema\":\"urn:other:Face:9\"}") +
                   "0\r\nTrailer: x\r\n\r\n";
        if (request.contains("/Schemas"))
            return ScriptedServer::json("[{\"id\":\"URN:other:face:9\",\"attributes\":[{\"name\":\"Name\"},"
                                        "{\"name\":\"photo\"}]}]");
        if (request.startsWith("POST")) {
            posted = request.mid(request.indexOf("\r\n\r\n") + 4);
            return "HTTP/1.1 100 Continue\r\n\r\nHTTP/1.1 201 Created\r\nContent-Length: 0\r\n\r\n";
        }
        if (request.startsWith("DELETE"))
            return "HTTP/1.0 204 \r\n\r\n";
        return ScriptedServer::json(
            "{\"TOTALRESULTS\":3,\"resources\":[{\"ID\":7,\"name\":{\"formatted\":\"Ann\"},\"sex\":"
            "\"female\"},"
            "{\"id\":\"a/b "
            "c?\",\"externalId\":\"B\"},{\"id\":\"x\",\"photo\":\"-_-_\",\"validTo\":\"nonsense\"}]}");
    });
    LinkListener link;
    const LinkListener::Page page = link.list(server.id(), 1, 1, 3, true);
    QCOMPARE(page.code, int(Success));
    QCOMPARE(page.faces.count(), 3);
    QCOMPARE(page.faces.at(0).faceId, 7);
    QCOMPARE(page.faces.at(0).name, QString("Ann"));
    QCOMPARE(page.faces.at(0).sex, 2);
    QCOMPARE(page.faces.at(2).faceImages, QList<QByteArray>{"+/+/"});
    QVERIFY(!page.faces.at(2).validEndTime.isValid());
    QCOMPARE(link.add(server.id(), 1, "N", testPhoto()), int(Success));
    QVERIFY(posted.contains("urn:other:Face:9"));
    QVERIFY(!posted.contains("organization")); // the server's schema has none
    QCOMPARE(link.del(server.id(), 1, page.faces.at(1).faceId), int(Success));
    QCOMPARE(server.requests().last(),
             QByteArray("DELETE /base/channels/1/scim/v2/v1/Persons/a%2Fb%20c%3F HTTP/1.1"));
}

void tst_FaceRequestFaults::busyDeviceIsNotAskedAgain()
{
    ScriptedServer server([](const QByteArray& request) -> QByteArray {
        return request.contains("/ResourceTypes")
                   ? ScriptedServer::resourceTypes()
                   : "HTTP/1.1 503 Busy\r\nRetry-After: 0\r\nContent-Length: 0\r\n\r\n";
    });
    LinkListener link;
    QCOMPARE(link.list(server.id(), 1).code, 503);
    QTest::qWait(200);
    QCOMPARE(server.requests().count(), 2);
}

void tst_FaceRequestFaults::closedConnectionIsReplaced()
{
    ScriptedServer server([](const QByteArray& request) {
        return request.contains("/ResourceTypes") ? ScriptedServer::resourceTypes()
                                                  : ScriptedServer::json("{\"totalResults\":0}");
    });
    server.closesAfterAnswer = true; // without saying so
    LinkListener link;
    for (int i = 0; i < 20; ++i)
        QCOMPARE(link.list(server.id(), 1).code, int(Success));
}

void tst_FaceRequestFaults::slowDeviceDelaysNobody()
{
    SimulatedDevice slow({"--latency-ms", "1000"});
    SimulatedDevice quick;
    slow.addToRegistry();
    quick.addToRegistry();
    LinkListener waiting;
    LinkListener link;
    constexpr int Requests = 6; // more than a device has connections
    for (int i = 0; i < Requests; ++i)
        waiting.askList(slow.id(), 1);
    for (int i = 0; i < 20; ++i)
        QCOMPARE(link.list(quick.id(), 1).code, int(Success));
    QVERIFY(waiting.pages.isEmpty()); // the first takes two seconds: two answers
    QTRY_COMPARE_WITH_TIMEOUT(waiting.pages.count(), Requests, 15000);
}

void tst_FaceRequestFaults::manyRequestsAtOnce()
{
    SimulatedDevice sim({"--channels", "4"});
    sim.addToRegistry();
    LinkListener link;
    for (int i = 0; i < 200; ++i)
        link.askAdd(sim.id(), i % 4 + 1, QString::number(i), testPhoto());
    QTRY_COMPARE_WITH_TIMEOUT(link.adds.count(), 200, 20000);
    QCOMPARE(link.adds.count(Success), 200);
    QCOMPARE(link.list(sim.id(), 3).total, 50u);
}

void tst_FaceRequestFaults::restartedDeviceIsFoundAgain()
{
    LinkListener link;
    auto sim = std::make_unique<SimulatedDevice>();
    sim->addToRegistry();
    const Device first = sim->device();
    QCOMPARE(link.list(first.id, 1).code, int(Success));
    sim = std::make_unique<SimulatedDevice>(
        QStringList{"--port", QString::number(first.address.port()), "--schema-urn", "urn:new:Face"});
    QCOMPARE(link.list(first.id, 1).code, int(Success));
    const int add = link.add(first.id, 1, "A", testPhoto());
    QVERIFY(add == Success || add == 400); // the schema is read again after a refusal
    QCOMPARE(link.add(first.id, 1, "B", testPhoto()), int(Success));
}

void tst_FaceRequestFaults::certificates()
{
    TestCertificate certificate;
    SimulatedDevice sim(certificate.options());
    QCOMPARE(sim.address().scheme(), QString("https"));
    Device device = sim.device();
    DeviceRegistry::instance().saveDevice(device);
    LinkListener link;
    QCOMPARE(link.list(sim.id(), 1).code, int(Untrusted));

    QFile file(certificate.options().at(1));
    QVERIFY(file.open(QIODevice::ReadOnly));
    device.pinnedCertificate = QSslCertificate(file.readAll()).digest(QCryptographicHash::Sha256);
    DeviceRegistry::instance().saveDevice(device);
    QCOMPARE(link.list(sim.id(), 1).code, int(Success));
    const QByteArray photo = testPhoto(2000000); // many times what is read at once
    QCOMPARE(link.add(sim.id(), 1, "A", photo), int(Success));
    QCOMPARE(link.list(sim.id(), 1, 1, 1, true).faces.value(0).faceImages.value(0), photo.toBase64());

    device.pinnedCertificate[0] = char(~device.pinnedCertificate[0]);
    DeviceRegistry::instance().saveDevice(device);
    QCOMPARE(link.list(sim.id(), 1).code, int(Untrusted));
}

void tst_FaceRequestFaults::tlsWhereThereIsNone()
{
    SimulatedDevice sim;
    Device device = sim.device();
    device.address.setScheme("https");
    DeviceRegistry::instance().saveDevice(device);
    LinkListener link;
    QCOMPARE(link.list(sim.id(), 1).code, int(TlsFailed));
}

void tst_FaceRequestFaults::silentDeviceTimesOut()
{
    QTRY_COMPARE_WITH_TIMEOUT(m_silent->endsMs.count(), 2, 15000);
    for (const qint64 ms : qAsConst(m_silent->endsMs))
        QVERIFY2(ms >= 9000 && ms < 13000, qPrintable(QString::number(ms)));
    QCOMPARE(m_silent->link.pages.value(0).code, int(TimedOut));
    QCOMPARE(m_silent->link.deletes, QList<int>{TimedOut});
    QTRY_COMPARE(DeviceRegistry::instance().reachability(m_silent->hangingId()),
                 DeviceRegistry::Reachability::Offline);
}

QTEST_GUILESS_MAIN(tst_FaceRequestFaults)
#include "tst_FaceRequestFaults.moc"
