#include "FaceJson.h"
#include "FaceService.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

using namespace dvx_sdk;

/// What the link makes of the documents of devices, and what it sends them.
class tst_FaceJson : public QObject
{
    Q_OBJECT
private slots:
    void wholeFace();
    void ids_data();
    void ids();
    void badIds_data();
    void badIds();
    void absentAttributes();
    void names();
    void sexes_data();
    void sexes();
    void times_data();
    void times();
    void photos_data();
    void photos();
    void totalsAndStarts_data();
    void totalsAndStarts();
    void sentFace();
    void emptyFaceIsSentWithoutWhatItLacks();
    void onlyKnownAttributesAreSent();
    void photographThatWouldBreakTheDocumentIsNotSent();

private:
    static FacePage pageOf(const QByteArray& face)
    {
        FacePage page;
        if (!parseFacePage("{\"totalResults\":1,\"startIndex\":1,\"Resources\":[" + face + "]}", 1, page))
            page.faces.clear();
        return page;
    }
    static FaceInfo faceOf(const QByteArray& attributes)
    {
        return pageOf("{\"id\":\"1\"" + attributes + "}").faces.value(0).second;
    }
    static QJsonObject sent(const ModifyFaceCondition& face, const FaceService& service)
    {
        return QJsonDocument::fromJson(faceToJson(face, service)).object();
    }
};

void tst_FaceJson::wholeFace()
{
    const FacePage page = pageOf(
        "{\"schemas\":[\"x\"],\"id\":\"f-1\",\"externalId\":\"A1\",\"name\":\"Gr\xc3\xb6\xc3\x9f"
        "e\",\"sex\":2,\"validFrom\":\"2024-07-01T06:00:00.123Z\",\"validTo\":\"2034-01-01T22:59:59Z\","
        "\"photo\":\"/9j/4A==\",\"meta\":{\"created\":\"2024-07-01T06:00:00Z\"}}");
    QCOMPARE(page.total, qint64(1));
    QCOMPARE(page.faces.count(), 1);
    QCOMPARE(page.faces.first().first, QString("f-1"));
    const FaceInfo face = page.faces.first().second;
    QCOMPARE(face.serialNum, QString("A1"));
    QCOMPARE(face.name, QString::fromUtf8("Größe"));
    QCOMPARE(face.sex, 2);
    QCOMPARE(face.validStartTime, QDateTime(QDate(2024, 7, 1), QTime(8, 0, 0, 123))); // Berlin
    QCOMPARE(face.validStartTime.timeSpec(), Qt::LocalTime);
    QCOMPARE(face.validEndTime, QDateTime(QDate(2034, 1, 1), QTime(23, 59, 59)));
    QCOMPARE(face.faceImages, QList<QByteArray>{"/9j/4A=="});
}

void tst_FaceJson::ids_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("id");
    const auto row = [](const QByteArray& json, const QString& id) {
        QTest::newRow(json.constData()) << json << id;
    };
    row("\"7\"", "7");
    row("\"007\"", "007");
    row("7", "7");
    row("9007199254740991", "9007199254740991");
    row("\"a b/c?\"", "a b/c?");
    row("\"2819c223-7f76-453a-919d-413861904646\"", "2819c223-7f76-453a-919d-413861904646");
    row("\"\\u00e4\"", QString::fromUtf8("ä"));
}

void tst_FaceJson::ids()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, id);
    QCOMPARE(pageOf("{\"id\":" + json + "}").faces.value(0).first, id);
    QCOMPARE(pageOf("{\"ID\":" + json + "}").faces.value(0).first, id);
}

void tst_FaceJson::badIds_data()
{
    QTest::addColumn<QByteArray>("face");
    const auto row = [](const char* name, const QByteArray& face) { QTest::newRow(name) << face; };
    row("none", "{}");
    row("empty", "{\"id\":\"\"}");
    row("null", "{\"id\":null}");
    row("object", "{\"id\":{\"value\":1}}");
    row("beyond exact numbers", "{\"id\":9007199254740993}");
    row("too long", "{\"id\":\"" + QByteArray(1025, 'x') + "\"}");
    row("no object", "\"1\"");
    row("null face", "null");
}

void tst_FaceJson::badIds()
{
    QFETCH(QByteArray, face);
    QVERIFY(pageOf(face).faces.isEmpty());
    QVERIFY(pageOf("{\"id\":\"good\"}," + face).faces.isEmpty()); // one bad face spoils the page
}

