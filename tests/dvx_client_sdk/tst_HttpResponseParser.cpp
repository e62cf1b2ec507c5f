#include "HttpResponseParser.h"

#include <QBuffer>
#include <QtTest>

using dvx_sdk::HttpResponseParser;

class tst_HttpResponseParser : public QObject
{
    Q_OBJECT
private slots:
    void answers_data();
    void answers();
    void answersFromADevice_data() { answers_data(); }
    void answersFromADevice();
    void brokenAnswers_data();
    void brokenAnswers();
    void closedInTheMiddle();
    void limitsTheBody();
};

void tst_HttpResponseParser::answers_data()
{
    QTest::addColumn<QByteArray>("wire");
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<bool>("keepAlive");
    QTest::newRow("length") << QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 3\r\n\r\nabc") << 200
                            << QByteArray("abc") << true;
    QTest::newRow("no reason") << QByteArray("HTTP/1.1 404\r\ncontent-length:0\r\n\r\n") << 404
                               << QByteArray() << true;
    QTest::newRow("bare line feeds") << QByteArray("HTTP/1.1 200 OK\nContent-Length: 1\n\na") << 200
                                     << QByteArray("a") << true;
    QTest::newRow("chunks") << QByteArray("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n3\r\nabc\r\n"
                                          "A;q=1\r\n0123456789\r\n0\r\nX: y\r\n\r\n")
                            << 200 << QByteArray("abc0123456789") << true;
    QTest::newRow("close") << QByteArray("HTTP/1.1 200 OK\r\nConnection: close\r\nContent-Length: 1\r\n\r\na")
                           << 200 << QByteArray("a") << false;
    QTest::newRow("1.0") << QByteArray("HTTP/1.0 200 OK\r\nContent-Length: 1\r\n\r\na") << 200
                         << QByteArray("a") << false;
    QTest::newRow("continue") << QByteArray("HTTP/1.1 100 C\r\nX: 1\r\n\r\nHTTP/1.1 204 N\r\n\r\n") << 204
                              << QByteArray() << true;
    QTest::newRow("more than asked for")
        << QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 1\r\n\r\naHTTP/1.1 200 OK") << 200
        << QByteArray("a") << false;
    QTest::newRow("until close") << QByteArray("HTTP/1.1 200 OK\r\n\r\nabc") << 200 << QByteArray("abc")
                                 << false;
}

void tst_HttpResponseParser::answers()
{
    QFETCH(QByteArray, wire);
    QFETCH(QByteArray, body);
    for (const int piece : {1, 2, 7, 1000}) {
        HttpResponseParser parser(1000);
        for (int at = 0; at < wire.size(); at += piece)
            parser.feed(wire.mid(at, piece));
        if (!parser.isDone())
            parser.finish();
        QVERIFY(parser.isDone());
        QTEST(parser.status(), "status");
        QCOMPARE(parser.body(), body);
        QTEST(parser.canKeepAlive(), "keepAlive");
    }
}

/// As from a socket, which has a piece after another.
void tst_HttpResponseParser::answersFromADevice()
{
    QFETCH(QByteArray, wire);
    QFETCH(QByteArray, body);
    for (const int piece : {1, 2, 7, 1000}) {
        QByteArray space;
        space.reserve(20);
        HttpResponseParser parser(1000, space);
        for (int at = 0; at < wire.size() && !parser.isDone(); at += piece) {
            QByteArray bytes = wire.mid(at, piece);
            QBuffer device(&bytes);
            QVERIFY(device.open(QIODevice::ReadOnly));
            while (!device.atEnd() && !parser.isDone())
                QVERIFY(parser.feedFrom(device) > 0);
        }
        const bool oneByteTooMany = piece == 1 && body == "a" && wire.endsWith("aHTTP/1.1 200 OK");
        if (!parser.isDone())
            parser.finish();
        QVERIFY(parser.isDone());
        QTEST(parser.status(), "status");
        QCOMPARE(parser.takeBody(), body);
        if (!oneByteTooMany) // which the socket has still to get then
            QTEST(parser.canKeepAlive(), "keepAlive");
    }
}

void tst_HttpResponseParser::brokenAnswers_data()
{
    QTest::addColumn<QByteArray>("wire");
    QTest::newRow("no HTTP") << QByteArray("hello\r\n");
    QTest::newRow("status is no number") << QByteArray("HTTP/1.1 abc\r\n");
    QTest::newRow("status too long") << QByteArray("HTTP/1.1 2000 OK\r\n");
    QTest::newRow("header without colon") << QByteArray("HTTP/1.1 200 OK\r\nabc\r\n");
    QTest::newRow("length is no number") << QByteArray("HTTP/1.1 200 OK\r\nContent-Length: x\r\n\r\n");
    QTest::newRow("length beyond all numbers")
        << QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 99999999999999999999\r\n\r\n");
    QTest::newRow("chunk is no number")
        << QByteArray("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\nxyz\r\n");
    QTest::newRow("endless chunk number")
        << QByteArray("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n0000000000000000001\r\n");
    QTest::newRow("other encoding") << QByteArray("HTTP/1.1 200 OK\r\nTransfer-Encoding: gzip\r\n\r\n");
    QTest::newRow("endless line") << QByteArray(40000, 'x');
    QTest::newRow("endless headers") << "HTTP/1.1 200 OK\r\n" + QByteArray("A: b\r\n").repeated(10000);
}

void tst_HttpResponseParser::brokenAnswers()
{
    QFETCH(QByteArray, wire);
    HttpResponseParser parser(1000);
    parser.feed(wire);
    QVERIFY(parser.isBroken());
}

void tst_HttpResponseParser::closedInTheMiddle()
{
    for (const char* wire : {"", "HTTP/1.1 200 OK\r\n", "HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\nabc",
                             "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n3\r\nabc\r\n"}) {
        HttpResponseParser parser(1000);
        parser.feed(wire);
        parser.finish();
        QVERIFY(parser.isBroken());
    }
}

void tst_HttpResponseParser::limitsTheBody()
{
    const QByteArray head = "HTTP/1.1 200 OK\r\n";
    const QByteArray more(11, 'x');
    for (const QByteArray& wire : {head + "Content-Length: 11\r\n\r\n", head + "\r\n" + more,
                                   head + "Transfer-Encoding: chunked\r\n\r\nFFFFFFFF\r\n",
                                   head + "Transfer-Encoding: chunked\r\n\r\n6\r\n123456\r\n6\r\n"}) {
        HttpResponseParser parser(10);
        parser.feed(wire);
        QVERIFY(parser.isBroken());
    }
}

QTEST_GUILESS_MAIN(tst_HttpResponseParser)
#include "tst_HttpResponseParser.moc"
