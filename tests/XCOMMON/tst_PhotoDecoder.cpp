#include "JpegMaker.h"
#include "TestPictures.h"

#include <XCOMMON/PhotoDecoder.h>

#include <QDir>
#include <QElapsedTimer>
#include <QImageReader>
#include <QtTest>

#include <thread>

using XCOMMON::PhotoDecoder;

namespace
{
const QSize photoSize(96, 64);
constexpr int likeness = 12; // of 255; JPEG blurs the borders of the quarters
} // namespace

class tst_PhotoDecoder : public QObject
{
    Q_OBJECT
private slots:
    void setsUpright_data();
    void setsUpright();
    void readsKindsOfJpeg_data();
    void readsKindsOfJpeg();
    void tellsTheFormatFromTheBytes_data();
    void tellsTheFormatFromTheBytes();
    void honoursTheOrientationOfPngAndWebp_data();
    void honoursTheOrientationOfPngAndWebp();
    void scalesWhileReading_data();
    void scalesWhileReading();
    void givesWhatACutFileHolds();
    void refusesWhatIsNoPicture_data();
    void refusesWhatIsNoPicture();
    void survivesDamage_data();
    void survivesDamage();
    void worksInManyThreads();
    void readsALargePhotographForAThumbnailQuickly();
};

void tst_PhotoDecoder::setsUpright_data()
{
    QTest::addColumn<int>("orientation");
    QTest::addColumn<bool>("bigEndian");
    for (int orientation = 1; orientation <= 8; ++orientation) {
        QTest::addRow("%d, little endian", orientation) << orientation << false;
        QTest::addRow("%d, big endian", orientation) << orientation << true;
    }
}

/// Lays the picture the way a camera with that orientation stores it.
static QImage asStored(const QImage& upright, int orientation)
{
    const QTransform left = QTransform().rotate(-90);
    switch (orientation) {
    case 2:
        return upright.mirrored(true, false);
    case 3:
        return upright.mirrored(true, true);
    case 4:
        return upright.mirrored(false, true);
    case 5:
        return upright.mirrored(true, false).transformed(left);
    case 6:
        return upright.transformed(left);
    case 7:
        return upright.mirrored(false, true).transformed(left);
    case 8:
        return upright.transformed(QTransform().rotate(90));
    default:
        return upright;
    }
}

void tst_PhotoDecoder::setsUpright()
{
    QFETCH(int, orientation);
    QFETCH(bool, bigEndian);
    const QImage picture = quarters(photoSize);
    const QByteArray jpeg = JpegMaker().make(asStored(picture, orientation));
    const QImage decoded = PhotoDecoder::decode(withOrientation(jpeg, orientation, bigEndian));
    QVERIFY(difference(decoded, picture) < likeness);

    const QImage thumbnail = PhotoDecoder::decode(withOrientation(jpeg, orientation), photoSize / 8);
    QCOMPARE(thumbnail.size(), photoSize / 8);
}

void tst_PhotoDecoder::readsKindsOfJpeg_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QImage picture = quarters(photoSize);
    JpegMaker progressive, arithmetic, restarts, adobe, plainCmyk, ycck;
    progressive.progressive = true;
    arithmetic.arithmetic = true;
    restarts.restartInterval = 1;
    adobe.color = JpegMaker::Cmyk;
    plainCmyk.color = JpegMaker::Cmyk;
    plainCmyk.adobeMarker = false;
    ycck.color = JpegMaker::Ycck;
    QTest::newRow("baseline") << JpegMaker().make(picture);
    QTest::newRow("progressive") << progressive.make(picture);
    QTest::newRow("arithmetic coding") << arithmetic.make(picture);
    QTest::newRow("restart markers") << restarts.make(picture);
    QTest::newRow("inverted CMYK of Adobe") << adobe.make(picture);
    QTest::newRow("CMYK") << plainCmyk.make(picture);
    QTest::newRow("YCCK") << ycck.make(picture);
    QTest::newRow("zeros behind the end") << JpegMaker().make(picture) + QByteArray(4096, '\0');
}

