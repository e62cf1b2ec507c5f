#include "editor/FaceImageModifyWt.h"

#include "EditorTools.h"

#include <qarn_data/PersonInfo.h>
#include <qarn_worker/SystemAssistant.h>

#include <QElapsedTimer>
#include <QFileDialog>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using namespace qarn_personMgr;
using qarn_data::PersonInfo;
using qarn_worker::SystemAssistant;

namespace
{
const QString ChangeTip = QStringLiteral("Click to change face Iamge");
const QPoint Middle(83, 109);

QPushButton* deleteBt(const FaceImageModifyWt& slot)
{
    return slot.findChild<QPushButton*>();
}

QColor shown(FaceImageModifyWt& slot)
{
    return slot.grab().toImage().pixelColor(Middle);
}

QByteArray writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
    return bytes;
}

/// A small JPEG whose header promises another size.
QByteArray jpegClaiming(quint16 width, quint16 height)
{
    QByteArray bytes = plainPicture(Qt::red);
    const int frame = bytes.indexOf(QByteArray("\xff\xc0\x00", 3));
    const char size[] = {char(height >> 8), char(height & 0xff), char(width >> 8), char(width & 0xff)};
    return bytes.replace(frame + 5, 4, QByteArray(size, 4));
}
} // namespace

class tst_FaceImageModifyWt : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void hasItsSizeAndPlaces();
    void showsThePlaceholderOfEmptySlots();
    void showsOneSlotAtATime();
    void ignoresSlotsThatAreNot();
    void stretchesThePicture();
    void showsAChosenFileAtOnceButItsButtonLater();
    void asksWithTheRightWords();
    void opensByAnyButtonAndByKey_data();
    void opensByAnyButtonAndByKey();
    void cancellingChangesNothing();
    void remembersTheDirectoryForAllSlots();
    void emptiesTheSlotForARefusedFile_data();
    void emptiesTheSlotForARefusedFile();
    void refusesAHugePictureByItsHeader();
    void storesAFreshJpegOfTheFullSize();
    void storesAPngAsJpeg();
    void keepsWhatNoJpegCanHold();
    void standsPortraitPhotosUpright();
    void leavesUndecodableStoredImagesEmpty();
    void deletesOnlyTheShownSlot();
    void keepsWhatIsNotConfirmed();
    void takesEverySample_data();
    void takesEverySample();

private:
    void choose(const QString& path);

    std::unique_ptr<QWidget> m_window;
    FaceImageModifyWt* m_slot = nullptr;
    std::unique_ptr<QTemporaryDir> m_directory;
    ModalDriver m_modal;
    PersonInfo m_three; ///< red, green and blue pictures
};

void tst_FaceImageModifyWt::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    m_window = std::make_unique<QWidget>();
    m_window->resize(200, 240);
    m_slot = new FaceImageModifyWt(m_window.get());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    m_three.faceImage1 = plainPicture(Qt::red);
    m_three.faceImage2 = plainPicture(Qt::green);
    m_three.faceImage3 = plainPicture(Qt::blue);
}

void tst_FaceImageModifyWt::cleanup()
{
    QCOMPARE(m_modal.pending(), 0);
    m_window.reset();
}

void tst_FaceImageModifyWt::choose(const QString& path)
{
    expectFile(m_modal, path);
    QTest::mouseClick(m_slot, Qt::LeftButton, {}, Middle);
}

void tst_FaceImageModifyWt::hasItsSizeAndPlaces()
{
    QCOMPARE(m_slot->size(), QSize(166, 218));
    QCOMPARE(deleteBt(*m_slot)->geometry(), QRect(146, 2, 18, 18));
    QCOMPARE(deleteBt(*m_slot)->toolTip(), QString("delete"));
    QVERIFY(!deleteBt(*m_slot)->isVisible());
    QCOMPARE(child<QLabel>(m_slot, "label")->text(), QString("Add Face"));
}

void tst_FaceImageModifyWt::showsThePlaceholderOfEmptySlots()
{
    m_slot->setPersonInfo(PersonInfo());
    const QImage placeholder(":/personMgr_images/images/default_face_image.png");
    for (int i = 0; i < 3; ++i) {
        m_slot->setCurIndex(i);
        QVERIFY(child<QLabel>(m_slot, "label")->isVisible());
        QVERIFY(!deleteBt(*m_slot)->isVisible());
        QCOMPARE(m_slot->toolTip(), QString());
        if (!placeholder.isNull())
            QCOMPARE(m_slot->grab().toImage().pixelColor(4, 4), placeholder.pixelColor(4, 4));
    }
    PersonInfo person = m_three;
    m_slot->getPersonInfo(person);
    QVERIFY(person.faceImage1.isNull() && person.faceImage2.isNull() && person.faceImage3.isNull());
}

