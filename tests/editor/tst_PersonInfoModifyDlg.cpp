#include "editor/PersonInfoModifyDlg.h"

#include "editor/PersonInfoModifyWt.h"

#include "EditorTools.h"
#include "TestStore.h"

#include <qarn_data/DataSignals.h>
#include <qarn_data/PersonData.h>

#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalSpy>
#include <QToolTip>
#include <QtTest>

using namespace qarn_personMgr;
using qarn_data::DataSignals;
using qarn_data::PersonData;
using qarn_data::PersonInfo;

class tst_PersonInfoModifyDlg : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void isLaidOutAsItSays();
    void addsAPerson();
    void addsByReturn();
    void staysOpenForWrongInput();
    void refusesATakenNumberOnlyForANewPerson();
    void addsContinuously();
    void keepsWhatWasAddedBeforeCancel();
    void editsAPerson();
    void fillsInAMissingNumber();
    void keepsThreePhotographs();
    void onlyClosesInAnotherMode();
    void closesWithoutSaving_data();
    void closesWithoutSaving();
    void takesTheDefaultsWhenTheRecordIsMade();

private:
    void open(int mode, const PersonInfo& info);
    void press(const char* button) { click(m_dialog.get(), button); }
    void type(const char* field, const QString& text)
    {
        typeInto(child<QLineEdit>(m_dialog.get(), field), text);
    }
    static QList<PersonInfo> all() { return PersonData::instance().getAllPersons(false); }
    static PersonInfo addStored();

    std::unique_ptr<TestStore> m_store;
    std::unique_ptr<PersonInfoModifyDlg> m_dialog;
    PersonInfo m_new;
};

void tst_PersonInfoModifyDlg::init()
{
    m_store = std::make_unique<TestStore>();
    PersonData::instance().resetCustomFields({"Zone", "Badge"});
    m_new = PersonInfo();
    m_new.organizationId = PersonData::instance().getRootOrganizationId();
}

void tst_PersonInfoModifyDlg::cleanup()
{
    QToolTip::hideText();
    m_dialog.reset();
    m_store.reset();
}

void tst_PersonInfoModifyDlg::open(int mode, const PersonInfo& info)
{
    m_dialog = std::make_unique<PersonInfoModifyDlg>(nullptr);
    m_dialog->init(mode, info);
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
}

PersonInfo tst_PersonInfoModifyDlg::addStored()
{
    PersonInfo person;
    person.id = QUuid::createUuid().toString();
    person.organizationId = PersonData::instance().getRootOrganizationId();
    person.name = "Ann";
    person.serialNum = "A1";
    person.customFields = {{"Zone", "North"}};
    if (!PersonData::instance().addPerson(person))
        qFatal("person refused");
    return person;
}

