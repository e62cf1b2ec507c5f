#include "FaceService.h"

#include <QJsonObject>
#include <QJsonValue>
#include <QtTest>

using namespace dvx_sdk;

/// What a channel tells about its face list, as different servers tell it.
class tst_FaceService : public QObject
{
    Q_OBJECT
private slots:
    void resourceTypes_data();
    void resourceTypes();
    void unusableResourceTypes_data();
    void unusableResourceTypes();
    void schemas_data();
    void schemas();
    void attributesThatAreTaken();
    void valuesWithoutRegardToCase();
};

void tst_FaceService::resourceTypes_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QByteArray>("endpoint");
    const QByteArray face = R"({"name":"Face","endpoint":"/Faces","schema":"urn:x"})";
    const QByteArray user = R"({"name":"User","endpoint":"/Users","schema":"urn:y"})";
    const auto row = [](const char* name, const QByteArray& body, const QByteArray& endpoint = "/Faces") {
        QTest::newRow(name) << body << endpoint;
    };
    row("list", "{\"Resources\":[" + face + "]}");
    row("among others", "{\"Resources\":[" + user + "," + face + "]}");
    row("array", "[" + user + "," + face + "]");
    row("one object", face);
    row("other case", R"({"RESOURCES":[{"Name":"fACE","EndPoint":"/Faces","Schema":"urn:x"}]})");
    row("named by its id", R"({"Resources":[{"id":"Face","endpoint":"/Faces","schema":"urn:x"}]})");
    row("deep", R"({"Resources":[{"name":"Face","endpoint":"/v1/all/Faces","schema":"urn:x"}]})",
        "/v1/all/Faces");
    row("a bad one first", "[{\"name\":\"Face\",\"endpoint\":\"\",\"schema\":\"urn:y\"}," + face + "]");
}

void tst_FaceService::resourceTypes()
{
    QFETCH(QByteArray, body);
    const FaceService service = parseResourceTypes(body);
    QVERIFY(service.isKnown());
    QTEST(service.endpoint, "endpoint");
    QCOMPARE(service.schemaUrn, QString("urn:x"));
    QVERIFY(!service.schemaRead);
    QVERIFY(service.takes("anything"));
}

void tst_FaceService::unusableResourceTypes_data()
{
    QTest::addColumn<QByteArray>("body");
    const auto endpoint = [](const char* name, const QByteArray& value) {
        QTest::newRow(name) << "[{\"name\":\"Face\",\"schema\":\"urn:x\",\"endpoint\":" + value + "}]";
    };
    endpoint("no path", "\"Faces\"");
    endpoint("root", "\"/\"");
    endpoint("space", "\"/Fa ces\"");
    endpoint("line", "\"/Faces\\r\\nX: y\"");
    endpoint("query", "\"/Faces?x=1\"");
    endpoint("fragment", "\"/Faces#x\"");
    endpoint("no ASCII", "\"/F\\u00e4ces\"");
    endpoint("number", "5");
    QTest::newRow("no schema") << QByteArray(R"([{"name":"Face","endpoint":"/Faces"}])");
    QTest::newRow("another type") << QByteArray(R"([{"name":"User","endpoint":"/Users","schema":"urn:x"}])");
    QTest::newRow("texts") << QByteArray(R"({"Resources":["Face"]})");
    QTest::newRow("empty list") << QByteArray(R"({"Resources":[]})");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("rubbish") << QByteArray("<html>\xff</html>");
}

void tst_FaceService::unusableResourceTypes()
{
    QFETCH(QByteArray, body);
    QVERIFY(!parseResourceTypes(body).isKnown());
}

void tst_FaceService::schemas_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QSet<QString>>("names");
    using Names = QSet<QString>;
    const QByteArray face = R"({"id":"urn:X:Face","attributes":[{"name":"Name"},{"name":"photo"}]})";
    const QByteArray other = R"({"id":"urn:x:Other","attributes":[{"name":"more"}]})";
    const Names both{"name", "photo"};
    QTest::newRow("list") << "{\"Resources\":[" + other + "," + face + "]}" << both;
    QTest::newRow("array") << "[" + face + "]" << both;
    QTest::newRow("one object") << face << both;
    QTest::newRow("not there") << other << Names();
    QTest::newRow("no attributes") << QByteArray(R"({"id":"urn:x:Face"})") << Names();
    QTest::newRow("rubbish") << QByteArray("rubbish") << Names();
}

void tst_FaceService::schemas()
{
    QFETCH(QByteArray, body);
    QTEST(parseSchema(body, "urn:x:face"), "names");
}

void tst_FaceService::attributesThatAreTaken()
{
    FaceService service;
    QVERIFY(service.takes("photo"));
    service.attributes = {"validfrom"};
    QVERIFY(service.takes("validFrom"));
    QVERIFY(!service.takes("photo"));
}

void tst_FaceService::valuesWithoutRegardToCase()
{
    const QJsonObject object{{"Name", 1}, {"NAME", 2}, {"id", 3}};
    QCOMPARE(scimValue(object, "ID").toInt(), 3);
    QCOMPARE(scimValue(object, "NAME").toInt(), 2); // the exact one goes first
    QVERIFY(scimValue(object, "nam").isUndefined());
}

QTEST_GUILESS_MAIN(tst_FaceService)
#include "tst_FaceService.moc"
