#include "DeviceHttp.h"
#include "SimulatedDevice.h"

#include <QtTest>

namespace
{

const QByteArray base = "/channels/1/scim/v2";
const QByteArray schemaUrn = "urn:face-device:schemas:1.0:Face";

QStringList externalIds(const DeviceAnswer& answer)
{
    QStringList ids;
    const QJsonArray faces = answer.json().value("Resources").toArray();
    for (const QJsonValue& face : faces)
        ids.append(face.toObject().value("externalId").toString());
    return ids;
}

} // namespace

/// The device that all other tests of the link rely on, seen without the link.
class tst_FaceDeviceSim : public QObject
{
    Q_OBJECT
private slots:
    void tellsWhatItIs();
    void channelsAreApart();
    void unknownResources_data();
    void unknownResources();
    void tokens();
    void addedFaceComesBack();
    void refusedFaces_data();
    void refusedFaces();
    void sizesOfPhotographs();
    void serialNumbersAreUnique();
    void capacity();
    void pages_data();
    void pages();
    void smallerPagesThanAskedFor();
    void excludedAttributes_data();
    void excludedAttributes();
    void deletesOnce();

private:
    static QByteArray idOf(const DeviceAnswer& added)
    {
        return added.json().value("id").toString().toLatin1();
    }
};

void tst_FaceDeviceSim::tellsWhatItIs()
{
    const SimulatedDevice sim({"--channels", "2", "--name", "North gate"});
    const DeviceHttp http(sim.address());
    DeviceAnswer answer = http.get("/channels");
    QCOMPARE(answer.status, 200);
    QCOMPARE(answer.json().value("name").toString(), QString("North gate"));
    const QJsonArray channels = answer.json().value("channels").toArray();
    QCOMPARE(channels.count(), 2);
    QCOMPARE(channels.at(1).toObject().value("number").toInt(), 2);
    QCOMPARE(channels.at(1).toObject().value("abilities").toArray(), QJsonArray{"faceList"});

    answer = http.get(base + "/ResourceTypes");
    QCOMPARE(answer.header("content-type"), QByteArray("application/scim+json"));
    const QJsonObject type = answer.json().value("Resources").toArray().at(0).toObject();
    QCOMPARE(type.value("endpoint").toString(), QString("/Faces"));
    QCOMPARE(type.value("schema").toString().toLatin1(), schemaUrn);

    QStringList names;
    const QJsonObject schema =
        http.get(base + "/Schemas").json().value("Resources").toArray().at(0).toObject();
    const QJsonArray attributes = schema.value("attributes").toArray();
    for (const QJsonValue& attribute : attributes)
        names.append(attribute.toObject().value("name").toString());
    QCOMPARE(names,
             (QStringList{"name", "organization", "sex", "listType", "validFrom", "validTo", "photo"}));
    QCOMPARE(http.get(base + "/Schemas/" + schemaUrn).json(), schema);

    const QJsonObject config = http.get(base + "/ServiceProviderConfig").json();
    QCOMPARE(config.value("bulk").toObject().value("supported").toBool(true), false);
}

void tst_FaceDeviceSim::channelsAreApart()
{
    const SimulatedDevice sim({"--channels", "2"});
    const DeviceHttp http(sim.address());
    const DeviceAnswer added = http.post("/channels/2/scim/v2/Faces", newFace("A", testPhoto()));
    QCOMPARE(added.status, 201);
    QCOMPARE(externalIds(http.get("/channels/2/scim/v2/Faces")), QStringList{"A"});
    QCOMPARE(http.get(base + "/Faces").json().value("totalResults").toInt(-1), 0);
    QCOMPARE(http.get(base + "/Faces/" + idOf(added)).status, 404);
    QCOMPARE(http.remove(base + "/Faces/" + idOf(added)).status, 404);
    QCOMPARE(http.post(base + "/Faces", newFace("A", testPhoto())).status, 201); // unique in its channel only
}

