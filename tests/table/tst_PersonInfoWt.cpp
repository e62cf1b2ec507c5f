#include "RowFixture.h"
#include "TestPictures.h"

#include <qarn_base/BaseTools.h>

#include <QCheckBox>
#include <QLayout>
#include <QPushButton>

using namespace qarn_personMgr;
using qarn_base::BaseTools;
using qarn_data::PersonData;
using qarn_data::PersonInfo;

class tst_PersonInfoWt : public QObject
{
    Q_OBJECT
private slots:
    void init() { m_fixture = std::make_unique<RowFixture>(); }
    void cleanup() { m_fixture.reset(); }

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
    void hasAStyleForEachState_data();
    void hasAStyleForEachState();
    void ignoresUnknownStyles();
    void limitsTheTextColumns();
    void followsItsOrganization();

private:
    std::unique_ptr<RowFixture> m_fixture;
};

void tst_PersonInfoWt::hasItsWidgets()
{
    QCOMPARE(m_fixture->row->objectName(), QStringLiteral("qarn_personMgr__PersonInfoWt"));
    QCOMPARE(m_fixture->row->minimumHeight(), 138);
    QCOMPARE(m_fixture->row->maximumHeight(), 138);
    QCOMPARE(m_fixture->row->layout()->objectName(), QStringLiteral("horizontalLayout_4"));
    QCOMPARE(m_fixture->row->layout()->contentsMargins(), QMargins(10, 9, 0, 9));
    QCOMPARE(m_fixture->row->layout()->spacing(), 0);
    QCOMPARE(m_fixture->child<QCheckBox>("orderNum")->width(), 115);
    QCOMPARE(m_fixture->child<QLabel>("faceImage")->size(), QSize(97, 108));
    for (const char* name : {"serialNum", "name", "sex", "organization", "isValid"}) {
        QVERIFY2(m_fixture->child<QLabel>(name)->wordWrap(), name);
        QCOMPARE(m_fixture->child<QLabel>(name)->alignment(), Qt::AlignCenter);
    }
    QCOMPARE(m_fixture->child<QPushButton>("editBt")->size(), QSize(18, 18));
    QCOMPARE(m_fixture->child<QPushButton>("deleteBt")->size(), QSize(18, 18));
    QCOMPARE(m_fixture->child<QPushButton>("editBt")->toolTip(), QStringLiteral("edit"));
    QCOMPARE(m_fixture->child<QPushButton>("deleteBt")->toolTip(), QStringLiteral("delete"));
    QCOMPARE(m_fixture->child<QPushButton>("deleteBt")->x() -
                 m_fixture->child<QPushButton>("editBt")->geometry().right() - 1,
             12);
}

void tst_PersonInfoWt::showsTheRecord()
{
    m_fixture->row->setOrderNum(51);
    QCOMPARE(m_fixture->child<QCheckBox>("orderNum")->text(), QStringLiteral("51"));
    QCOMPARE(m_fixture->text("serialNum"), QStringLiteral("S1"));
    QCOMPARE(m_fixture->text("name"), QStringLiteral("Ada"));
    QCOMPARE(m_fixture->text("organization"), PersonData::instance().getOrganizationName(m_fixture->root));
    QCOMPARE(m_fixture->row->getPersonInfo().id, QStringLiteral("1"));

    PersonInfo other = makePerson("2", QString::fromUtf8("<b>欧阳</b> \n שלום"), "unknown");
    m_fixture->row->setPersonInfo(other);
    QCOMPARE(m_fixture->text("name"), other.name);
    QCOMPARE(m_fixture->text("organization"), QString());
    QCOMPARE(m_fixture->row->getPersonInfo().serialNum, QStringLiteral("S2"));
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
    PersonInfo person = makePerson("1", "Ada", m_fixture->root);
    person.sex = sex;
    m_fixture->row->setPersonInfo(person);
    QCOMPARE(m_fixture->text("sex"), BaseTools::instance().strSex(male));
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
    PersonInfo person = makePerson("1", "Ada", m_fixture->root);
    // Early in a second, so that "now" is the same second in the row.
    QTRY_VERIFY_WITH_TIMEOUT(QTime::currentTime().msec() < 500, 2000);
    const QDateTime now = QDateTime::currentDateTime();
    person.validStartTime = now.addSecs(start);
    person.validEndTime = now.addSecs(end);
    m_fixture->row->setPersonInfo(person);
    QCOMPARE(m_fixture->text("isValid"), BaseTools::instance().strValid(valid));
}

