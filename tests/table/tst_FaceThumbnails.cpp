#include "table/FaceThumbnails.h"

#include "TestPictures.h"

#include <QtTest>

using qarn_personMgr::FaceThumbnails;

class tst_FaceThumbnails : public QObject
{
    Q_OBJECT
private slots:
    void stretchesToTheSize_data();
    void stretchesToTheSize();
    void givesNothingForNoPicture_data();
    void givesNothingForNoPicture();
    void remembersByContent();
    void tellsPicturesAtOneAddressApart();
    void forgetsTheOldest();
};

void tst_FaceThumbnails::stretchesToTheSize_data()
{
    QTest::addColumn<QSize>("photograph");
    QTest::addColumn<qreal>("ratio");
    QTest::addColumn<QSize>("pixels");
    QTest::newRow("wide") << QSize(400, 100) << 1.0 << QSize(97, 108);
    QTest::newRow("tall") << QSize(50, 900) << 1.0 << QSize(97, 108);
    QTest::newRow("tiny") << QSize(1, 1) << 1.0 << QSize(97, 108);
    QTest::newRow("scale 2") << QSize(1000, 1000) << 2.0 << QSize(194, 216);
    QTest::newRow("scale 1.5") << QSize(1000, 1000) << 1.5 << QSize(146, 162);
}

void tst_FaceThumbnails::stretchesToTheSize()
{
    QFETCH(QSize, photograph);
    QFETCH(qreal, ratio);
    const QImage image =
        FaceThumbnails::instance().thumbnail(jpeg(Qt::red, photograph), QSize(97, 108), ratio);
    QTEST(image.size(), "pixels");
    QTEST(image.devicePixelRatio(), "ratio");
    const QColor centre = image.pixelColor(image.rect().center());
    QVERIFY(centre.red() > 240 && centre.green() < 20 && centre.blue() < 20);
}

void tst_FaceThumbnails::givesNothingForNoPicture_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text") << QByteArray("this is no picture");
    QTest::newRow("cut header") << jpeg(Qt::red).left(20);
}

void tst_FaceThumbnails::givesNothingForNoPicture()
{
    QFETCH(QByteArray, bytes);
    for (int i = 0; i < 2; ++i)
        QVERIFY(FaceThumbnails::instance().thumbnail(bytes, QSize(97, 108), 1).isNull());
}

void tst_FaceThumbnails::remembersByContent()
{
    const QByteArray bytes = jpeg(Qt::darkCyan);
    const QByteArray same(bytes.constData(), bytes.size());
    FaceThumbnails& thumbnails = FaceThumbnails::instance();
    const QImage image = thumbnails.thumbnail(bytes, QSize(97, 108), 1);
    QCOMPARE(thumbnails.thumbnail(same, QSize(97, 108), 1).cacheKey(), image.cacheKey());
    QVERIFY(thumbnails.thumbnail(same, QSize(97, 108), 2).cacheKey() != image.cacheKey());
}

void tst_FaceThumbnails::tellsPicturesAtOneAddressApart()
{
    QByteArray memory(64 * 1024, '\0');
    const auto colourOf = [&memory](const QByteArray& photograph) {
        memcpy(memory.data(), photograph.constData(), static_cast<size_t>(photograph.size()));
        const QByteArray bytes = QByteArray::fromRawData(memory.constData(), memory.size());
        return FaceThumbnails::instance().thumbnail(bytes, QSize(10, 10), 1).pixelColor(5, 5);
    };
    QVERIFY(colourOf(jpeg(Qt::blue)).blue() > 200);
    QVERIFY(colourOf(jpeg(Qt::green)).green() > 200);
}

/// Far more pictures than are remembered, each seen anew: the first one is made again.
void tst_FaceThumbnails::forgetsTheOldest()
{
    FaceThumbnails& thumbnails = FaceThumbnails::instance();
    const QSize size(512, 512); // 1 MiB each
    const QByteArray first = jpeg(QColor(1, 2, 3));
    const qint64 key = thumbnails.thumbnail(first, size, 1).cacheKey();
    QCOMPARE(thumbnails.thumbnail(first, size, 1).cacheKey(), key);
    for (int i = 0; i < 40; ++i)
        thumbnails.thumbnail(jpeg(QColor(i * 6, 100, 200)), size, 1);
    QVERIFY(thumbnails.thumbnail(first, size, 1).cacheKey() != key);
}

QTEST_MAIN(tst_FaceThumbnails)
#include "tst_FaceThumbnails.moc"
