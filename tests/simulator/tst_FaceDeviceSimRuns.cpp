#include "DeviceHttp.h"
#include "SimulatedDevice.h"

#include <QFile>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QtTest>

namespace
{

const QByteArray faces = "/channels/1/scim/v2/Faces";

QByteArray faceLine(const QByteArray& serialNum, int channel = 1)
{
    return "{\"channel\":" + QByteArray::number(channel) +
           ",\"face\":{\"schemas\":[\"x\"],\"externalId\":\"" + serialNum + "\",\"name\":\"N\"}}\n";
}

int total(const SimulatedDevice& sim, int channel = 1)
{
    const QByteArray path = "/channels/" + QByteArray::number(channel) + "/scim/v2/Faces?count=0";
    return DeviceHttp(sim.address()).get(path).json().value("totalResults").toInt(-1);
}

/// How the program ends that is started like this, and what it says.
struct Ended {
    explicit Ended(const QStringList& options)
    {
        QProcess process;
        process.start(QStringLiteral(QARN_SIMULATOR), options);
        process.closeWriteChannel();
        if (!process.waitForFinished(10000))
            process.kill();
        process.waitForFinished();
        code = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
        output = process.readAllStandardOutput();
        errors = process.readAllStandardError();
    }

    int code = -1;
    QByteArray output;
    QByteArray errors;
};

} // namespace

/// The simulated device's faults, its file and its command line.
class tst_FaceDeviceSimRuns : public QObject
{
    Q_OBJECT
private slots:
    void refusals_data();
    void refusals();
    void faultsAreForTheirOperation();
    void faultsAreForTheirChannel();
    void everyAndAfter();
    void percentIsTheSameEachRun();
    void brokenConnections();
    void silence();
    void wrongLists();
    void latency();
    void facesOutliveAKill();
    void fileWrittenByHand();
    void tornLastLine();
    void unusableFiles_data();
    void unusableFiles();
    void fiftyThousandFaces();
    void badCommandLines_data();
    void badCommandLines();
    void help();
    void takenPort();

private:
    QString fileOf(const QByteArray& lines)
    {
        QFile file(m_directory.filePath(QString::number(++m_files)));
        if (!file.open(QIODevice::WriteOnly) || file.write(lines) != lines.size())
            qFatal("cannot write a device's faces");
        return file.fileName();
    }

    QTemporaryDir m_directory;
    int m_files = 0;
};

void tst_FaceDeviceSimRuns::refusals_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<int>("status");
    QTest::newRow("refuse") << "refuse" << 400;
    for (const int status : {302, 401, 404, 429, 503, 599})
        QTest::newRow(qPrintable(QString::number(status))) << QString::number(status) << status;
}

void tst_FaceDeviceSimRuns::refusals()
{
    QFETCH(QString, fault);
    QFETCH(int, status);
    const SimulatedDevice sim({"--fail", fault});
    const DeviceAnswer answer = DeviceHttp(sim.address()).get(faces);
    QCOMPARE(answer.status, status);
    QCOMPARE(answer.header("retry-after"), QByteArray(status == 503 ? "5" : ""));
    QCOMPARE(answer.header("location"), QByteArray(status == 302 ? "/elsewhere" : ""));
}

void tst_FaceDeviceSimRuns::faultsAreForTheirOperation()
{
    const QByteArray types = "/channels/1/scim/v2/ResourceTypes";
    const struct {
        const char* operation;
        int discover, add, list, remove;
    } rows[] = {{"discover", 500, 201, 200, 204},
                {"add", 200, 500, 200, 204},
                {"list", 200, 201, 500, 204},
                {"delete", 200, 201, 200, 500},
                {"any", 500, 500, 500, 500}};
    for (const auto& row : rows) {
        const QString file = fileOf(R"({"channel":1,"face":{"id":"known"}})");
        const SimulatedDevice sim({"--fail", QString("500,on=%1").arg(row.operation), "--data", file});
        const DeviceHttp http(sim.address());
        QCOMPARE(http.get(types).status, row.discover);
        QCOMPARE(http.post(faces, newFace("A", testPhoto())).status, row.add);
        QCOMPARE(http.get(faces).status, row.list);
        QCOMPARE(http.remove(faces + "/known").status, row.remove);
    }
}

void tst_FaceDeviceSimRuns::faultsAreForTheirChannel()
{
    const SimulatedDevice sim({"--channels", "2", "--fail", "500,channel=2"});
    QCOMPARE(DeviceHttp(sim.address()).get(faces).status, 200);
    QCOMPARE(DeviceHttp(sim.address()).get("/channels/2/scim/v2/Faces").status, 500);
}