void tst_FaceDeviceSim::unknownResources_data()
{
    QTest::addColumn<QByteArray>("method");
    QTest::addColumn<QByteArray>("path");
    QTest::newRow("root") << QByteArray("GET") << QByteArray("/");
    QTest::newRow("channel") << QByteArray("GET") << QByteArray("/channels/2/scim/v2/Faces");
    QTest::newRow("channel 0") << QByteArray("GET") << QByteArray("/channels/0/scim/v2/Faces");
    QTest::newRow("channel beyond numbers")
        << QByteArray("GET") << QByteArray("/channels/9999999/scim/v2/Faces");
    QTest::newRow("resource") << QByteArray("GET") << base + "/Users";
    QTest::newRow("face") << QByteArray("GET") << base + "/Faces/nobody";
    QTest::newRow("schema") << QByteArray("GET") << base + "/Schemas/urn:other";
    QTest::newRow("all faces") << QByteArray("DELETE") << base + "/Faces";
    QTest::newRow("change") << QByteArray("PUT") << base + "/Faces/nobody";
}

void tst_FaceDeviceSim::unknownResources()
{
    QFETCH(QByteArray, method);
    QFETCH(QByteArray, path);
    const SimulatedDevice sim;
    const DeviceAnswer answer = DeviceHttp(sim.address()).ask(method, path, method == "PUT" ? "{}" : "");
    QCOMPARE(answer.status, 404);
    QCOMPARE(answer.header("content-type"), QByteArray("application/scim+json"));
    QCOMPARE(answer.json().value("schemas").toArray(),
             QJsonArray{"urn:ietf:params:scim:api:messages:2.0:Error"});
    QCOMPARE(answer.json().value("status").toString(), QString("404"));
}

void tst_FaceDeviceSim::tokens()
{
    const SimulatedDevice sim({"--token", "secret"});
    for (const QByteArray& path : {QByteArray("/channels"), base + "/ResourceTypes", base + "/Faces"}) {
        QCOMPARE(DeviceHttp(sim.address(), "secret").get(path).status, 200);
        const DeviceAnswer refused = DeviceHttp(sim.address()).get(path);
        QCOMPARE(refused.status, 401);
        QCOMPARE(refused.header("www-authenticate"), QByteArray("Bearer"));
        for (const char* wrong : {"other", "Secret", "secret2"})
            QCOMPARE(DeviceHttp(sim.address(), wrong).get(path).status, 401);
    }
    QCOMPARE(DeviceHttp(sim.address()).post(base + "/Faces", newFace("A", testPhoto())).status, 401);
    QVERIFY(externalIds(DeviceHttp(sim.address(), "secret").get(base + "/Faces")).isEmpty());
}

void tst_FaceDeviceSim::addedFaceComesBack()
{
    const SimulatedDevice sim;
    const DeviceHttp http(sim.address());
    const QByteArray photo = testPhoto(60000);
    const QJsonObject attributes{{"name", QString::fromUtf8("Größe")},
                                 {"organization", QJsonArray{"Root", "Gate"}},
                                 {"sex", 2},
                                 {"listType", "general"},
                                 {"validFrom", "2024-07-01T06:00:00Z"},
                                 {"validTo", "2034-01-01T00:00:00Z"}};
    QJsonObject sent = attributes;
    sent.insert("unknown", "left out");
    const DeviceAnswer added = http.post(base + "/Faces", newFace("A1", photo, sent));
    QCOMPARE(added.status, 201);
    QVERIFY(!idOf(added).isEmpty());
    QCOMPARE(added.header("location"), base + "/Faces/" + idOf(added));
    QVERIFY(!added.json().contains("photo"));

    const DeviceAnswer read = http.get(added.header("location"));
    QCOMPARE(read.status, 200);
    const QJsonObject face = read.json();
    for (auto value = attributes.begin(); value != attributes.end(); ++value)
        QCOMPARE(face.value(value.key()), *value);
    QCOMPARE(face.value("externalId").toString(), QString("A1"));
    QCOMPARE(face.value("photo").toString().toLatin1(), photo.toBase64());
    QVERIFY(!face.contains("unknown"));
    QCOMPARE(http.get(base + "/Faces").json().value("Resources").toArray(), QJsonArray{face});
}

