#include "table/PersonInfoWt.h"

#include "ModalDriver.h"
#include "TestPersons.h"
#include "TestPictures.h"
#include "TestStore.h"

#include <qarn_base/BaseTools.h>
#include <qarn_data/PersonData.h>

#include <QCheckBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

using namespace qarn_personMgr;
using qarn_base::BaseTools;
using qarn_data::PersonData;
using qarn_data::PersonInfo;

class tst_PersonInfoWt : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void hasItsWidgets();
    void showsTheRecord();
    void showsTheSex_data();
    void showsTheSex();
    void showsTheValidity_data();
    void showsTheValidity();
    void showsTheFace();
    void stretchesTheFaceToTheLabel();
    void showsNothingForABadFace();
    void keepsTheMarkOfTheSamePersonOnly();
    void reportsAClickOnTheBox();
    void followsTheMouse();
    void selectsOnAClick();
    void keepsTheSelectedStyle();
    void ignoresUnknownStyles();
    void limitsTheTextColumns();
    void followsItsOrganization();
    void editsByButtonAndDoubleClick();
    void asksBeforeDeleting();
    void deletesThePersonThatWasAskedAbout();
    void survivesItsEndWhileADialogIsOpen();

private:
    template <class T>
    T* child(const char* name) const
    {
        return m_row->findChild<T*>(QLatin1String(name));
    }
    QString text(const char* name) const { return child<QLabel>(name)->text(); }
    QString background() const { return m_row->styleSheet().section(QLatin1Char(';'), 0, 0); }
    const QString normal = QStringLiteral("QWidget{background-color:#0b121e");
    const QString hovered = QStringLiteral("QWidget{background-color:#213147");
    const QString selected = QStringLiteral("QWidget{background-color:#293a56");

    std::unique_ptr<TestStore> m_store;
    std::unique_ptr<QWidget> m_window;
    QPointer<PersonInfoWt> m_row;
    QString m_root;
};

void tst_PersonInfoWt::init()
{
    m_store = std::make_unique<TestStore>();
    m_root = PersonData::instance().getRootOrganizationId();
    m_window = std::make_unique<QWidget>();
    m_window->resize(1000, 400);
    m_row = new PersonInfoWt(makePerson("1", "Ada", m_root), m_window.get());
    m_row->setGeometry(0, 200, 1000, 138);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    QTest::mouseMove(m_window.get(), QPoint(500, 50));
    QTRY_COMPARE(background(), normal);
}

void tst_PersonInfoWt::cleanup()
{
    m_window.reset();
    m_store.reset();
}

void tst_PersonInfoWt::hasItsWidgets()
{
    QCOMPARE(m_row->objectName(), QStringLiteral("qarn_personMgr__PersonInfoWt"));
    QCOMPARE(m_row->minimumHeight(), 138);
    QCOMPARE(m_row->maximumHeight(), 138);
    QCOMPARE(m_row->layout()->objectName(), QStringLiteral("horizontalLayout_4"));
    QCOMPARE(m_row->layout()->contentsMargins(), QMargins(10, 9, 0, 9));
    QCOMPARE(m_row->layout()->spacing(), 0);
    QCOMPARE(child<QCheckBox>("orderNum")->width(), 115);
    QCOMPARE(child<QLabel>("faceImage")->size(), QSize(97, 108));
    for (const char* name : {"serialNum", "name", "sex", "organization", "isValid"}) {
        QVERIFY2(child<QLabel>(name)->wordWrap(), name);
        QCOMPARE(child<QLabel>(name)->alignment(), Qt::AlignCenter);
    }
    QCOMPARE(child<QPushButton>("editBt")->size(), QSize(18, 18));
    QCOMPARE(child<QPushButton>("deleteBt")->size(), QSize(18, 18));
    QCOMPARE(child<QPushButton>("editBt")->toolTip(), QStringLiteral("edit"));
    QCOMPARE(child<QPushButton>("deleteBt")->toolTip(), QStringLiteral("delete"));
    QCOMPARE(child<QPushButton>("deleteBt")->x() - child<QPushButton>("editBt")->geometry().right() - 1, 12);
}