void tst_FaceDeviceSimRuns::everyAndAfter()
{
    const SimulatedDevice sim({"--fail", "500,on=list,every=3", "--fail", "404,on=list,after=6"});
    QList<int> statuses;
    for (int i = 0; i < 9; ++i)
        statuses.append(DeviceHttp(sim.address()).get(faces).status);
    // A rule counts only what the rules before it have let pass.
    QCOMPARE(statuses, (QList<int>{200, 200, 500, 200, 200, 500, 200, 200, 500}));
    for (int i = 0; i < 2; ++i)
        QCOMPARE(DeviceHttp(sim.address()).get(faces).status, 404);
}

void tst_FaceDeviceSimRuns::percentIsTheSameEachRun()
{
    QList<int> runs[2];
    for (QList<int>& run : runs) {
        const SimulatedDevice sim({"--fail", "500,percent=50", "--seed", "7"});
        for (int i = 0; i < 40; ++i)
            run.append(DeviceHttp(sim.address()).get(faces).status);
    }
    QCOMPARE(runs[0], runs[1]);
    QVERIFY(runs[0].count(500) > 5 && runs[0].count(200) > 5);
    const SimulatedDevice never({"--fail", "500,percent=0"});
    QCOMPARE(DeviceHttp(never.address()).get(faces).status, 200);
}

void tst_FaceDeviceSimRuns::brokenConnections()
{
    const SimulatedDevice dropping({"--fail", "drop"});
    DeviceAnswer answer = DeviceHttp(dropping.address()).get(faces);
    QVERIFY(answer.closed);
    QCOMPARE(answer.status, 0);
    const SimulatedDevice half({"--fail", "half"});
    answer = DeviceHttp(half.address()).get(faces);
    QVERIFY(answer.closed);
    QVERIFY(answer.body.size() < answer.header("content-length").toInt());
    const SimulatedDevice rubbish({"--fail", "rubbish"});
    answer = DeviceHttp(rubbish.address()).get(faces);
    QCOMPARE(answer.status, 200);
    QVERIFY(QJsonDocument::fromJson(answer.body).isNull());
}

void tst_FaceDeviceSimRuns::silence()
{
    const SimulatedDevice hanging({"--fail", "hang,on=add", "--fail", "drip,on=list"});
    DeviceHttp http(hanging.address());
    http.waitMs = 300;
    DeviceAnswer answer = http.post(faces, newFace("A", testPhoto()));
    QVERIFY(!answer.closed);
    QCOMPARE(answer.status, 0);
    answer = http.get(faces);
    QVERIFY(!answer.closed);
    QCOMPARE(answer.status, 200);
    QVERIFY(answer.body.size() > 1 && answer.body.size() < 1000);
    http.waitMs = 10000;
    QCOMPARE(http.get("/channels/1/scim/v2/ResourceTypes").status, 200); // others are served meanwhile
}

void tst_FaceDeviceSimRuns::wrongLists()
{
    const QString file = fileOf(faceLine("A") + faceLine("B"));
    const SimulatedDevice promising({"--fail", "total", "--data", file});
    QJsonObject list = DeviceHttp(promising.address()).get(faces).json();
    QCOMPARE(list.value("Resources").toArray().count(), 2);
    QCOMPARE(list.value("totalResults").toInt(), 1002);
    const SimulatedDevice empty({"--fail", "empty", "--data", file});
    list = DeviceHttp(empty.address()).get(faces).json();
    QCOMPARE(list.value("Resources").toArray().count(), 0);
    QCOMPARE(list.value("totalResults").toInt(), 2);
}

void tst_FaceDeviceSimRuns::latency()
{
    const SimulatedDevice sim({"--latency-ms", "150"});
    QElapsedTimer elapsed;
    elapsed.start();
    QCOMPARE(DeviceHttp(sim.address()).get(faces).status, 200);
    QVERIFY(elapsed.elapsed() >= 150);
}

void tst_FaceDeviceSimRuns::facesOutliveAKill()
{
    const QString file = fileOf("");
    QJsonObject before;
    {
        const SimulatedDevice sim({"--data", file, "--channels", "2"});
        const DeviceHttp http(sim.address());
        QCOMPARE(http.post(faces, newFace("A", testPhoto())).status, 201);
        const DeviceAnswer gone = http.post(faces, newFace("B", testPhoto()));
        QCOMPARE(http.post(faces, newFace("C", testPhoto(3000, 2))).status, 201);
        QCOMPARE(http.post("/channels/2/scim/v2/Faces", newFace("D", testPhoto())).status, 201);
        QCOMPARE(http.remove(gone.header("location")).status, 204);
        before = http.get(faces).json();
    }
    const SimulatedDevice again({"--data", file, "--channels", "2"});
    QCOMPARE(before.value("totalResults").toInt(), 2);
    QCOMPARE(DeviceHttp(again.address()).get(faces).json(), before);
    QCOMPARE(total(again, 2), 1);
    const SimulatedDevice fewer({"--data", file}); // channel 2 is left alone
    QCOMPARE(total(fewer), 2);
}