void tst_FaceDeviceSim::refusedFaces_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("scimType");
    const auto row = [](const char* name, const QByteArray& body, const char* scimType = "invalidValue") {
        QTest::newRow(name) << body << QString(scimType);
    };
    const auto attribute = [&row](const char* name, const char* key, const QJsonValue& value) {
        row(name, newFace("A", testPhoto(), {{key, value}}));
    };
    row("no JSON", "{", "invalidSyntax");
    row("a list", "[]");
    row("empty", "{}");
    attribute("no schema", "schemas", QJsonValue());
    attribute("other schema", "schemas", QJsonArray{"urn:other"});
    attribute("number as serial number", "externalId", 5);
    attribute("number as name", "name", 5);
    attribute("organization that is no list", "organization", "Root");
    attribute("organization of numbers", "organization", QJsonArray{1});
    attribute("text as sex", "sex", "2");
    attribute("broken sex", "sex", 1.5);
    attribute("number as time", "validFrom", 5);
    attribute("no photograph", "photo", QJsonValue());
    attribute("empty photograph", "photo", "");
    attribute("no Base64", "photo", "no Base64!!!");
    attribute("padding missing", "photo", QString::fromLatin1(testPhoto().toBase64()).chopped(1));
    row("no JPEG", newFace("A", "GIF89a and some more"));
    row("torn JPEG", newFace("A", testPhoto().chopped(10)));
    row("JPEG without a picture", newFace("A", QByteArray::fromHex("ffd8ffd9")));
}

void tst_FaceDeviceSim::refusedFaces()
{
    QFETCH(QByteArray, body);
    const SimulatedDevice sim;
    const DeviceHttp http(sim.address());
    const DeviceAnswer answer = http.post(base + "/Faces", body);
    QCOMPARE(answer.status, 400);
    QTEST(answer.scimType(), "scimType");
    QVERIFY(!answer.json().value("detail").toString().isEmpty());
    QCOMPARE(http.get(base + "/Faces").json().value("totalResults").toInt(-1), 0);
}

void tst_FaceDeviceSim::sizesOfPhotographs()
{
    constexpr int Most = 2 * 1024 * 1024;
    const SimulatedDevice sim;
    const DeviceHttp http(sim.address());
    QCOMPARE(http.post(base + "/Faces", newFace("A", testPhoto(Most))).status, 201);
    QCOMPARE(http.post(base + "/Faces", newFace("B", testPhoto(Most + 100))).status, 413);
    QCOMPARE(http.post(base + "/Faces", newFace("C", testPhoto(2 * Most))).status, 413); // not even read
    QCOMPARE(externalIds(http.get(base + "/Faces?excludedAttributes=photo")), QStringList{"A"});
}

void tst_FaceDeviceSim::serialNumbersAreUnique()
{
    const SimulatedDevice sim;
    const DeviceHttp http(sim.address());
    const DeviceAnswer first = http.post(base + "/Faces", newFace("A", testPhoto()));
    QCOMPARE(first.status, 201);
    const DeviceAnswer second = http.post(base + "/Faces", newFace("A", testPhoto(3000, 2)));
    QCOMPARE(second.status, 409);
    QCOMPARE(second.scimType(), QString("uniqueness"));
    QCOMPARE(http.remove(first.header("location")).status, 204);
    QCOMPARE(http.post(base + "/Faces", newFace("A", testPhoto(3000, 2))).status, 201);
    for (int i = 0; i < 2; ++i)
        QCOMPARE(http.post(base + "/Faces", newFace("", testPhoto())).status, 201); // none is no number
}

void tst_FaceDeviceSim::capacity()
{
    const SimulatedDevice sim({"--capacity", "2", "--channels", "2"});
    const DeviceHttp http(sim.address());
    const DeviceAnswer first = http.post(base + "/Faces", newFace("A", testPhoto()));
    QCOMPARE(http.post(base + "/Faces", newFace("B", testPhoto())).status, 201);
    QCOMPARE(http.post(base + "/Faces", newFace("C", testPhoto())).status, 507);
    QCOMPARE(http.post(base + "/Faces", newFace("B", testPhoto())).status, 409);
    QCOMPARE(http.post("/channels/2/scim/v2/Faces", newFace("C", testPhoto())).status, 201);
    QCOMPARE(http.remove(first.header("location")).status, 204);
    QCOMPARE(http.post(base + "/Faces", newFace("C", testPhoto())).status, 201);
    QCOMPARE(externalIds(http.get(base + "/Faces")), (QStringList{"B", "C"}));
}

