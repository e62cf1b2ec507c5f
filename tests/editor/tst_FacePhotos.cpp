#include "FaceFixture.h"

#include <qarn_worker/SystemAssistant.h>

#include <QElapsedTimer>
#include <QFileDialog>
#include <QLabel>
#include <QSignalSpy>
#include <QtTest>

using namespace qarn_personMgr;
using qarn_data::PersonInfo;
using qarn_worker::SystemAssistant;

class tst_FacePhotos : public QObject, protected FaceFixture
{
    Q_OBJECT
private slots:
    void init() { open(); }
    void cleanup() { close(); }

    void emptiesTheSlotForARefusedFile_data();
    void emptiesTheSlotForARefusedFile();
    void refusesAHugePictureByItsHeader();
    void storesAFreshJpegOfTheFullSize();
    void storesAPngAsJpeg();
    void keepsWhatNoJpegCanHold();
    void standsPortraitPhotosUpright();
    void leavesUndecodableStoredImagesEmpty();
    void takesEverySample_data();
    void takesEverySample();
};

void tst_FacePhotos::emptiesTheSlotForARefusedFile_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray good = plainPicture(Qt::red, QSize(300, 300));
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text") << QByteArray("this is no picture");
    QTest::newRow("cut in its header") << good.left(20);
    QTest::newRow("start mark only") << good.left(2);
    QTest::newRow("no scan") << good.left(good.indexOf(QByteArray("\xff\xda", 2)));
    QTest::newRow("svg") << QByteArray("<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>");
}

void tst_FacePhotos::emptiesTheSlotForARefusedFile()
{
    QFETCH(QByteArray, bytes);
    const QString path = m_directory->filePath("bad.jpg");
    writeFile(path, bytes);
    QSignalSpy alerts(&SystemAssistant::instance(), &SystemAssistant::signalMessageAlert);
    m_slot->setPersonInfo(PersonInfo());
    choose(path);
    QVERIFY(child<QLabel>(m_slot, "label")->isVisible());
    PersonInfo person = m_three;
    m_slot->getPersonInfo(person);
    QVERIFY(person.faceImage1.isEmpty());
    QCoreApplication::processEvents();
    QCOMPARE(alerts.count(), 0);
}

void tst_FacePhotos::refusesAHugePictureByItsHeader()
{
    const QString path = m_directory->filePath("bomb.jpg");
    writeFile(path, jpegClaiming(65500, 65500));
    m_slot->setPersonInfo(PersonInfo());
    QElapsedTimer timer;
    timer.start();
    choose(path);
    QVERIFY(timer.elapsed() < 5000);
    QVERIFY(child<QLabel>(m_slot, "label")->isVisible());
    PersonInfo stored;
    stored.faceImage1 = jpegClaiming(65500, 65500);
    m_slot->setPersonInfo(stored);
    QVERIFY(child<QLabel>(m_slot, "label")->isVisible());
}

