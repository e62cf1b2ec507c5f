#include "PhotoCut.h"

#include <QJsonDocument>
#include <QtTest>

using namespace dvx_sdk;

class tst_PhotoCut : public QObject
{
    Q_OBJECT
private slots:
    void cuts_data();
    void cuts();
    void leavesAsItIs_data();
    void leavesAsItIs();
    void tornTextStaysTorn();
    void plainText();
    void standardAlphabet();
};

void tst_PhotoCut::cuts_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QByteArray>("rest");
    QTest::addColumn<QList<QByteArray>>("photos");
    using Photos = QList<QByteArray>;
    const auto row = [](const char* name, const QByteArray& body, const QByteArray& rest,
                        const Photos& photos) { QTest::newRow(name) << body << rest << photos; };
    row("one", R"({"photo":"AB+/=="})", R"({"photo":"0"})", {"AB+/=="});
    row("two faces", R"([{"id":"1","photo":"AA"},{"photo":"BB","id":"2"}])",
        R"([{"id":"1","photo":"0"},{"photo":"1","id":"2"}])", {"AA", "BB"});
    row("other case", R"({"PhoTo":"AA"})", R"({"PhoTo":"0"})", {"AA"});
    row("white space", "{ \"photo\" \t:\r\n \"AA\" }", "{ \"photo\" \t:\r\n \"0\" }", {"AA"});
    row("no characters", R"({"photo":""})", R"({"photo":"0"})", {""});
    row("URL alphabet", R"({"photo":"-_"})", R"({"photo":"0"})", {"-_"});
    row("twice", R"({"photo":"AA","photo":"BB"})", R"({"photo":"0","photo":"1"})", {"AA", "BB"});
    row("a name that says photo", R"({"name":"photo","photo":"AA"})", R"({"name":"photo","photo":"0"})",
        {"AA"});
    row("a name with marks", R"({"name":"\"photo\":\"no\\","photo":"AA"})",
        R"({"name":"\"photo\":\"no\\","photo":"0"})", {"AA"});
    row("other letters elsewhere", "{\"name\":\"Größe\",\"photo\":\"AA\"}",
        "{\"name\":\"Größe\",\"photo\":\"0\"}", {"AA"});
}

void tst_PhotoCut::cuts()
{
    QFETCH(QByteArray, body);
    const PhotoCut cut = cutPhotos(body);
    QTEST(cut.body, "rest");
    QTEST(cut.photos, "photos");
}

void tst_PhotoCut::leavesAsItIs_data()
{
    QTest::addColumn<QByteArray>("body");
    const auto row = [](const char* name, const QByteArray& body) { QTest::newRow(name) << body; };
    row("nothing", "");
    row("no photograph", R"({"id":"1","name":"photograph"})");
    row("escaped slash", R"({"photo":"AA\/B"})");
    row("escaped key", R"({"ph\u006fto":"AA","photo":"BB"})");
    row("one good, one escaped", R"([{"photo":"AA"},{"photo":"B\u0042"}])");
    row("number", R"({"photo":5})");
    row("null", R"([{"photo":"AA"},{"photo":null}])");
    row("object", R"({"photo":{"value":"AA"}})");
    row("no value", R"({"photo":)");
    row("open end", R"({"photo":"AA)");
    row("open end elsewhere", R"({"photo":"AA","name":"B)");
    row("open escape", "{\"photo\":\"AA\",\"name\":\"B\\");
    row("control character", "{\"photo\":\"A\nA\"}");
    row("no ASCII", "{\"photo\":\"Größe\"}");
}

void tst_PhotoCut::leavesAsItIs()
{
    QFETCH(QByteArray, body);
    const PhotoCut cut = cutPhotos(body);
    QCOMPARE(cut.body, body);
    QVERIFY(cut.photos.isEmpty());
}

/// The parser must refuse what it would have refused before the cut.
void tst_PhotoCut::tornTextStaysTorn()
{
    const QByteArray whole = R"({"Resources":[{"id":"1","photo":"AA+/","name":"\"x\""}]})";
    QVERIFY(!QJsonDocument::fromJson(cutPhotos(whole).body).isNull());
    for (int length = 0; length < whole.size(); ++length)
        QVERIFY(QJsonDocument::fromJson(cutPhotos(whole.left(length)).body).isNull());
    for (const char* behind : {"1", "\"AA\"", "A", ":", ".5"})
        QVERIFY(
            QJsonDocument::fromJson(cutPhotos(R"({"photo":"AA")" + QByteArray(behind) + "}").body).isNull());
}

void tst_PhotoCut::plainText()
{
    for (int c = 0; c < 256; ++c) {
        const bool plain = c >= 0x20 && c < 0x80 && c != '"' && c != '\\';
        for (int length = 1; length < 20; ++length) { // at each place of whole words and of the rest
            for (int at = 0; at < length; ++at) {
                QByteArray text(length, 'A');
                text[at] = char(c);
                QCOMPARE(isPlainText(text.constData(), length), plain);
            }
        }
    }
    QVERIFY(isPlainText("", 0));
}

void tst_PhotoCut::standardAlphabet()
{
    QCOMPARE(toStandardAlphabet("-_+/A="), QByteArray("+/+/A="));
    QCOMPARE(toStandardAlphabet("AB=="), QByteArray("AB=="));
    QCOMPARE(toStandardAlphabet(""), QByteArray(""));
}

QTEST_GUILESS_MAIN(tst_PhotoCut)
#include "tst_PhotoCut.moc"
