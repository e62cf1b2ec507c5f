#include "TestPictures.h"

#include <XCOMMON/PhotoDecoder.h>

#include <QDir>
#include <QFile>
#include <QtTest>

using XCOMMON::PhotoDecoder;

/// Real photographs of every kind that operators have brought, where they are at hand.
class tst_SamplePhotographs : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void readsThem_data();
    void readsThem();
    void setsThemUpright_data();
    void setsThemUpright();

private:
    QByteArray bytesOf(const QString& name) const;

    QDir m_directory;
};

void tst_SamplePhotographs::initTestCase()
{
    const QString root = QStringLiteral(QARN_SOURCE_DIR "/../shared/data");
    m_directory.setPath(qEnvironmentVariable("QARN_SAMPLE_DATA", root) + QStringLiteral("/faces"));
    if (!m_directory.exists())
        QSKIP("no sample photographs here; QARN_SAMPLE_DATA names their directory");
}

QByteArray tst_SamplePhotographs::bytesOf(const QString& name) const
{
    QFile file(m_directory.filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void tst_SamplePhotographs::readsThem_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QSize>("stored");
    QFile table(m_directory.filePath(QStringLiteral("../faces.tsv")));
    QVERIFY(table.open(QIODevice::ReadOnly));
    for (const QString& line : QString::fromUtf8(table.readAll()).split(QLatin1Char('\n')).mid(1)) {
        const QStringList cells = line.split(QLatin1Char('\t'));
        if (cells.size() > 5)
            QTest::newRow(qPrintable(cells.at(0)))
                << cells.at(0) << QSize(cells.at(4).toInt(), cells.at(5).toInt());
    }
}

void tst_SamplePhotographs::readsThem()
{
    QFETCH(QString, name);
    QFETCH(QSize, stored);
    const QByteArray bytes = bytesOf(name);
    QVERIFY(!bytes.isEmpty());
    const QImage image = PhotoDecoder::decode(bytes);
    if (stored.isEmpty()) { // not readable as a picture
        QVERIFY(image.isNull());
        return;
    }
    if (image.isNull() && name.contains(QLatin1String("webp")))
        QSKIP("this Qt does not read WebP");
    QVERIFY(image.size() == stored || image.size() == stored.transposed());
    const QImage small = PhotoDecoder::decode(bytes, QSize(97, 108));
    QVERIFY(small.width() >= qMin(97, image.width()) && small.height() >= qMin(108, image.height()));
    QVERIFY(small.width() <= image.width() && small.height() <= image.height());
}

void tst_SamplePhotographs::setsThemUpright_data()
{
    QTest::addColumn<QString>("upright");
    QTest::addColumn<QString>("turned");
    for (int orientation = 2; orientation <= 8; ++orientation) {
        const QString number = QString::number(orientation);
        QTest::addRow("portrait %d", orientation)
            << QStringLiteral("ukp_exif_orientation_1.jpg")
            << QStringLiteral("ukp_exif_orientation_%1.jpg").arg(number);
        QTest::addRow("hopper %d", orientation)
            << QStringLiteral("pil_hopper.jpg")
            << QStringLiteral("pil_hopper_orientation_%1.jpg").arg(number);
    }
}

void tst_SamplePhotographs::setsThemUpright()
{
    QFETCH(QString, upright);
    QFETCH(QString, turned);
    constexpr int likeness = 16; // the files are JPEGs of their own
    QVERIFY(difference(PhotoDecoder::decode(bytesOf(turned)), PhotoDecoder::decode(bytesOf(upright))) <
            likeness);
}

QTEST_GUILESS_MAIN(tst_SamplePhotographs)
#include "tst_SamplePhotographs.moc"