void tst_FacePhotos::storesAFreshJpegOfTheFullSize()
{
    const QString path = m_directory->filePath("face.jpg");
    QImage image(2000, 1500, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    QByteArray best;
    QBuffer buffer(&best);
    buffer.open(QIODevice::WriteOnly);
    QVERIFY(image.save(&buffer, "jpg", 100));
    writeFile(path, best);
    m_slot->setPersonInfo(PersonInfo());
    m_slot->setCurIndex(1);
    choose(path);
    PersonInfo person;
    m_slot->getPersonInfo(person);
    QPixmap asDecoded;
    QVERIFY(asDecoded.loadFromData(best));
    QCOMPARE(person.faceImage2, encoded(asDecoded.toImage())); // default quality, neither scaled nor cropped
    QVERIFY(person.faceImage2 != best);
    QVERIFY(person.faceImage1.isEmpty() && person.faceImage3.isEmpty());
}

void tst_FacePhotos::storesAPngAsJpeg()
{
    const QString path = m_directory->filePath("really_png.jpg");
    writeFile(path, plainPicture(Qt::magenta, QSize(70, 50), "png"));
    m_slot->setPersonInfo(PersonInfo());
    choose(path);
    QVERIFY(similar(shown(*m_slot), Qt::magenta));
    PersonInfo person;
    m_slot->getPersonInfo(person);
    QVERIFY(person.faceImage1.startsWith("\xff\xd8\xff"));
    QCOMPARE(QImage::fromData(person.faceImage1, "jpg").size(), QSize(70, 50));
}

void tst_FacePhotos::keepsWhatNoJpegCanHold()
{
    PersonInfo person;
    person.faceImage1 = plainPicture(Qt::magenta, QSize(66000, 8), "png");
    const QByteArray asItCame = person.faceImage1;
    m_slot->setPersonInfo(person);
    QVERIFY(similar(shown(*m_slot), Qt::magenta));
    m_slot->getPersonInfo(person);
    QCOMPARE(person.faceImage1, asItCame);
}

void tst_FacePhotos::standsPortraitPhotosUpright()
{
    // Red above blue, written lying on its side with "turn right" in the EXIF block, as a phone does.
    QImage lying(80, 60, QImage::Format_RGB32);
    lying.fill(Qt::blue);
    for (int x = 0; x < 40; ++x) {
        for (int y = 0; y < 60; ++y)
            lying.setPixelColor(x, y, Qt::red);
    }
    static const char exif[] = "\xff\xe1\x00\x22"
                               "Exif\0\0II*\0\x08\0\0\0\x01\0\x12\x01\x03\0\x01\0\0\0\x06\0\0\0\0\0\0\0";
    QByteArray photo = encoded(lying);
    photo.insert(2, QByteArray(exif, sizeof(exif) - 1));
    PersonInfo person;
    person.faceImage1 = photo;
    m_slot->setPersonInfo(person);
    const QImage picture = m_slot->grab().toImage();
    QVERIFY(similar(picture.pixelColor(83, 20), Qt::red));
    QVERIFY(similar(picture.pixelColor(83, 200), Qt::blue));
    m_slot->getPersonInfo(person);
    const QImage stored = QImage::fromData(person.faceImage1);
    QCOMPARE(stored.size(), QSize(60, 80));
    QVERIFY(similar(stored.pixelColor(30, 10), Qt::red));
    QVERIFY(similar(stored.pixelColor(30, 70), Qt::blue));
}

void tst_FacePhotos::leavesUndecodableStoredImagesEmpty()
{
    m_three.faceImage2 = "rubbish";
    m_slot->setPersonInfo(m_three);
    m_slot->setCurIndex(1);
    QVERIFY(child<QLabel>(m_slot, "label")->isVisible());
    m_slot->getPersonInfo(m_three);
    QVERIFY(m_three.faceImage2.isEmpty());
    QVERIFY(!m_three.faceImage1.isEmpty() && !m_three.faceImage3.isEmpty());
}

void tst_FacePhotos::takesEverySample_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QSize>("size"); ///< empty: no picture
    SKIP_WITHOUT_SAMPLES();
    QFile list(samplePath("faces.tsv"));
    QVERIFY(list.open(QIODevice::ReadOnly));
    list.readLine();
    while (!list.atEnd()) {
        const QStringList columns = QString::fromUtf8(list.readLine()).split('\t');
        const QSize size(columns.at(4).toInt(), columns.at(5).toInt());
        const bool liesOnSide = QRegularExpression("orientation_[5-8]").match(columns.at(0)).hasMatch();
        QTest::newRow(columns.at(0).toUtf8().constData())
            << samplePath("faces/" + columns.at(0)) << (liesOnSide ? size.transposed() : size);
    }
}

void tst_FacePhotos::takesEverySample()
{
    QFETCH(QString, path);
    QFETCH(QSize, size);
    m_slot->setPersonInfo(PersonInfo());
    choose(path);
    QCOMPARE(child<QLabel>(m_slot, "label")->isVisible(), size.isEmpty());
    PersonInfo person;
    m_slot->getPersonInfo(person);
    QCOMPARE(person.faceImage1.isEmpty(), size.isEmpty());
    if (!size.isEmpty())
        QCOMPARE(QImage::fromData(person.faceImage1, "jpg").size(), size);
}

QTEST_MAIN(tst_FacePhotos)
#include "tst_FacePhotos.moc"