void tst_FaceDeviceSimRuns::fileWrittenByHand()
{
    const SimulatedDevice sim({"--data", fileOf("\n" + faceLine("A") + "\n\n" + faceLine("B"))});
    const QJsonArray list = DeviceHttp(sim.address()).get(faces).json().value("Resources").toArray();
    QCOMPARE(list.count(), 2);
    QVERIFY(!list.at(0).toObject().value("id").toString().isEmpty()); // made up
}

void tst_FaceDeviceSimRuns::tornLastLine()
{
    const QString file = fileOf(faceLine("A") + faceLine("B").chopped(10));
    {
        const SimulatedDevice sim({"--data", file});
        QCOMPARE(total(sim), 1);
        QCOMPARE(DeviceHttp(sim.address()).post(faces, newFace("C", testPhoto())).status, 201);
    }
    for (int i = 0; i < 2; ++i) {
        const SimulatedDevice again({"--data", file});
        QCOMPARE(total(again), 2);
    }
}

void tst_FaceDeviceSimRuns::unusableFiles_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("no JSON") << faceLine("A") + "rubbish\n" + faceLine("B") << QByteArray("line 2");
    QTest::newRow("no channel") << QByteArray("{\"face\":{}}\n\n") << QByteArray("line 1");
    QTest::newRow("twice the same") << faceLine("A") + faceLine("A") << QByteArray("line 2");
}

void tst_FaceDeviceSimRuns::unusableFiles()
{
    QFETCH(QByteArray, lines);
    QFETCH(QByteArray, line);
    const Ended ended({"--data", fileOf(lines)});
    QCOMPARE(ended.code, 1);
    QVERIFY2(ended.errors.contains(line), ended.errors.constData());
}

void tst_FaceDeviceSimRuns::fiftyThousandFaces()
{
    constexpr int Capacity = 50000;
    QByteArray lines;
    for (int i = 1; i <= Capacity; ++i)
        lines += faceLine("S" + QByteArray::number(i));
    const SimulatedDevice sim({"--data", fileOf(lines)});
    const DeviceHttp http(sim.address());
    QCOMPARE(total(sim), Capacity);
    QCOMPARE(http.post(faces, newFace("more", testPhoto())).status, 507);
    QJsonArray page = http.get(faces + "?startIndex=49001&count=5000").json().value("Resources").toArray();
    QCOMPARE(page.count(), 1000);
    QCOMPARE(page.last().toObject().value("externalId").toString(), QString("S50000"));
    QCOMPARE(http.remove(faces + "/" + page.first().toObject().value("id").toString().toLatin1()).status,
             204);
    QCOMPARE(http.post(faces, newFace("more", testPhoto())).status, 201);
    page = http.get(faces + "?startIndex=50000&count=1").json().value("Resources").toArray();
    QCOMPARE(page.at(0).toObject().value("externalId").toString(), QString("more"));
}

void tst_FaceDeviceSimRuns::badCommandLines_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QByteArray>("named");
    const auto row = [](const QStringList& options, const QByteArray& named) {
        QTest::newRow(qPrintable(options.join(' '))) << options << named;
    };
    row({"--unknown"}, "--unknown");
    row({"--port"}, "--port");
    row({"--port", "70000"}, "--port");
    row({"--port", "12x"}, "--port");
    row({"--channels", "0"}, "--channels");
    row({"--capacity", "-1"}, "--capacity");
    row({"--name", ""}, "--name");
    row({"--tls-cert", "cert.pem"}, "--tls-key");
    for (const char* fault : {"", "explode", "200", "600", "500,on=sometimes", "500,every=0",
                              "500,percent=101", "500,channel", "500,colour=red"})
        row({"--fail", fault}, "--fail");
}

void tst_FaceDeviceSimRuns::badCommandLines()
{
    QFETCH(QStringList, options);
    QFETCH(QByteArray, named);
    const Ended ended(options);
    QCOMPARE(ended.code, 2);
    QVERIFY2(ended.errors.contains(named), ended.errors.constData());
    QVERIFY(ended.output.isEmpty());
}

void tst_FaceDeviceSimRuns::help()
{
    const Ended ended({"--help"});
    QCOMPARE(ended.code, 0);
    QVERIFY(ended.output.contains("--latency-ms"));
}

void tst_FaceDeviceSimRuns::takenPort()
{
    QTcpServer taken;
    QVERIFY(taken.listen(QHostAddress::LocalHost));
    const Ended ended({"--port", QString::number(taken.serverPort())});
    QCOMPARE(ended.code, 1);
    QVERIFY2(ended.errors.contains(QByteArray::number(taken.serverPort())), ended.errors.constData());
}

QTEST_GUILESS_MAIN(tst_FaceDeviceSimRuns)
#include "tst_FaceDeviceSimRuns.moc"