void tst_FaceImageModifyWt::showsOneSlotAtATime()
{
    m_slot->setPersonInfo(m_three);
    QVERIFY(similar(shown(*m_slot), Qt::red));
    QVERIFY(!child<QLabel>(m_slot, "label")->isVisible());
    QVERIFY(deleteBt(*m_slot)->isVisible());
    QCOMPARE(m_slot->toolTip(), ChangeTip);
    m_slot->setCurIndex(1);
    QVERIFY(similar(shown(*m_slot), Qt::green));
    m_slot->setCurIndex(2);
    QVERIFY(similar(shown(*m_slot), Qt::blue));
    m_slot->setPersonInfo(m_three);
    QVERIFY(similar(shown(*m_slot), Qt::red)); // the first one again
}

void tst_FaceImageModifyWt::ignoresSlotsThatAreNot()
{
    m_slot->setCurIndex(0); // no record yet
    QVERIFY(!deleteBt(*m_slot)->isVisible());
    m_slot->setPersonInfo(m_three);
    m_slot->setCurIndex(1);
    m_slot->setCurIndex(-1);
    m_slot->setCurIndex(3);
    QVERIFY(similar(shown(*m_slot), Qt::green));
}

void tst_FaceImageModifyWt::stretchesThePicture()
{
    QImage wide(400, 100, QImage::Format_RGB32);
    wide.fill(Qt::yellow);
    PersonInfo person;
    person.faceImage1 = encoded(wide);
    m_slot->setPersonInfo(person);
    const QImage image = m_slot->grab().toImage();
    for (const QPoint& corner : {QPoint(1, 1), QPoint(1, 216), QPoint(164, 216)})
        QVERIFY(similar(image.pixelColor(corner), Qt::yellow));
}

void tst_FaceImageModifyWt::showsAChosenFileAtOnceButItsButtonLater()
{
    const QString path = m_directory->filePath("face.jpg");
    writeFile(path, plainPicture(Qt::cyan));
    m_slot->setPersonInfo(PersonInfo());
    choose(path);
    QVERIFY(similar(shown(*m_slot), Qt::cyan));
    QVERIFY(!child<QLabel>(m_slot, "label")->isVisible());
    QVERIFY(!deleteBt(*m_slot)->isVisible());
    QCOMPARE(m_slot->toolTip(), QString());
    m_slot->setCurIndex(1);
    m_slot->setCurIndex(0);
    QVERIFY(deleteBt(*m_slot)->isVisible());
    QCOMPARE(m_slot->toolTip(), ChangeTip);
}

void tst_FaceImageModifyWt::asksWithTheRightWords()
{
    QStringList captions;
    const auto look = [&] {
        m_modal.expect([&](QWidget* window) {
            captions.append(window->windowTitle());
            auto* dialog = qobject_cast<QFileDialog*>(window);
            QVERIFY(dialog != nullptr);
            QCOMPARE(dialog->nameFilters(), QStringList{"Images (*.jpg)"});
            dialog->reject();
        });
        QTest::mouseClick(m_slot, Qt::LeftButton, {}, Middle);
    };
    m_slot->setPersonInfo(PersonInfo());
    look();
    m_slot->setPersonInfo(m_three);
    look();
    QCOMPARE(captions, (QStringList{"Select face image", "Change face image"}));
}

void tst_FaceImageModifyWt::opensByAnyButtonAndByKey_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<int>("key");
    QTest::newRow("left") << int(Qt::LeftButton) << 0;
    QTest::newRow("right") << int(Qt::RightButton) << 0;
    QTest::newRow("middle") << int(Qt::MiddleButton) << 0;
    QTest::newRow("space") << 0 << int(Qt::Key_Space);
    QTest::newRow("return") << 0 << int(Qt::Key_Return);
}

void tst_FaceImageModifyWt::opensByAnyButtonAndByKey()
{
    QFETCH(int, button);
    QFETCH(int, key);
    const QString path = m_directory->filePath("face.jpg");
    writeFile(path, plainPicture(Qt::cyan));
    m_slot->setPersonInfo(PersonInfo());
    expectFile(m_modal, path);
    if (button != 0)
        QTest::mouseClick(m_slot, Qt::MouseButton(button), {}, Middle);
    else
        QTest::keyClick(m_slot, Qt::Key(key));
    QVERIFY(similar(shown(*m_slot), Qt::cyan));
}

