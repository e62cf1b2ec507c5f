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

class tst_FaceImageModifyWt : public QObject, protected FaceFixture
{
    Q_OBJECT
private slots:
    void init() { open(); }
    void cleanup() { close(); }

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
    void deletesOnlyTheShownSlot();
    void keepsWhatIsNotConfirmed();
};

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

QTEST_MAIN(tst_FaceImageModifyWt)
#include "tst_FaceImageModifyWt.moc"