void tst_PersonInfoWt::showsTheRecord()
{
    m_row->setOrderNum(51);
    QCOMPARE(child<QCheckBox>("orderNum")->text(), QStringLiteral("51"));
    QCOMPARE(text("serialNum"), QStringLiteral("S1"));
    QCOMPARE(text("name"), QStringLiteral("Ada"));
    QCOMPARE(text("organization"), PersonData::instance().getOrganizationName(m_root));
    QCOMPARE(m_row->getPersonInfo().id, QStringLiteral("1"));

    PersonInfo other = makePerson("2", QString::fromUtf8("<b>欧阳</b> \n שלום"), "unknown");
    m_row->setPersonInfo(other);
    QCOMPARE(text("name"), other.name);
    QCOMPARE(text("organization"), QString());
    QCOMPARE(m_row->getPersonInfo().serialNum, QStringLiteral("S2"));
}

void tst_PersonInfoWt::showsTheSex_data()
{
    QTest::addColumn<int>("sex");
    QTest::addColumn<bool>("male");
    QTest::newRow("male") << 1 << true;
    QTest::newRow("female") << 2 << false;
    QTest::newRow("unknown") << 0 << false;
    QTest::newRow("other") << -7 << false;
}

void tst_PersonInfoWt::showsTheSex()
{
    QFETCH(int, sex);
    QFETCH(bool, male);
    PersonInfo person = makePerson("1", "Ada", m_root);
    person.sex = sex;
    m_row->setPersonInfo(person);
    QCOMPARE(text("sex"), BaseTools::instance().strSex(male));
}

void tst_PersonInfoWt::showsTheValidity_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");
    QTest::addColumn<bool>("valid");
    QTest::newRow("around now") << -3600 << 3600 << true;
    QTest::newRow("ends now") << -3600 << 0 << true;
    QTest::newRow("starts now") << 0 << 3600 << true;
    QTest::newRow("starts soon") << 5 << 3600 << false;
    QTest::newRow("ended") << -3600 << -5 << false;
}

void tst_PersonInfoWt::showsTheValidity()
{
    QFETCH(int, start);
    QFETCH(int, end);
    QFETCH(bool, valid);
    PersonInfo person = makePerson("1", "Ada", m_root);
    // Early in a second, so that "now" is the same second in the row.
    QTRY_VERIFY_WITH_TIMEOUT(QTime::currentTime().msec() < 500, 2000);
    const QDateTime now = QDateTime::currentDateTime();
    person.validStartTime = now.addSecs(start);
    person.validEndTime = now.addSecs(end);
    m_row->setPersonInfo(person);
    QCOMPARE(text("isValid"), BaseTools::instance().strValid(valid));
}

void tst_PersonInfoWt::showsTheFace()
{
    PersonInfo person = makePerson("1", "Ada", m_root);
    QVERIFY(child<QLabel>("faceImage")->pixmap(Qt::ReturnByValue).isNull());
    person.faceImage2 = jpeg(Qt::blue);
    m_row->setPersonInfo(person);
    QVERIFY2(child<QLabel>("faceImage")->pixmap(Qt::ReturnByValue).isNull(), "only the first image counts");
    person.faceImage1 = jpeg(Qt::red);
    m_row->setPersonInfo(person);
    const QImage shown = child<QLabel>("faceImage")->grab().toImage();
    QVERIFY(shown.pixelColor(shown.rect().center()).red() > 240);
    person.faceImage1.clear();
    m_row->setPersonInfo(person);
    QVERIFY(child<QLabel>("faceImage")->pixmap(Qt::ReturnByValue).isNull());
}

void tst_PersonInfoWt::stretchesTheFaceToTheLabel()
{
    PersonInfo person = makePerson("1", "Ada", m_root);
    person.faceImage1 = jpeg(Qt::red, QSize(1000, 20));
    m_row->setPersonInfo(person);
    const QPixmap face = child<QLabel>("faceImage")->pixmap(Qt::ReturnByValue);
    QCOMPARE(face.size(), QSize(97, 108) * m_row->devicePixelRatioF());
}

void tst_PersonInfoWt::showsNothingForABadFace()
{
    PersonInfo person = makePerson("1", "Ada", m_root);
    person.faceImage1 = jpeg(Qt::red);
    m_row->setPersonInfo(person);
    person.faceImage1 = "no picture";
    m_row->setPersonInfo(person);
    QVERIFY(child<QLabel>("faceImage")->pixmap(Qt::ReturnByValue).isNull());
    QCOMPARE(child<QLabel>("faceImage")->text(), QString());
    QCOMPARE(text("name"), QStringLiteral("Ada"));
}