void tst_PersonInfoModifyDlg::isLaidOutAsItSays()
{
    open(PersonInfoModifyDlg::AddMode, m_new);
    QCOMPARE(m_dialog->minimumSize(), QSize(733, 575));
    QCOMPARE(m_dialog->maximumSize(), QSize(733, 575));
    QCOMPARE(m_dialog->objectName(), QString("qarn_personMgr__PersonInfoModifyDlg"));
    const auto* area = child<QScrollArea>(m_dialog.get(), "scrollArea");
    QVERIFY(area->widgetResizable());
    QCOMPARE(area->frameShape(), QFrame::NoFrame);
    QCOMPARE(area->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(area->minimumHeight(), 50);
    QCOMPARE(area->widget()->metaObject()->className(), "qarn_personMgr::PersonInfoModifyWt");
    QCOMPARE(area->widget()->objectName(), QString("qarn_personMgr__PersonInfoModifyWt"));
    for (const char* name : {"addContinuouslyBt", "addBt", "cancelBt"})
        QCOMPARE(child<QPushButton>(m_dialog.get(), name)->size(), QSize(96, 28));
    QVERIFY(child<QPushButton>(m_dialog.get(), "addBt")->isDefault());
    QVERIFY(child<QPushButton>(m_dialog.get(), "addBt")->autoDefault());
    QVERIFY(child<QWidget>(m_dialog.get(), "addBt")->property("common_bt_style1").toBool());
    QVERIFY(child<QWidget>(m_dialog.get(), "addContinuouslyBt")->property("common_bt_style2").toBool());
    QVERIFY(child<QWidget>(m_dialog.get(), "cancelBt")->property("common_bt_style2").toBool());
}

void tst_PersonInfoModifyDlg::addsAPerson()
{
    QSignalSpy added(&DataSignals::instance(), &DataSignals::signalAddPersonsToLocalDB);
    open(PersonInfoModifyDlg::AddMode, m_new);
    QCOMPARE(child<QLabel>(m_dialog.get(), "title")->text(), QString("Add Person"));
    QCOMPARE(child<QPushButton>(m_dialog.get(), "addBt")->text(), QString("Add"));
    QVERIFY(child<QWidget>(m_dialog.get(), "addContinuouslyBt")->isVisible());
    type("name", " Ann ");
    type("serailNum", " ab12 ");
    press("addBt");
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(added.count(), 1);
    QCOMPARE(all().count(), 1);
    const PersonInfo person = all().first();
    QCOMPARE(person.name, QString("Ann"));
    QCOMPARE(person.serialNum, QString("AB12"));
    QCOMPARE(person.organizationId, m_new.organizationId);
    QCOMPARE(QUuid(person.id).toString(), person.id);
    QVERIFY(person.customFields.isEmpty());
}

void tst_PersonInfoModifyDlg::addsByReturn()
{
    open(PersonInfoModifyDlg::AddMode, m_new);
    type("name", "Ann");
    type("serailNum", "A1");
    QTest::keyClick(child<QWidget>(m_dialog.get(), "serailNum"), Qt::Key_Return);
    QCOMPARE(all().count(), 1);
    QVERIFY(!m_dialog->isVisible());
}

void tst_PersonInfoModifyDlg::staysOpenForWrongInput()
{
    open(PersonInfoModifyDlg::AddMode, m_new);
    type("name", "   ");
    press("addBt");
    QVERIFY(m_dialog->isVisible());
    QCOMPARE(QToolTip::text(), QString("person name can't be empty or all blank space!"));
    press("addContinuouslyBt");
    QCOMPARE(child<QLineEdit>(m_dialog.get(), "name")->text(), QString("   ")); // nothing is cleared
    QCOMPARE(all().count(), 0);
}

void tst_PersonInfoModifyDlg::refusesATakenNumberOnlyForANewPerson()
{
    const PersonInfo stored = addStored();
    open(PersonInfoModifyDlg::AddMode, m_new);
    type("name", "Ben");
    type("serailNum", "a1");
    press("addBt");
    QVERIFY(m_dialog->isVisible());
    QCOMPARE(QToolTip::text(), QString("serail num has exist!"));
    QCOMPARE(all().count(), 1);

    open(PersonInfoModifyDlg::EditMode, stored);
    press("addBt");
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
}

void tst_PersonInfoModifyDlg::addsContinuously()
{
    m_new.faceImage1 = plainPicture(Qt::red);
    m_new.remarks = "early shift";
    m_new.job = "Clerk";
    m_new.sex = 2;
    open(PersonInfoModifyDlg::AddMode, m_new);
    const QStringList numbers{"A1", "A2", "A3"};
    for (const QString& number : numbers) {
        type("name", "Person " + number);
        type("serailNum", number);
        press("addContinuouslyBt");
        QVERIFY(m_dialog->isVisible());
        QCOMPARE(child<QLineEdit>(m_dialog.get(), "name")->text(), QString());
    }
    type("name", "Last");
    type("serailNum", "A4");
    press("addBt");
    QSet<QString> ids;
    const auto persons = all();
    for (const PersonInfo& person : persons) {
        ids.insert(person.id);
        QCOMPARE(person.organizationId, m_new.organizationId);
        QCOMPARE(person.remarks, m_new.remarks);
        QCOMPARE(person.job, m_new.job);
        QCOMPARE(person.sex, 2);
        QCOMPARE(person.validEndTime, m_new.validEndTime);
        QCOMPARE(person.faceImage1.isEmpty(), person.serialNum != "A1");
    }
    QCOMPARE(ids.count(), 4);
}

void tst_PersonInfoModifyDlg::keepsWhatWasAddedBeforeCancel()
{
    open(PersonInfoModifyDlg::AddMode, m_new);
    type("name", "Ann");
    type("serailNum", "A1");
    press("addContinuouslyBt");
    type("name", "Ben");
    type("serailNum", "B2");
    press("cancelBt");
    QCOMPARE(m_dialog->result(), int(QDialog::Rejected));
    QCOMPARE(all().count(), 1);
}

void tst_PersonInfoModifyDlg::editsAPerson()
{
    const PersonInfo stored = addStored();
    QSignalSpy updated(&DataSignals::instance(), &DataSignals::signalUpdatePersonInLocalDB);
    open(PersonInfoModifyDlg::EditMode, stored);
    QCOMPARE(child<QLabel>(m_dialog.get(), "title")->text(), QString("Edit Person"));
    QCOMPARE(child<QPushButton>(m_dialog.get(), "addBt")->text(), QString("Save"));
    QVERIFY(!child<QWidget>(m_dialog.get(), "addContinuouslyBt")->isVisible());
    type("name", "Anna");
    press("addBt");
    QCOMPARE(updated.count(), 1);
    QCOMPARE(all().count(), 1);
    QCOMPARE(all().first().name, QString("Anna"));
    QCOMPARE(all().first().id, stored.id);
    QCOMPARE(all().first().customFields, stored.customFields);
}

void tst_PersonInfoModifyDlg::fillsInAMissingNumber()
{
    PersonInfo person = addStored();
    person.id = QUuid::createUuid().toString();
    person.serialNum.clear();
    QVERIFY(PersonData::instance().addPerson(person));
    open(PersonInfoModifyDlg::EditMode, person);
    QVERIFY(!child<QLineEdit>(m_dialog.get(), "serailNum")->isReadOnly());
    press("addBt");
    QVERIFY(m_dialog->isVisible());
    QCOMPARE(QToolTip::text(), QString("serail num can't be empty or all blank space!"));
    type("serailNum", "b2");
    press("addBt");
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(PersonData::instance().getPersonBySerialNum("B2", true).id, person.id);
}

void tst_PersonInfoModifyDlg::keepsThreePhotographs()
{
    SKIP_WITHOUT_SAMPLES();
    PersonInfo person = addStored();
    QByteArray* images[] = {&person.faceImage1, &person.faceImage2, &person.faceImage3};
    const QStringList names{"ukp_Julian_Smith.jpg", "ski_astronaut_16MP.jpg", "ukp_Hazel_Byford.jpg"};
    for (int i = 0; i < 3; ++i) {
        QFile file(samplePath("faces/" + names.at(i)));
        QVERIFY(file.open(QIODevice::ReadOnly));
        *images[i] = file.readAll();
    }
    QVERIFY(PersonData::instance().updatePerson(person));
    open(PersonInfoModifyDlg::EditMode, person);
    press("addBt");
    const PersonInfo saved = all().first();
    const QByteArray savedImages[] = {saved.faceImage1, saved.faceImage2, saved.faceImage3};
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(QImage::fromData(savedImages[i], "jpg").size(), QImage::fromData(*images[i]).size());
        QVERIFY(savedImages[i] != *images[i]); // encoded anew
    }
}