void tst_FaceImageModifyWt::cancellingChangesNothing()
{
    const QString path = m_directory->filePath("face.jpg");
    writeFile(path, plainPicture(Qt::cyan));
    m_slot->setPersonInfo(m_three);
    m_slot->setCurIndex(2);
    choose(path);
    QVERIFY(QDir(m_directory->path()).mkdir("other"));
    QString directory;
    for (int i = 0; i < 2; ++i) {
        m_modal.expect([&](QWidget* window) {
            auto* dialog = qobject_cast<QFileDialog*>(window);
            directory = dialog->directory().absolutePath();
            dialog->setDirectory(m_directory->filePath("other"));
            QTest::keyClick(dialog, Qt::Key_Escape);
        });
        QTest::mouseClick(m_slot, Qt::LeftButton, {}, Middle);
        QCOMPARE(directory, QDir(m_directory->path()).absolutePath());
    }
    QVERIFY(similar(shown(*m_slot), Qt::cyan));
}

void tst_FaceImageModifyWt::remembersTheDirectoryForAllSlots()
{
    const QString path = m_directory->filePath("face.jpg");
    writeFile(path, plainPicture(Qt::cyan));
    m_slot->setPersonInfo(PersonInfo());
    choose(path);
    delete m_slot; // the editor is closed
    m_slot = new FaceImageModifyWt(m_window.get());
    m_slot->setPersonInfo(PersonInfo());
    m_slot->show();
    QString directory;
    m_modal.expect([&](QWidget* window) {
        directory = qobject_cast<QFileDialog*>(window)->directory().absolutePath();
        QTest::keyClick(window, Qt::Key_Escape);
    });
    QTest::mouseClick(m_slot, Qt::LeftButton, {}, Middle);
    QCOMPARE(directory, QDir(m_directory->path()).absolutePath());
}

void tst_FaceImageModifyWt::emptiesTheSlotForARefusedFile_data()
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

void tst_FaceImageModifyWt::emptiesTheSlotForARefusedFile()
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

void tst_FaceImageModifyWt::refusesAHugePictureByItsHeader()
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

void tst_FaceImageModifyWt::storesAFreshJpegOfTheFullSize()
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

void tst_FaceImageModifyWt::storesAPngAsJpeg()
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

void tst_FaceImageModifyWt::keepsWhatNoJpegCanHold()
{
    PersonInfo person;
    person.faceImage1 = plainPicture(Qt::magenta, QSize(66000, 8), "png");
    const QByteArray asItCame = person.faceImage1;
    m_slot->setPersonInfo(person);
    QVERIFY(similar(shown(*m_slot), Qt::magenta));
    m_slot->getPersonInfo(person);
    QCOMPARE(person.faceImage1, asItCame);
}

void tst_FaceImageModifyWt::standsPortraitPhotosUpright()
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

void tst_FaceImageModifyWt::leavesUndecodableStoredImagesEmpty()
{
    m_three.faceImage2 = "rubbish";
    m_slot->setPersonInfo(m_three);
    m_slot->setCurIndex(1);
    QVERIFY(child<QLabel>(m_slot, "label")->isVisible());
    m_slot->getPersonInfo(m_three);
    QVERIFY(m_three.faceImage2.isEmpty());
    QVERIFY(!m_three.faceImage1.isEmpty() && !m_three.faceImage3.isEmpty());
}

void tst_FaceImageModifyWt::deletesOnlyTheShownSlot()
{
    m_slot->setPersonInfo(m_three);
    m_slot->setCurIndex(1);
    QString question;
    m_modal.expect([&](QWidget* window) {
        question = child<QLabel>(window, "text")->text();
        click(window, "okBt");
    });
    QTest::mouseClick(deleteBt(*m_slot), Qt::LeftButton); // opens no file dialog
    QCOMPARE(question, QString("Do you want to delete the current face image?"));
    QVERIFY(!deleteBt(*m_slot)->isVisible());
    QVERIFY(child<QLabel>(m_slot, "label")->isVisible());
    QCOMPARE(m_slot->toolTip(), QString());
    PersonInfo person;
    m_slot->getPersonInfo(person);
    QVERIFY(person.faceImage2.isEmpty());
    QVERIFY(similar(QImage::fromData(person.faceImage1).pixelColor(30, 40), Qt::red));
    QVERIFY(similar(QImage::fromData(person.faceImage3).pixelColor(30, 40), Qt::blue));
}

void tst_FaceImageModifyWt::keepsWhatIsNotConfirmed()
{
    m_slot->setPersonInfo(m_three);
    expectAnswer(m_modal, "cancelBt");
    QTest::mouseClick(deleteBt(*m_slot), Qt::LeftButton);
    QVERIFY(similar(shown(*m_slot), Qt::red));
    QVERIFY(deleteBt(*m_slot)->isVisible());
}

void tst_FaceImageModifyWt::takesEverySample_data()
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

void tst_FaceImageModifyWt::takesEverySample()
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

QTEST_MAIN(tst_FaceImageModifyWt)
#include "tst_FaceImageModifyWt.moc"