void tst_PhotoDecoder::readsKindsOfJpeg()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(difference(PhotoDecoder::decode(bytes), quarters(photoSize)) < likeness);

    JpegMaker grey;
    grey.color = JpegMaker::Grey;
    const QImage greyPicture = quarters(photoSize).convertToFormat(QImage::Format_Grayscale8);
    QVERIFY(difference(PhotoDecoder::decode(grey.make(greyPicture)), greyPicture) < likeness);
}

void tst_PhotoDecoder::tellsTheFormatFromTheBytes_data()
{
    QTest::addColumn<QByteArray>("format");
    for (const char* format : {"png", "bmp", "jpg", "webp"})
        QTest::newRow(format) << QByteArray(format);
}

void tst_PhotoDecoder::tellsTheFormatFromTheBytes()
{
    QFETCH(QByteArray, format);
    const QByteArray bytes = encoded(quarters(photoSize), format.constData());
    if (bytes.isEmpty())
        QSKIP("this Qt does not write the format");
    QVERIFY(difference(PhotoDecoder::decode(bytes), quarters(photoSize)) < likeness);
}

void tst_PhotoDecoder::honoursTheOrientationOfPngAndWebp_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QImage stored = asStored(quarters(photoSize), 6);
    const QByteArray tiff = exifBlock(6).mid(6);
    const auto number = [](auto value) {
        return QByteArray(reinterpret_cast<const char*>(&value), sizeof value);
    };
    QByteArray png = encoded(stored, "png");
    const QByteArray length = number(qToBigEndian<quint32>(static_cast<quint32>(tiff.size())));
    constexpr int behindHeader = 8 + 25;
    png.insert(behindHeader, length + "eXIf" + tiff + "CRC!"); // nobody looks at the checksum of a note
    QTest::newRow("png") << png;

    QByteArray webp = encoded(stored, "webp");
    if (webp.isEmpty())
        return;
    webp += "EXIF" + number(qToLittleEndian<quint32>(static_cast<quint32>(tiff.size()))) + tiff;
    QTest::newRow("webp") << webp;
}

void tst_PhotoDecoder::honoursTheOrientationOfPngAndWebp()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(difference(PhotoDecoder::decode(bytes), quarters(photoSize)) < likeness);
}

void tst_PhotoDecoder::scalesWhileReading_data()
{
    QTest::addColumn<QSize>("target");
    QTest::addColumn<QSize>("expected");
    QTest::newRow("none") << QSize() << QSize(640, 400);
    QTest::newRow("empty") << QSize(0, 0) << QSize(640, 400);
    QTest::newRow("an eighth") << QSize(80, 50) << QSize(80, 50);
    QTest::newRow("just over an eighth") << QSize(81, 50) << QSize(160, 100);
    QTest::newRow("the larger side decides") << QSize(10, 101) << QSize(320, 200);
    QTest::newRow("over a half") << QSize(321, 10) << QSize(640, 400);
    QTest::newRow("larger than the photograph") << QSize(5000, 5000) << QSize(640, 400);
    QTest::newRow("one pixel") << QSize(1, 1) << QSize(80, 50);
}

void tst_PhotoDecoder::scalesWhileReading()
{
    QFETCH(QSize, target);
    QFETCH(QSize, expected);
    const QImage decoded = PhotoDecoder::decode(JpegMaker().make(quarters(QSize(640, 400))), target);
    QCOMPARE(decoded.size(), expected);
    QVERIFY(difference(decoded, quarters(expected)) < likeness);
}

void tst_PhotoDecoder::givesWhatACutFileHolds()
{
    const QImage picture = quarters(QSize(320, 320));
    const QByteArray bytes = JpegMaker().make(picture);
    const QImage half = PhotoDecoder::decode(bytes.left(bytes.size() * 2 / 3));
    QCOMPARE(half.size(), picture.size());
    const QRect upperQuarter(0, 0, 320, 80);
    QVERIFY(difference(half.copy(upperQuarter), picture.copy(upperQuarter)) < likeness);
    QVERIFY(difference(PhotoDecoder::decode(bytes.chopped(2)), picture) < likeness); // without its end mark

    for (const char* format : {"jpg", "png", "bmp", "webp", "gif"}) {
        const QByteArray whole = encoded(quarters(QSize(40, 40)), format);
        for (int length = 0; length < whole.size(); ++length) {
            const QImage image = PhotoDecoder::decode(whole.left(length));
            QVERIFY2(image.isNull() || image.size() == QSize(40, 40), format);
        }
    }
}