void tst_PersonInfoModifyDlg::onlyClosesInAnotherMode()
{
    open(2, m_new);
    type("name", "Ann");
    type("serailNum", "A1");
    press("addBt");
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
    QCOMPARE(all().count(), 0);
}

void tst_PersonInfoModifyDlg::closesWithoutSaving_data()
{
    QTest::addColumn<QString>("way");
    for (const char* way : {"cancelBt", "closeBt", "escape"})
        QTest::newRow(way) << way;
}

void tst_PersonInfoModifyDlg::closesWithoutSaving()
{
    QFETCH(QString, way);
    const PersonInfo stored = addStored();
    open(PersonInfoModifyDlg::EditMode, stored);
    type("name", "Anna");
    if (way == "escape")
        QTest::keyClick(m_dialog.get(), Qt::Key_Escape);
    else
        press(way.toLatin1().constData());
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(m_dialog->result(), int(QDialog::Rejected));
    QCOMPARE(all().first().name, QString("Ann"));
}

void tst_PersonInfoModifyDlg::takesTheDefaultsWhenTheRecordIsMade()
{
    m_new.validStartTime = m_new.validStartTime.addDays(-2); // a record made before the editor opened
    m_new.validEndTime = m_new.validEndTime.addDays(-2);
    m_new.employDate = m_new.employDate.addDays(-2);
    open(PersonInfoModifyDlg::AddMode, m_new);
    type("name", "Ann");
    type("serailNum", "A1");
    press("addBt");
    const PersonInfo person = all().first();
    QCOMPARE(person.validStartTime, m_new.validStartTime);
    QCOMPARE(person.validEndTime, m_new.validEndTime);
    QCOMPARE(person.employDate, m_new.employDate);
    QCOMPARE(person.birthDate, QDate(1986, 10, 22));
}

QTEST_MAIN(tst_PersonInfoModifyDlg)
#include "tst_PersonInfoModifyDlg.moc"