void tst_PersonInfoWt::keepsTheMarkOfTheSamePersonOnly()
{
    m_row->setChecked(true);
    m_row->setPersonInfo(makePerson("1", "Ada, renamed", m_root));
    QVERIFY(m_row->isChecked());
    m_row->setPersonInfo(makePerson("2", "Ada", m_root));
    QVERIFY(!m_row->isChecked());
}

void tst_PersonInfoWt::reportsAClickOnTheBox()
{
    QSignalSpy checks(m_row, &PersonInfoWt::signalCheckState);
    QSignalSpy selections(m_row, &PersonInfoWt::signalSelected);
    m_row->setChecked(true);
    m_row->setChecked(false);
    QCOMPARE(checks.count(), 0);
    auto* box = child<QCheckBox>("orderNum");
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    QTest::keyClick(box, Qt::Key_Space);
    QCOMPARE(checks.count(), 2);
    QCOMPARE(checks.at(0).at(0).toBool(), true);
    QCOMPARE(checks.at(1).at(0).toBool(), false);
    QCOMPARE(selections.count(), 0);
}

void tst_PersonInfoWt::followsTheMouse()
{
    QTest::mouseMove(m_window.get(), QPoint(500, 210));
    QTRY_COMPARE(background(), hovered);
    m_row->setSelected(true);
    QCOMPARE(background(), selected);
    m_row->setSelected(false);
    QCOMPARE(background(), hovered);
    QTest::mouseMove(m_window.get(), QPoint(500, 50));
    QTRY_COMPARE(background(), normal);
    m_row->setSelected(true);
    m_row->setSelected(false);
    QCOMPARE(background(), normal);
}

void tst_PersonInfoWt::selectsOnAClick()
{
    QString styleAtSignal;
    connect(m_row, &PersonInfoWt::signalSelected, m_row, [&](PersonInfoWt* row) {
        QCOMPARE(row, m_row.data());
        styleAtSignal = background();
    });
    QTest::mouseClick(child<QLabel>("name"), Qt::LeftButton);
    QVERIFY(!styleAtSignal.isEmpty() && styleAtSignal != selected);
    QCOMPARE(background(), selected);
    styleAtSignal.clear();
    QTest::mouseClick(m_row, Qt::LeftButton, {}, QPoint(500, 4));
    QCOMPARE(styleAtSignal, selected);
    QCOMPARE(background(), selected);
}

void tst_PersonInfoWt::keepsTheSelectedStyle()
{
    m_row->setSelected(true);
    QTest::mouseMove(m_window.get(), QPoint(500, 210));
    QTest::qWait(1);
    QCOMPARE(background(), selected);
    QTest::mouseMove(m_window.get(), QPoint(500, 50));
    QTest::qWait(1);
    QCOMPARE(background(), selected);
}

void tst_PersonInfoWt::ignoresUnknownStyles()
{
    m_row->setStyleState(PersonInfoWt::SelectedStyle);
    for (int state : {-1, 3, 1000}) {
        m_row->setStyleState(state);
        QCOMPARE(background(), selected);
    }
    m_row->setStyleState(0);
    QCOMPARE(m_row->styleSheet(),
             QStringLiteral("QWidget{background-color:#0b121e;border-bottom: 1px solid #213147;}QLabel "
                            "{color:#6c7586; border:0px;} QCheckBox{color:#6c7586; border:0px;}"));
    m_row->setStyleState(1);
    QCOMPARE(m_row->styleSheet(),
             QStringLiteral("QWidget{background-color:#213147;border-bottom: 1px solid #213147;}QLabel "
                            "{color:#6c7586; border:0px;} QCheckBox{color:#6c7586; border:0px;}"));
    m_row->setStyleState(2);
    QCOMPARE(m_row->styleSheet(),
             QStringLiteral("QWidget{background-color:#293a56;border-bottom: 1px solid #293a56;}QLabel "
                            "{color:#ccd3dd; border:0px;} QCheckBox{color:#ccd3dd; border:0px;}"));
}

void tst_PersonInfoWt::limitsTheTextColumns()
{
    m_row->setPersonInfo(makePerson("2", QString(200, QLatin1Char('W')), m_root));
    m_row->resize(1003, 138);
    for (const char* name : {"serialNum", "name", "organization"})
        QCOMPARE(child<QLabel>(name)->maximumWidth(), 125);
    for (const char* name : {"sex", "isValid"})
        QCOMPARE(child<QLabel>(name)->maximumWidth(), QWIDGETSIZE_MAX);
    QTRY_VERIFY(child<QLabel>("name")->width() <= 125);
    m_row->resize(10, 138);
    QCOMPARE(child<QLabel>("name")->maximumWidth(), 0);
}

