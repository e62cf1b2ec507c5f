#include "demo/Portrait.h"

#include <QBuffer>
#include <QSet>
#include <QtTest>

class tst_Portrait : public QObject
{
    Q_OBJECT
private slots:
    void drawsTheSameAgain();
    void drawsManyPeople();
    void fillsAnySize_data();
    void fillsAnySize();
    void staysSmall();
};

void tst_Portrait::drawsTheSameAgain()
{
    const QSize size(60, 80);
    QCOMPARE(drawPortrait(7, size), drawPortrait(7, size));
    QCOMPARE(drawPortrait(7, size, PortraitKind::Female), drawPortrait(7, size, PortraitKind::Female));
    QVERIFY(drawPortrait(7, size, PortraitKind::Male) != drawPortrait(7, size, PortraitKind::Female));
}

void tst_Portrait::drawsManyPeople()
{
    QSet<QByteArray> pictures;
    for (quint32 seed = 0; seed < 500; ++seed) {
        const QImage image = drawPortrait(seed, QSize(30, 40));
        pictures.insert(
            QByteArray(reinterpret_cast<const char*>(image.constBits()), int(image.sizeInBytes())));
    }
    QCOMPARE(pictures.count(), 500);
}

void tst_Portrait::fillsAnySize_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("usual") << QSize(300, 400);
    QTest::newRow("wide") << QSize(400, 100);
    QTest::newRow("one pixel") << QSize(1, 1);
}

void tst_Portrait::fillsAnySize()
{
    QFETCH(QSize, size);
    const QImage image = drawPortrait(3, size);
    QCOMPARE(image.size(), size);
    QVERIFY2(qAlpha(image.pixel(0, 0)) == 255 && image.pixel(0, 0) != qRgb(0, 0, 0),
             "no corner is left blank");
}

void tst_Portrait::staysSmall()
{
    for (quint32 seed = 0; seed < 50; ++seed) {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        QVERIFY(buffer.open(QIODevice::WriteOnly) &&
                drawPortrait(seed, QSize(300, 400)).save(&buffer, "jpg", 82));
        QVERIFY(bytes.size() < 40 * 1024);
    }
}

QTEST_GUILESS_MAIN(tst_Portrait)
#include "tst_Portrait.moc"