void tst_PhotoDecoder::refusesWhatIsNoPicture_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("text") << QByteArray("no picture at all");
    QTest::newRow("start of JPEG") << QByteArray("\xff\xd8");
    QTest::newRow("start of JPEG and of a marker") << QByteArray("\xff\xd8\xff");
    QTest::newRow("signature of PNG") << QByteArray("\x89PNG\r\n\x1a\n");
    QTest::newRow("drawing") << QByteArray("<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>");
    QTest::newRow("XPM") << QByteArray("/* XPM */\nstatic char *a[] = {\"1 1 1 1\",\"a c red\",\"a\"};");
    QTest::newRow("zeros") << QByteArray(100000, '\0');
}

void tst_PhotoDecoder::refusesWhatIsNoPicture()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(PhotoDecoder::decode(bytes).isNull());
}

void tst_PhotoDecoder::survivesDamage_data()
{
    QTest::addColumn<QByteArray>("whole");
    JpegMaker progressive, arithmetic;
    progressive.progressive = true;
    arithmetic.arithmetic = true;
    const QImage picture = quarters(QSize(60, 40));
    QTest::newRow("jpeg") << withOrientation(JpegMaker().make(picture), 6);
    QTest::newRow("progressive jpeg") << withOrientation(progressive.make(picture), 5);
    QTest::newRow("arithmetic jpeg") << withOrientation(arithmetic.make(picture), 8);
    for (const char* format : {"png", "bmp", "webp"})
        QTest::newRow(format) << encoded(picture, format);
}

void tst_PhotoDecoder::survivesDamage()
{
    QFETCH(QByteArray, whole);
    quint32 seed = 12345;
    const auto random = [&seed](int limit) {
        seed = seed * 1664525U + 1013904223U;
        return limit > 0 ? static_cast<int>((seed >> 8) % static_cast<quint32>(limit)) : 0;
    };
    for (int round = 0; round < 300; ++round) {
        QByteArray bytes = whole;
        for (int hits = random(8); hits >= 0 && !bytes.isEmpty(); --hits)
            bytes[random(bytes.size())] = static_cast<char>(random(256));
        const QImage image = PhotoDecoder::decode(bytes, QSize(20, 20));
        QVERIFY(qint64(image.width()) * image.height() <= 100'000'000);
    }
}

void tst_PhotoDecoder::worksInManyThreads()
{
    const QByteArray bytes = withOrientation(JpegMaker().make(asStored(quarters(photoSize), 6)), 6);
    const QImage expected = PhotoDecoder::decode(bytes);
    std::atomic<int> alike{0};
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&] {
            for (int round = 0; round < 20; ++round)
                alike += PhotoDecoder::decode(bytes) == expected ? 1 : 0;
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    QCOMPARE(alike.load(), 80);
}

void tst_PhotoDecoder::readsALargePhotographForAThumbnailQuickly()
{
    const QByteArray bytes = encoded(quarters(QSize(4000, 3000)), "jpg");
    QElapsedTimer timer;
    timer.start();
    const QImage thumbnail = PhotoDecoder::decode(bytes, QSize(166, 218));
    const qint64 scaled = timer.restart();
    const QImage full = PhotoDecoder::decode(bytes);
    qInfo("12 megapixels: %lld ms for a thumbnail, %lld ms in full", scaled, timer.elapsed());
    QCOMPARE(thumbnail.size(), QSize(500, 375));
    QCOMPARE(full.size(), QSize(4000, 3000));
}

QTEST_GUILESS_MAIN(tst_PhotoDecoder)
#include "tst_PhotoDecoder.moc"