void tst_FaceDeviceSim::pages_data()
{
    QTest::addColumn<QByteArray>("query");
    QTest::addColumn<QStringList>("ids");
    QTest::addColumn<int>("start");
    const auto row = [](const QByteArray& query, const QStringList& ids, int start) {
        QTest::newRow(query.constData()) << query << ids << start;
    };
    row("", {"A", "B", "C", "D", "E"}, 1);
    row("?startIndex=1&count=2", {"A", "B"}, 1);
    row("?startIndex=3&count=2", {"C", "D"}, 3);
    row("?startIndex=5&count=2", {"E"}, 5);
    row("?startIndex=6&count=2", {}, 6);
    row("?startIndex=1000000000000", {}, 0);
    row("?startIndex=0&count=1", {"A"}, 1);
    row("?startIndex=-3&count=1", {"A"}, 1);
    row("?count=0", {}, 1);
    row("?count=-1", {}, 1);
    row("?startIndex=two&count=many", {"A", "B", "C", "D", "E"}, 1);
}

void tst_FaceDeviceSim::pages()
{
    QFETCH(QByteArray, query);
    QFETCH(QStringList, ids);
    QFETCH(int, start);
    const SimulatedDevice sim;
    const DeviceHttp http(sim.address());
    for (const char* id : {"A", "B", "C", "D", "E"})
        QCOMPARE(http.post(base + "/Faces", newFace(id, testPhoto())).status, 201);
    const DeviceAnswer answer = http.get(base + "/Faces" + query);
    QCOMPARE(answer.status, 200);
    QCOMPARE(externalIds(answer), ids);
    QCOMPARE(answer.json().value("totalResults").toInt(), 5);
    QCOMPARE(answer.json().value("itemsPerPage").toInt(), ids.count());
    if (start > 0)
        QCOMPARE(answer.json().value("startIndex").toInt(), start);
}

void tst_FaceDeviceSim::smallerPagesThanAskedFor()
{
    const SimulatedDevice sim({"--page-limit", "2"});
    const DeviceHttp http(sim.address());
    for (const char* id : {"A", "B", "C"})
        QCOMPARE(http.post(base + "/Faces", newFace(id, testPhoto())).status, 201);
    QCOMPARE(externalIds(http.get(base + "/Faces?count=32")), (QStringList{"A", "B"}));
    QCOMPARE(externalIds(http.get(base + "/Faces")), (QStringList{"A", "B"}));
    QCOMPARE(externalIds(http.get(base + "/Faces?startIndex=3&count=32")), QStringList{"C"});
}

void tst_FaceDeviceSim::excludedAttributes_data()
{
    QTest::addColumn<QByteArray>("excluded");
    QTest::addColumn<QStringList>("left");
    const auto row = [](const QByteArray& excluded, const QStringList& left) {
        QTest::newRow(excluded.constData()) << excluded << left;
    };
    row("", {"externalId", "id", "meta", "name", "photo", "schemas"});
    row("photo", {"externalId", "id", "meta", "name", "schemas"});
    row("urn:face-device:schemas:1.0:Face:photo", {"externalId", "id", "meta", "name", "schemas"});
    row("photo,name,meta", {"externalId", "id", "schemas"});
    row("id,schemas,photo", {"externalId", "id", "meta", "name", "schemas"}); // always returned
    row("nothing", {"externalId", "id", "meta", "name", "photo", "schemas"});
}

void tst_FaceDeviceSim::excludedAttributes()
{
    QFETCH(QByteArray, excluded);
    QFETCH(QStringList, left);
    const SimulatedDevice sim;
    const DeviceHttp http(sim.address());
    const DeviceAnswer added = http.post(base + "/Faces", newFace("A", testPhoto(), {{"name", "Ann"}}));
    const QByteArray query = "?excludedAttributes=" + excluded;
    QCOMPARE(http.get(added.header("location") + query).json().keys(), left);
    const QJsonObject list = http.get(base + "/Faces" + query).json();
    QCOMPARE(list.value("Resources").toArray().at(0).toObject().keys(), left);
}

void tst_FaceDeviceSim::deletesOnce()
{
    const SimulatedDevice sim;
    const DeviceHttp http(sim.address());
    const DeviceAnswer added = http.post(base + "/Faces", newFace("A", testPhoto()));
    QCOMPARE(http.post(base + "/Faces", newFace("B", testPhoto())).status, 201);
    const DeviceAnswer deleted = http.remove(added.header("location"));
    QCOMPARE(deleted.status, 204);
    QVERIFY(deleted.body.isEmpty());
    QCOMPARE(http.remove(added.header("location")).status, 404);
    QCOMPARE(http.get(added.header("location")).status, 404);
    QCOMPARE(externalIds(http.get(base + "/Faces")), QStringList{"B"});
}

QTEST_GUILESS_MAIN(tst_FaceDeviceSim)
#include "tst_FaceDeviceSim.moc"