void tst_PersonInfoWt::showsTheFace()
{
    PersonInfo person = makePerson("1", "Ada", m_fixture->root);
    QVERIFY(m_fixture->child<QLabel>("faceImage")->pixmap(Qt::ReturnByValue).isNull());
    person.faceImage2 = jpeg(Qt::blue);
    m_fixture->row->setPersonInfo(person);
    QVERIFY2(m_fixture->child<QLabel>("faceImage")->pixmap(Qt::ReturnByValue).isNull(),
             "only the first image counts");
    person.faceImage1 = jpeg(Qt::red);
    m_fixture->row->setPersonInfo(person);
    const QImage shown = m_fixture->child<QLabel>("faceImage")->grab().toImage();
    QVERIFY(shown.pixelColor(shown.rect().center()).red() > 240);
    person.faceImage1.clear();
    m_fixture->row->setPersonInfo(person);
    QVERIFY(m_fixture->child<QLabel>("faceImage")->pixmap(Qt::ReturnByValue).isNull());
}

void tst_PersonInfoWt::stretchesTheFaceToTheLabel()
{
    PersonInfo person = makePerson("1", "Ada", m_fixture->root);
    person.faceImage1 = jpeg(Qt::red, QSize(1000, 20));
    m_fixture->row->setPersonInfo(person);
    const QPixmap face = m_fixture->child<QLabel>("faceImage")->pixmap(Qt::ReturnByValue);
    QCOMPARE(face.size(), QSize(97, 108) * m_fixture->row->devicePixelRatioF());
}

void tst_PersonInfoWt::showsNothingForABadFace()
{
    PersonInfo person = makePerson("1", "Ada", m_fixture->root);
    person.faceImage1 = jpeg(Qt::red);
    m_fixture->row->setPersonInfo(person);
    person.faceImage1 = "no picture";
    m_fixture->row->setPersonInfo(person);
    QVERIFY(m_fixture->child<QLabel>("faceImage")->pixmap(Qt::ReturnByValue).isNull());
    QCOMPARE(m_fixture->child<QLabel>("faceImage")->text(), QString());
    QCOMPARE(m_fixture->text("name"), QStringLiteral("Ada"));
}

void tst_PersonInfoWt::keepsTheMarkOfTheSamePersonOnly()
{
    m_fixture->row->setChecked(true);
    m_fixture->row->setPersonInfo(makePerson("1", "Ada, renamed", m_fixture->root));
    QVERIFY(m_fixture->row->isChecked());
    m_fixture->row->setPersonInfo(makePerson("2", "Ada", m_fixture->root));
    QVERIFY(!m_fixture->row->isChecked());
}

void tst_PersonInfoWt::hasAStyleForEachState_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("styleSheet");
    QTest::newRow("normal") << int(PersonInfoWt::NormalStyle)
                            << "QWidget{background-color:#0b121e;border-bottom: 1px solid #213147;}QLabel "
                               "{color:#6c7586; border:0px;} QCheckBox{color:#6c7586; border:0px;}";
    QTest::newRow("hovered") << int(PersonInfoWt::HoveredStyle)
                             << "QWidget{background-color:#213147;border-bottom: 1px solid #213147;}QLabel "
                                "{color:#6c7586; border:0px;} QCheckBox{color:#6c7586; border:0px;}";
    QTest::newRow("selected") << int(PersonInfoWt::SelectedStyle)
                              << "QWidget{background-color:#293a56;border-bottom: 1px solid #293a56;}QLabel "
                                 "{color:#ccd3dd; border:0px;} QCheckBox{color:#ccd3dd; border:0px;}";
}

void tst_PersonInfoWt::hasAStyleForEachState()
{
    QFETCH(int, state);
    m_fixture->row->setStyleState(state);
    QTEST(m_fixture->row->styleSheet(), "styleSheet");
}

void tst_PersonInfoWt::ignoresUnknownStyles()
{
    m_fixture->row->setStyleState(PersonInfoWt::SelectedStyle);
    for (int state : {-1, 3, 1000}) {
        m_fixture->row->setStyleState(state);
        QCOMPARE(m_fixture->background(), m_fixture->selected);
    }
}

void tst_PersonInfoWt::limitsTheTextColumns()
{
    m_fixture->row->setPersonInfo(makePerson("2", QString(200, QLatin1Char('W')), m_fixture->root));
    m_fixture->row->resize(1003, 138);
    for (const char* name : {"serialNum", "name", "organization"})
        QCOMPARE(m_fixture->child<QLabel>(name)->maximumWidth(), 125);
    for (const char* name : {"sex", "isValid"})
        QCOMPARE(m_fixture->child<QLabel>(name)->maximumWidth(), QWIDGETSIZE_MAX);
    QTRY_VERIFY(m_fixture->child<QLabel>("name")->width() <= 125);
    m_fixture->row->resize(10, 138);
    QCOMPARE(m_fixture->child<QLabel>("name")->maximumWidth(), 0);
}

void tst_PersonInfoWt::followsItsOrganization()
{
    m_fixture->row->updateOrganization("another", "Other");
    QCOMPARE(m_fixture->text("organization"), PersonData::instance().getOrganizationName(m_fixture->root));
    m_fixture->row->updateOrganization(m_fixture->root, "Renamed");
    QCOMPARE(m_fixture->text("organization"), QStringLiteral("Renamed"));
}

QTEST_MAIN(tst_PersonInfoWt)
#include "tst_PersonInfoWt.moc"
