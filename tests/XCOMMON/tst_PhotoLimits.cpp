#include "JpegMaker.h"
#include "TestPictures.h"

#include <XCOMMON/PhotoDecoder.h>

#include <QElapsedTimer>
#include <QFile>
#include <QtTest>

using XCOMMON::PhotoDecoder;

namespace
{

constexpr int mebi = 1024 * 1024;

template <typename Number>
QByteArray big(Number value)
{
    const Number swapped = qToBigEndian(value);
    return QByteArray(reinterpret_cast<const char*>(&swapped), sizeof swapped);
}

template <typename Number>
QByteArray little(Number value)
{
    const Number swapped = qToLittleEndian(value);
    return QByteArray(reinterpret_cast<const char*>(&swapped), sizeof swapped);
}

quint32 crc(const QByteArray& bytes)
{
    quint32 sum = 0xFFFFFFFF;
    for (const char byte : bytes) {
        sum ^= static_cast<uchar>(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum >> 1) ^ ((sum & 1) ? 0xEDB88320 : 0);
    }
    return ~sum;
}

QByteArray pngChunk(const QByteArray& name, const QByteArray& data)
{
    return big<quint32>(static_cast<quint32>(data.size())) + name + data + big(crc(name + data));
}

QByteArray pngOf(quint32 width, quint32 height)
{
    const QByteArray kind("\x08\x02\x00\x00\x00", 5); // 8 bits, RGB
    return QByteArray("\x89PNG\r\n\x1a\n") + pngChunk("IHDR", big(width) + big(height) + kind) +
           pngChunk("IDAT", qCompress(QByteArray(1000, '\0')).mid(4)) + pngChunk("IEND", QByteArray());
}

QByteArray bmpOf(qint32 width, qint32 height)
{
    const QByteArray info = little<quint32>(40) + little(width) + little(height) + little<quint16>(1) +
                            little<quint16>(24) + QByteArray(24, '\0');
    return "BM" + little<quint32>(200) + little<quint32>(0) + little<quint32>(54) + info +
           QByteArray(146, '\0');
}

/// A picture of 1 x 1 in a frame at its upper left, on a screen of the given size.
QByteArray gifOf(quint16 width, quint16 height, quint16 frameWidth = 1, quint16 frameHeight = 1)
{
    const QByteArray palette("\x80\x00\x00\x00\x00\x00\xff\xff\xff", 9);
    const QByteArray frame = "," + little<quint32>(0) + little(frameWidth) + little(frameHeight);
    return "GIF89a" + little(width) + little(height) + palette + frame +
           QByteArray("\x00\x02\x02\x44\x01\x00;", 7);
}

/// The JPEG file with other measures in its frame header.
QByteArray jpegOf(quint16 width, quint16 height)
{
    QByteArray bytes = JpegMaker().make(quarters(QSize(16, 16)));
    const int frame = bytes.indexOf("\xff\xc0");
    return bytes.replace(frame + 5, 4, big(height) + big(width));
}

qint64 peakMemoryKiB()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            return line.simplified().split(' ').value(1).toLongLong();
    }
    return -1;
}

} // namespace

class tst_PhotoLimits : public QObject
{
    Q_OBJECT
private slots:
    void refusesTooManyPixelsByTheHeader_data();
    void refusesTooManyPixelsByTheHeader();
    void acceptsTheLargestPhotograph();
    void leavesPackedTextsPacked();
    void givesUpOnEndlessScans();
};

void tst_PhotoLimits::refusesTooManyPixelsByTheHeader_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("jpeg") << jpegOf(65500, 65500);
    QTest::newRow("jpeg just over") << jpegOf(10001, 10000);
    QTest::newRow("png") << pngOf(60000, 60000);
    QTest::newRow("png just over") << pngOf(10001, 10000);
    QTest::newRow("png with the largest measures") << pngOf(0x7FFFFFFF, 0x7FFFFFFF);
    QTest::newRow("png of no width") << pngOf(0, 100);
    QTest::newRow("bmp") << bmpOf(30000, 30000);
    QTest::newRow("bmp with the largest measures") << bmpOf(0x7FFFFFFF, 0x7FFFFFFF);
    QTest::newRow("bmp upside down") << bmpOf(30000, -30000);
    QTest::newRow("gif") << gifOf(65535, 65535);
    QTest::newRow("gif with a frame beyond its screen") << gifOf(10, 10, 16000, 16000);
    QTest::newRow("gif without a screen") << gifOf(0, 0, 16000, 16000);
    QTest::newRow("webp") << QByteArray("RIFF") + little<quint32>(22) + "WEBPVP8X" + little<quint32>(10) +
                                 QByteArray(4, '\0') + QByteArray("\xff\x3f\x00\xff\x3f\x00", 6);
}

void tst_PhotoLimits::refusesTooManyPixelsByTheHeader()
{
    QFETCH(QByteArray, bytes);
    const qint64 before = peakMemoryKiB();
    const QImage image = PhotoDecoder::decode(bytes, QSize(100, 100));
    QVERIFY(image.isNull() || qint64(image.width()) * image.height() <= 100);
    QVERIFY(peakMemoryKiB() - before < 64 * 1024);
}

void tst_PhotoLimits::acceptsTheLargestPhotograph()
{
    // The file ends after the first rows; what matters is that the header is accepted.
    const QImage image = PhotoDecoder::decode(jpegOf(10000, 10000), QSize(100, 100));
    QCOMPARE(image.size(), QSize(1250, 1250));
}

void tst_PhotoLimits::leavesPackedTextsPacked()
{
    const QByteArray packed = qCompress(QByteArray(7 * mebi, 'a'), 9).mid(4);
    QByteArray png = encoded(quarters(QSize(20, 20)), "png");
    constexpr int behindHeader = 8 + 25;
    QByteArray texts;
    for (int i = 0; i < 200; ++i) // 1.4 GiB when unpacked
        texts += pngChunk("zTXt", "key" + QByteArray(2, '\0') + packed);
    png.insert(behindHeader, texts);

    const qint64 before = peakMemoryKiB();
    QVERIFY(difference(PhotoDecoder::decode(png), quarters(QSize(20, 20))) < 1);
    QVERIFY(peakMemoryKiB() - before < 64 * 1024);
}

void tst_PhotoLimits::givesUpOnEndlessScans()
{
    JpegMaker maker;
    maker.progressive = true;
    maker.color = JpegMaker::Grey;
    const QByteArray bytes = maker.make(quarters(QSize(2000, 2000)));
    const int lastScan = bytes.lastIndexOf("\xff\xda");
    const int behindLastScan = bytes.size() - 2;
    const QByteArray scan = bytes.mid(lastScan, behindLastScan - lastScan);
    constexpr int scans = 20000;
    const QByteArray endless = bytes.left(behindLastScan) + scan.repeated(scans) + bytes.right(2);

    QElapsedTimer timer;
    timer.start();
    QVERIFY(PhotoDecoder::decode(endless).isNull());
    QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
    QVERIFY(!PhotoDecoder::decode(bytes).isNull());
}

QTEST_GUILESS_MAIN(tst_PhotoLimits)
#include "tst_PhotoLimits.moc"