void tst_PersonInfoWt::followsItsOrganization()
{
    m_row->updateOrganization("another", "Other");
    QCOMPARE(text("organization"), PersonData::instance().getOrganizationName(m_root));
    m_row->updateOrganization(m_root, "Renamed");
    QCOMPARE(text("organization"), QStringLiteral("Renamed"));
}

void tst_PersonInfoWt::editsByButtonAndDoubleClick()
{
    QVERIFY(PersonData::instance().addPersons({m_row->getPersonInfo()}));
    ModalDriver driver;
    for (int way = 0; way < 3; ++way) {
        QString shown;
        driver.expect([&](QWidget* window) {
            shown = window->metaObject()->className();
            QCOMPARE(window->parentWidget(), m_window.get());
            QCOMPARE(window->findChild<QLineEdit*>("name")->text(), QStringLiteral("Ada"));
            QTest::keyClick(window, Qt::Key_Escape);
        });
        if (way == 0)
            QTest::mouseClick(child<QPushButton>("editBt"), Qt::LeftButton);
        else if (way == 1)
            QTest::mouseDClick(child<QLabel>("name"), Qt::LeftButton);
        else
            QTest::mouseDClick(m_row, Qt::LeftButton, {}, QPoint(500, 4));
        QCOMPARE(driver.pending(), 0);
        QCOMPARE(shown, QStringLiteral("qarn_personMgr::PersonInfoModifyDlg"));
    }
    QVERIFY(m_window->findChildren<QDialog*>().isEmpty());
}

void tst_PersonInfoWt::asksBeforeDeleting()
{
    QVERIFY(PersonData::instance().addPersons({m_row->getPersonInfo()}));
    ModalDriver driver;
    QString question;
    const auto answer = [&](const char* button) {
        driver.expect([&question, button](QWidget* window) {
            question = window->findChild<QLabel*>("text")->text();
            if (button == nullptr)
                QTest::keyClick(window, Qt::Key_Escape);
            else
                QTest::mouseClick(window->findChild<QPushButton*>(QLatin1String(button)), Qt::LeftButton);
        });
        QTest::mouseClick(child<QPushButton>("deleteBt"), Qt::LeftButton);
        QCOMPARE(driver.pending(), 0);
    };
    answer("cancelBt");
    QCOMPARE(question, QStringLiteral("Do you want to delete the person: Ada?"));
    answer(nullptr);
    QCOMPARE(PersonData::instance().getAllPersons(false).count(), 1);
    answer("okBt");
    QCOMPARE(PersonData::instance().getAllPersons(false).count(), 0);
}

/// The page may turn under an open question.
void tst_PersonInfoWt::deletesThePersonThatWasAskedAbout()
{
    QVERIFY(
        PersonData::instance().addPersons({makePerson("1", "Ada", m_root), makePerson("2", "Bob", m_root)}));
    ModalDriver driver;
    driver.expect([this](QWidget* window) {
        m_row->setPersonInfo(makePerson("2", "Bob", m_root));
        QTest::mouseClick(window->findChild<QPushButton*>("okBt"), Qt::LeftButton);
    });
    QTest::mouseClick(child<QPushButton>("deleteBt"), Qt::LeftButton);
    const QList<PersonInfo> left = PersonData::instance().getAllPersons(false);
    QCOMPARE(left.count(), 1);
    QCOMPARE(left.first().name, QStringLiteral("Bob"));
}

void tst_PersonInfoWt::survivesItsEndWhileADialogIsOpen()
{
    ModalDriver driver;
    driver.expect([this](QWidget* window) {
        m_row->setParent(nullptr);
        m_row->deleteLater();
        QCoreApplication::sendPostedEvents(m_row, QEvent::DeferredDelete);
        QTest::keyClick(window, Qt::Key_Escape);
    });
    QTest::mouseClick(child<QPushButton>("editBt"), Qt::LeftButton);
    QCOMPARE(driver.pending(), 0);
    QTRY_VERIFY(m_row.isNull());
}

QTEST_MAIN(tst_PersonInfoWt)
#include "tst_PersonInfoWt.moc"