void tst_FaceJson::absentAttributes()
{
    const FaceInfo face = faceOf("");
    QCOMPARE(face.serialNum, QString());
    QCOMPARE(face.name, QString());
    QCOMPARE(face.sex, 1);
    QVERIFY(!face.validStartTime.isValid());
    QVERIFY(!face.validEndTime.isValid());
    QVERIFY(face.faceImages.isEmpty());
    const FaceInfo nulls =
        faceOf(",\"externalId\":null,\"name\":null,\"sex\":null,\"validFrom\":null,\"photo\":null");
    QCOMPARE(nulls.name, QString());
    QCOMPARE(nulls.sex, 1);
    QVERIFY(nulls.faceImages.isEmpty());
}

void tst_FaceJson::names()
{
    QCOMPARE(faceOf(",\"name\":\"Ann\"").name, QString("Ann"));
    QCOMPARE(faceOf(",\"NAME\":\"Ann\"").name, QString("Ann"));
    QCOMPARE(faceOf(",\"NAME\":\"other\",\"name\":\"Ann\"").name, QString("Ann"));
    QCOMPARE(faceOf(",\"name\":{\"formatted\":\"Ann\"}").name, QString("Ann"));
    QCOMPARE(faceOf(",\"name\":{\"familyName\":\"Ann\"}").name, QString());
    QCOMPARE(faceOf(",\"name\":7").name, QString());
}

void tst_FaceJson::sexes_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<int>("sex");
    const auto row = [](const QByteArray& json, int sex) { QTest::newRow(json.constData()) << json << sex; };
    row("1", 1);
    row("2", 2);
    row("0", 0);
    row("1.5", 1);
    row("\"2\"", 2);
    row("\"Female\"", 2);
    row("\"male\"", 1);
    row("\"other\"", 1);
    row("[]", 1);
}

void tst_FaceJson::sexes()
{
    QFETCH(QByteArray, json);
    QTEST(faceOf(",\"sex\":" + json).sex, "sex");
}

void tst_FaceJson::times_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QDateTime>("time");
    const auto row = [](const char* text, const QDateTime& time) {
        QTest::newRow(text) << QByteArray(text) << time;
    };
    const QDate summer(2024, 7, 1);
    row("2024-07-01T06:00:00Z", QDateTime(summer, QTime(8, 0)));
    row("2024-07-01T06:00:00.5Z", QDateTime(summer, QTime(8, 0, 0, 500)));
    row("2024-07-01T08:00:00+02:00", QDateTime(summer, QTime(8, 0)));
    row("2024-07-01T01:00:00-05:00", QDateTime(summer, QTime(8, 0)));
    row("2024-07-01T08:00:00", QDateTime(summer, QTime(8, 0)));
    row("2024-13-01T08:00:00Z", {});
    row("tomorrow", {});
    row("", {});
}

void tst_FaceJson::times()
{
    QFETCH(QByteArray, text);
    const FaceInfo face = faceOf(",\"validFrom\":\"" + text + "\",\"validTo\":\"" + text + "\"");
    QTEST(face.validStartTime, "time");
    QTEST(face.validEndTime, "time");
}

void tst_FaceJson::photos_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QList<QByteArray>>("images");
    using Images = QList<QByteArray>;
    QTest::newRow("plain") << QByteArray("\"AB+/\"") << Images{"AB+/"};
    QTest::newRow("URL alphabet") << QByteArray("\"AB-_\"") << Images{"AB+/"};
    QTest::newRow("escaped slash") << QByteArray("\"AB+\\/\"") << Images{"AB+/"};
    QTest::newRow("escaped letter") << QByteArray("\"\\u0041B+/\"") << Images{"AB+/"};
    QTest::newRow("empty") << QByteArray("\"\"") << Images{};
    QTest::newRow("number") << QByteArray("0") << Images{};
    QTest::newRow("list") << QByteArray("[\"AB\"]") << Images{};
}

void tst_FaceJson::photos()
{
    QFETCH(QByteArray, json);
    QFETCH(QList<QByteArray>, images);
    QCOMPARE(faceOf(",\"photo\":" + json).faceImages, images);
    const FacePage page =
        pageOf("{\"id\":\"1\",\"photo\":\"CD\"},{\"id\":\"2\"},{\"PHOTO\":" + json + ",\"id\":\"3\"}");
    QCOMPARE(page.faces.count(), 3);
    QCOMPARE(page.faces.at(0).second.faceImages, QList<QByteArray>{"CD"});
    QVERIFY(page.faces.at(1).second.faceImages.isEmpty());
    QCOMPARE(page.faces.at(2).second.faceImages, images);
}

void tst_FaceJson::totalsAndStarts_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<bool>("good");
    const auto row = [](const char* name, const QByteArray& body, bool good) {
        QTest::newRow(name) << body << good;
    };
    const QByteArray face = "\"Resources\":[{\"id\":\"9\"}]";
    row("start is right", "{\"totalResults\":9,\"startIndex\":3," + face + "}", true);
    row("start is not told", "{\"totalResults\":9," + face + "}", true);
    row("start is a text", "{\"totalResults\":9,\"startIndex\":\"1\"," + face + "}", true);
    row("other start", "{\"totalResults\":9,\"startIndex\":4," + face + "}", false);
    row("other start of an empty page", "{\"totalResults\":2,\"startIndex\":1,\"Resources\":[]}", true);
    row("no list", "{\"totalResults\":0}", true);
    row("as many as can be", "{\"totalResults\":250000," + face + "}", true);
    row("too many", "{\"totalResults\":250001," + face + "}", false);
    row("negative", "{\"totalResults\":-1," + face + "}", false);
    row("total is a text", "{\"totalResults\":\"9\"," + face + "}", false);
    row("no total", "{" + face + "}", false);
    row("a list only", "[{\"id\":\"9\"}]", false);
    row("torn", "{\"totalResults\":9," + face, false);
    row("nothing", "", false);
    row("rubbish", "\xff\xfe{}", false);
}

void tst_FaceJson::totalsAndStarts()
{
    QFETCH(QByteArray, body);
    FacePage page;
    QTEST(parseFacePage(body, 3, page), "good");
}

void tst_FaceJson::sentFace()
{
    ModifyFaceCondition face;
    face.serialNum = "A1";
    face.name = QString::fromUtf8("\"Größe\"");
    face.organizationNames = QStringList{"Root", "Gate"};
    face.sex = 2;
    face.listType = generalListType;
    face.validStartTime = QDateTime(QDate(2024, 7, 1), QTime(8, 0, 0, 123));
    face.validEndTime = QDateTime(QDate(2034, 1, 1), QTime(23, 59, 59));
    face.faceImages = {"AB+/"};
    FaceService service;
    service.schemaUrn = "urn:x:Face";
    const QJsonObject expected{{"schemas", QJsonArray{"urn:x:Face"}},
                               {"externalId", "A1"},
                               {"name", QString::fromUtf8("\"Größe\"")},
                               {"organization", QJsonArray{"Root", "Gate"}},
                               {"sex", 2},
                               {"listType", "general"},
                               {"validFrom", "2024-07-01T06:00:00.123Z"},
                               {"validTo", "2034-01-01T22:59:59.000Z"},
                               {"photo", "AB+/"}};
    QCOMPARE(sent(face, service), expected);
}

void tst_FaceJson::emptyFaceIsSentWithoutWhatItLacks()
{
    const QJsonObject object = sent({}, {});
    for (const char* absent : {"externalId", "validFrom", "validTo", "photo"})
        QVERIFY2(!object.contains(QLatin1String(absent)), absent);
    QCOMPARE(object.value("sex").toInt(), 1);
}

void tst_FaceJson::onlyKnownAttributesAreSent()
{
    ModifyFaceCondition face;
    face.serialNum = "A1";
    face.name = "Ann";
    face.faceImages = {"AB"};
    FaceService service;
    service.attributes = {"name"};
    QCOMPARE(sent(face, service).keys(), (QStringList{"externalId", "name", "schemas"}));
    service.attributes = {"photo"};
    QCOMPARE(sent(face, service).keys(), (QStringList{"externalId", "photo", "schemas"}));
}

void tst_FaceJson::photographThatWouldBreakTheDocumentIsNotSent()
{
    for (const char* photo : {"A\"B", "A\\", "A\nB", "\xff"}) {
        ModifyFaceCondition face;
        face.faceImages = {photo};
        const QJsonObject object = sent(face, {});
        QVERIFY(!object.isEmpty());
        QVERIFY(!object.contains("photo"));
    }
}

QTEST_GUILESS_MAIN(tst_FaceJson)
#include "tst_FaceJson.moc"
