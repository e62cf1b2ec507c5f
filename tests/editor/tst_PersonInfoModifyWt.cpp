#include "editor/PersonInfoModifyWt.h"

#include "EditorTools.h"
#include "TestStore.h"

#include <qarn_base/DatetimeSpanSelWt.h>
#include <qarn_base/TimeSpaceLineEt.h>
#include <qarn_data/PersonData.h>

#include <QComboBox>
#include <QDateEdit>
#include <QDateTimeEdit>
#include <QLabel>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolTip>
#include <QVBoxLayout>
#include <QtTest>

using namespace qarn_personMgr;
using qarn_base::DatetimeSpanSelWt;
using qarn_base::TimeSpaceLineEt;
using qarn_data::PersonData;
using qarn_data::PersonInfo;

namespace
{
const QStringList Fields{"Zone", "Badge", "Floor"};
constexpr int CustomHeight = 25 + 3 * 28 + 2 * 10;
constexpr int ExtraHeight = 273;

PersonInfo stored()
{
    PersonInfo person;
    person.id = "{known}";
    person.organizationId = "{sales}";
    person.name = "Ann";
    person.serialNum = "A1";
    person.sex = 2;
    person.email = "ann@example.org";
    person.phoneNum = "0123";
    person.remarks = "early shift";
    person.validStartTime = QDateTime(QDate(2024, 1, 2), QTime(3, 4, 5, 678));
    person.validEndTime = QDateTime(QDate(2025, 6, 7), QTime(8, 9, 10));
    person.identityId = "P77";
    person.job = "Clerk";
    person.address = "Main Street";
    person.birthDate = QDate(1990, 1, 1);
    person.employDate = QDate(2015, 5, 5);
    person.identityType = 4;
    person.customFields = {{"Zone", "North"}, {"Badge", "7"}};
    return person;
}
} // namespace

class tst_PersonInfoModifyWt : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void limitsTheFields();
    void hasTheSizesOfItsFields();
    void keepsItsSizesUnderAStyleSheet();
    void showsARecord();
    void gathersWhatItShows();
    void gathersWhatIsTyped();
    void refusesOtherCharacters_data();
    void refusesOtherCharacters();
    void locksOnlyAKnownSerialNumber();
    void focusesTheFirstFieldToFill();
    void keepsThePeriodForInvalidTimes();
    void showsOddSexesAsFemale();
    void tellsAtTheFieldWhatIsWrong_data();
    void tellsAtTheFieldWhatIsWrong();
    void acceptsAKnownPersonsNumber();
    void checksNoNumberOfAKnownPersonWithoutOne();
    void givesANewIdOnce();
    void clearsForTheNextPerson();
    void switchesFaceSlots();
    void unfoldsAndFoldsOneSection_data();
    void unfoldsAndFoldsOneSection();
    void unfoldsBothAndFoldsCustom();
    void unfoldsBothAndFoldsExtra();
    void scrollsToAnUnfoldedSection();
    void leavesTheWheelToTheScrollArea();
    void picksThePeriod();
    void refusesAPeriodOverThreeYears();

private:
    void toggle(const char* button) { click(m_form, button); }
    QLineEdit* line(const char* name) { return child<QLineEdit>(m_form, name); }

    std::unique_ptr<TestStore> m_store;
    std::unique_ptr<QWidget> m_window;
    QScrollArea* m_area = nullptr;
    PersonInfoModifyWt* m_form = nullptr;
};

void tst_PersonInfoModifyWt::init()
{
    m_store = std::make_unique<TestStore>();
    PersonData::instance().resetCustomFields(Fields);
    m_window = std::make_unique<QWidget>();
    m_area = new QScrollArea;
    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setWidgetResizable(true);
    m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* layout = new QVBoxLayout(m_window.get());
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_area);
    m_form = new PersonInfoModifyWt(m_area);
    m_area->setWidget(m_form);
    m_form->setPersonInfo(PersonInfo());
    m_window->resize(731, 470);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void tst_PersonInfoModifyWt::cleanup()
{
    QToolTip::hideText();
    m_window.reset();
    m_store.reset();
}

void tst_PersonInfoModifyWt::limitsTheFields()
{
    QCOMPARE(line("name")->maxLength(), 20);
    QCOMPARE(line("serailNum")->maxLength(), 20);
    QCOMPARE(line("email")->maxLength(), 64);
    QCOMPARE(line("phoneNum")->maxLength(), 64);
    QCOMPARE(line("remarks")->maxLength(), 64);
    QVERIFY(line("validTimeRange")->isReadOnly());
    const auto* sex = child<QComboBox>(m_form, "sex");
    QCOMPARE(sex->count(), 2);
    QCOMPARE(sex->itemText(0), QString("Male"));
    QCOMPARE(sex->itemText(1), QString("Female"));
    QCOMPARE(sex->maxVisibleItems(), 5);
}

void tst_PersonInfoModifyWt::hasTheSizesOfItsFields()
{
    for (const char* name : {"name", "serailNum", "sex", "email", "phoneNum"})
        QCOMPARE(child<QWidget>(m_form, name)->size(), QSize(205, 28));
    for (const char* name : {"validTimeRange", "remarks"})
        QCOMPARE(child<QWidget>(m_form, name)->size(), QSize(295, 28));
    QCOMPARE(child<QWidget>(m_form, "faceImage")->size(), QSize(166, 218));
    QVERIFY(child<QRadioButton>(m_form, "faceImage1")->isChecked());
    QVERIFY(!child<QWidget>(m_form, "customInfoWt")->isVisible());
    QVERIFY(!child<QWidget>(m_form, "extraInfoWt")->isVisible());
    QCOMPARE(m_form->height(), 470); // fits without scrolling
    QCOMPARE(m_form->width(), 731);
}

void tst_PersonInfoModifyWt::keepsItsSizesUnderAStyleSheet()
{
    // A minimum in a style sheet takes the place of the form's own.
    qApp->setStyleSheet("QLineEdit, QComboBox, QDateEdit { min-height: 18px; border: 1px solid gray; }");
    toggle("customInfoExpandBt");
    toggle("extraInfoExpandBt");
    QCOMPARE(child<QWidget>(m_form, "customInfoWt")->height(), CustomHeight);
    const auto edits = m_form->findChildren<QLineEdit*>();
    for (const QLineEdit* edit : edits) {
        if (edit->isVisible() && edit->objectName() != "qt_spinbox_lineedit")
            QCOMPARE(edit->height(), 28);
    }
    for (const char* name : {"sex", "identityType", "birthDate", "employDate"})
        QCOMPARE(child<QWidget>(m_form, name)->size(), QSize(205, 28));
    qApp->setStyleSheet(QString());
}

void tst_PersonInfoModifyWt::showsARecord()
{
    m_form->setPersonInfo(stored());
    QCOMPARE(line("name")->text(), QString("Ann"));
    QCOMPARE(line("serailNum")->text(), QString("A1"));
    QCOMPARE(child<QComboBox>(m_form, "sex")->currentText(), QString("Female"));
    QCOMPARE(line("email")->text(), QString("ann@example.org"));
    QCOMPARE(line("phoneNum")->text(), QString("0123"));
    QCOMPARE(line("remarks")->text(), QString("early shift"));
    QVERIFY(line("validTimeRange")->text().contains("2024")); // spans are described with years
    QVERIFY(line("validTimeRange")->text().contains("2025"));
    QCOMPARE(line("job")->text(), QString("Clerk"));
}

void tst_PersonInfoModifyWt::gathersWhatItShows()
{
    const PersonInfo person = stored();
    m_form->setPersonInfo(person);
    const PersonInfo& got = m_form->getPersonInfo();
    QCOMPARE(got.id, person.id);
    QCOMPARE(got.organizationId, person.organizationId);
    QCOMPARE(got.name, person.name);
    QCOMPARE(got.serialNum, person.serialNum);
    QCOMPARE(got.sex, person.sex);
    QCOMPARE(got.email, person.email);
    QCOMPARE(got.phoneNum, person.phoneNum);
    QCOMPARE(got.validStartTime, person.validStartTime); // to the millisecond
    QCOMPARE(got.validEndTime, person.validEndTime);
    QCOMPARE(got.remarks, person.remarks);
    QCOMPARE(got.birthDate, person.birthDate);
    QCOMPARE(got.identityType, person.identityType);
    QCOMPARE(got.identityId, person.identityId);
    QCOMPARE(got.job, person.job);
    QCOMPARE(got.employDate, person.employDate);
    QCOMPARE(got.address, person.address);
    QCOMPARE(got.customFields, person.customFields);
    QCOMPARE(&got, &m_form->getPersonInfo());
}

void tst_PersonInfoModifyWt::gathersWhatIsTyped()
{
    typeInto(line("name"), "  Ann Lee ");
    typeInto(line("serailNum"), " ab12 ");
    typeInto(line("email"), " not an address ");
    typeInto(line("remarks"), " note ");
    QTest::keyClick(child<QComboBox>(m_form, "sex"), Qt::Key_Down);
    const PersonInfo& got = m_form->getPersonInfo();
    QCOMPARE(got.name, QString("Ann Lee"));
    QCOMPARE(got.serialNum, QString("AB12"));
    QCOMPARE(got.email, QString("not an address"));
    QCOMPARE(got.remarks, QString("note"));
    QCOMPARE(got.sex, 2);
}

void tst_PersonInfoModifyWt::refusesOtherCharacters_data()
{
    QTest::addColumn<QByteArray>("field");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("taken");
    QTest::newRow("serial number") << QByteArray("serailNum") << "aZ 09{}_.-;"
                                   << "aZ 09{}";
    QTest::newRow("serial number, 20") << QByteArray("serailNum") << QString(25, 'x') << QString(20, 'x');
    QTest::newRow("phone") << QByteArray("phoneNum") << "+49 (0)30-12a3"
                           << "49030123";
    QTest::newRow("phone, 64") << QByteArray("phoneNum") << QString(70, '1') << QString(64, '1');
    QTest::newRow("e-mail takes anything") << QByteArray("email") << "a b@;{}"
                                           << "a b@;{}";
    QTest::newRow("e-mail, 64") << QByteArray("email") << QString(70, 'e') << QString(64, 'e');
    QTest::newRow("name, 20") << QByteArray("name") << QString(25, 'n') << QString(20, 'n');
}

void tst_PersonInfoModifyWt::refusesOtherCharacters()
{
    QFETCH(QByteArray, field);
    QFETCH(QString, typed);
    QFETCH(QString, taken);
    typeInto(line(field.constData()), typed);
    QCOMPARE(line(field.constData())->text(), taken);
}

void tst_PersonInfoModifyWt::locksOnlyAKnownSerialNumber()
{
    QVERIFY(!line("serailNum")->isReadOnly());
    m_form->setPersonInfo(stored());
    QVERIFY(line("serailNum")->isReadOnly());
    PersonInfo without = stored();
    without.serialNum.clear();
    m_form->setPersonInfo(without);
    QVERIFY(!line("serailNum")->isReadOnly());
}

void tst_PersonInfoModifyWt::focusesTheFirstFieldToFill()
{
    QCOMPARE(QApplication::focusWidget(), line("name"));
    m_form->setPersonInfo(stored());
    QCOMPARE(QApplication::focusWidget(), line("phoneNum"));
}

void tst_PersonInfoModifyWt::keepsThePeriodForInvalidTimes()
{
    m_form->setPersonInfo(stored());
    PersonInfo person = stored();
    person.validEndTime = QDateTime();
    m_form->setPersonInfo(person);
    QCOMPARE(m_form->getPersonInfo().validEndTime, stored().validEndTime);
    QCOMPARE(m_form->getPersonInfo().validStartTime, stored().validStartTime);
}

void tst_PersonInfoModifyWt::showsOddSexesAsFemale()
{
    for (int sex : {0, 2, 3, -1}) {
        PersonInfo person = stored();
        person.sex = sex;
        m_form->setPersonInfo(person);
        QCOMPARE(m_form->getPersonInfo().sex, 2);
    }
}

void tst_PersonInfoModifyWt::tellsAtTheFieldWhatIsWrong_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("serialNum");
    QTest::addColumn<QByteArray>("field");
    QTest::addColumn<QString>("told");
    const QString blankName = "person name can't be empty or all blank space!";
    const QString blankNumber = "serail num can't be empty or all blank space!";
    QTest::newRow("both blank: name first") << "  "
                                            << "" << QByteArray("name") << blankName;
    QTest::newRow("no name") << ""
                             << "B2" << QByteArray("name") << blankName;
    QTest::newRow("no number") << "Ben"
                               << "" << QByteArray("serailNum") << blankNumber;
    QTest::newRow("blank number") << "Ben"
                                  << "  " << QByteArray("serailNum") << blankNumber;
    QTest::newRow("taken number") << "Ben"
                                  << " a1 " << QByteArray("serailNum") << "serail num has exist!";
}

void tst_PersonInfoModifyWt::tellsAtTheFieldWhatIsWrong()
{
    QFETCH(QString, name);
    QFETCH(QString, serialNum);
    QFETCH(QByteArray, field);
    PersonInfo person = stored();
    person.organizationId.clear();
    QVERIFY(PersonData::instance().addPerson(person));
    typeInto(line("name"), name);
    typeInto(line("serailNum"), serialNum);
    QVERIFY(!m_form->checkInput());
    QVERIFY(QToolTip::isVisible());
    QTEST(QToolTip::text(), "told");
    const QPoint corner = line(field.constData())->mapToGlobal(QPoint(0, 0));
    const auto topLevels = QApplication::topLevelWidgets();
    const auto tip = std::find_if(topLevels.cbegin(), topLevels.cend(), [](const QWidget* widget) {
        return widget->inherits("QTipLabel") && widget->isVisible();
    });
    QVERIFY(tip != topLevels.cend());
    QVERIFY(((*tip)->pos() - corner).manhattanLength() < 60);
    QCOMPARE(PersonData::instance().getAllPersons(true).count(), 1);
}

void tst_PersonInfoModifyWt::acceptsAKnownPersonsNumber()
{
    PersonInfo person = stored();
    person.organizationId.clear();
    QVERIFY(PersonData::instance().addPerson(person));
    m_form->setPersonInfo(person);
    QVERIFY(m_form->checkInput());
}

void tst_PersonInfoModifyWt::checksNoNumberOfAKnownPersonWithoutOne()
{
    PersonInfo other = stored();
    other.organizationId.clear();
    QVERIFY(PersonData::instance().addPerson(other));
    PersonInfo person = stored();
    person.id = "{second}";
    person.serialNum.clear();
    m_form->setPersonInfo(person);
    typeInto(line("serailNum"), "A1");
    QVERIFY(m_form->checkInput());
}

void tst_PersonInfoModifyWt::givesANewIdOnce()
{
    typeInto(line("name"), "Ann");
    const QString id = m_form->getPersonInfo().id;
    QCOMPARE(QUuid(id).toString(), id); // the braced form
    QCOMPARE(m_form->getPersonInfo().id, id);
}

void tst_PersonInfoModifyWt::clearsForTheNextPerson()
{
    PersonInfo person = stored();
    person.faceImage1 = plainPicture(Qt::red);
    person.faceImage3 = plainPicture(Qt::blue);
    m_form->setPersonInfo(person);
    click(m_form, "faceImage3");
    m_form->getPersonInfo();
    m_form->clearInput();

    for (const char* name : {"name", "serailNum", "email", "phoneNum", "identityId", "address"})
        QCOMPARE(line(name)->text(), QString());
    QVERIFY(!line("serailNum")->isReadOnly());
    QCOMPARE(QApplication::focusWidget(), line("name"));
    QVERIFY(child<QRadioButton>(m_form, "faceImage3")->isChecked()); // stays, though slot 1 is shown

    typeInto(line("name"), "Ben");
    typeInto(line("serailNum"), "B2");
    const PersonInfo& next = m_form->getPersonInfo();
    QVERIFY(next.id != person.id);
    QVERIFY(!next.id.isEmpty());
    QCOMPARE(next.organizationId, person.organizationId);
    QCOMPARE(next.sex, person.sex);
    QCOMPARE(next.validStartTime, person.validStartTime);
    QCOMPARE(next.validEndTime, person.validEndTime);
    QCOMPARE(next.remarks, person.remarks);
    QCOMPARE(next.birthDate, person.birthDate);
    QCOMPARE(next.identityType, person.identityType);
    QCOMPARE(next.job, person.job);
    QCOMPARE(next.employDate, person.employDate);
    QCOMPARE(next.customFields, person.customFields); // the texts stay on screen
    QVERIFY(next.email.isEmpty() && next.phoneNum.isEmpty());
    QVERIFY(next.identityId.isEmpty() && next.address.isEmpty());
    QVERIFY(next.faceImage1.isEmpty() && next.faceImage2.isEmpty() && next.faceImage3.isEmpty());
}

void tst_PersonInfoModifyWt::switchesFaceSlots()
{
    PersonInfo person = stored();
    person.faceImage2 = plainPicture(Qt::green);
    m_form->setPersonInfo(person);
    const auto* hint = child<QLabel>(child<QWidget>(m_form, "faceImage"), "label");
    QVERIFY(hint->isVisible());
    click(m_form, "faceImage2");
    QVERIFY(!hint->isVisible());
    QTest::keyClick(child<QWidget>(m_form, "faceImage2"), Qt::Key_Right);
    QVERIFY(child<QRadioButton>(m_form, "faceImage3")->isChecked());
    QVERIFY(hint->isVisible());
    click(m_form, "faceImage1");
    QVERIFY(hint->isVisible());
}

void tst_PersonInfoModifyWt::unfoldsAndFoldsOneSection_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<QByteArray>("section");
    QTest::addColumn<int>("sectionHeight");
    QTest::newRow("custom") << QByteArray("customInfoExpandBt") << QByteArray("customInfoWt") << CustomHeight;
    QTest::newRow("extra") << QByteArray("extraInfoExpandBt") << QByteArray("extraInfoWt") << ExtraHeight;
}

void tst_PersonInfoModifyWt::unfoldsAndFoldsOneSection()
{
    QFETCH(QByteArray, button);
    QFETCH(QByteArray, section);
    QFETCH(int, sectionHeight);
    const int base = m_form->height();
    for (int i = 0; i < 2; ++i) {
        toggle(button.constData());
        QVERIFY(child<QWidget>(m_form, section.constData())->isVisible());
        QCOMPARE(m_form->height(), base + sectionHeight);
        QCOMPARE(child<QWidget>(m_form, section.constData())->height(), sectionHeight);
        toggle(button.constData());
        QVERIFY(!child<QWidget>(m_form, section.constData())->isVisible());
        QCOMPARE(m_form->height(), base);
    }
}

void tst_PersonInfoModifyWt::unfoldsBothAndFoldsCustom()
{
    const int base = m_form->height();
    toggle("customInfoExpandBt");
    toggle("extraInfoExpandBt");
    QCOMPARE(m_form->height(), base + CustomHeight + ExtraHeight);
    toggle("customInfoExpandBt");
    QCOMPARE(m_form->height(), base + ExtraHeight);
    toggle("customInfoExpandBt");
    QCOMPARE(m_form->height(), base + CustomHeight + ExtraHeight);
    toggle("customInfoExpandBt");
    toggle("extraInfoExpandBt");
    QCOMPARE(m_form->height(), base);
}

void tst_PersonInfoModifyWt::unfoldsBothAndFoldsExtra()
{
    const int base = m_form->height();
    toggle("extraInfoExpandBt");
    toggle("customInfoExpandBt");
    QCOMPARE(m_form->height(), base + CustomHeight + ExtraHeight);
    toggle("extraInfoExpandBt");
    QCOMPARE(m_form->height(), base + CustomHeight);
    toggle("customInfoExpandBt");
    QCOMPARE(m_form->height(), base);
}

void tst_PersonInfoModifyWt::scrollsToAnUnfoldedSection()
{
    const auto visibleIn = [this](const char* name) {
        const QWidget* section = child<QWidget>(m_form, name);
        const QRect place(section->mapTo(m_area->viewport(), QPoint(0, 0)), section->size());
        return m_area->viewport()->rect().contains(place);
    };
    toggle("customInfoExpandBt");
    QVERIFY(visibleIn("customInfoWt"));
    toggle("extraInfoExpandBt");
    QVERIFY(visibleIn("extraInfoWt"));
    QVERIFY(m_area->verticalScrollBar()->maximum() > 0);
    QCOMPARE(m_area->verticalScrollBar()->value(), m_area->verticalScrollBar()->maximum());
}

void tst_PersonInfoModifyWt::leavesTheWheelToTheScrollArea()
{
    m_form->setPersonInfo(stored());
    toggle("extraInfoExpandBt");
    for (const char* name : {"birthDate", "employDate", "identityType", "sex"}) {
        auto* field = child<QWidget>(m_form, name);
        const QPoint at = field->rect().center();
        QWheelEvent wheel(at, field->mapToGlobal(at), QPoint(), QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(field, &wheel);
        QVERIFY2(!wheel.isAccepted(), name); // goes on to what scrolls
    }
    QCOMPARE(m_form->getPersonInfo().birthDate, stored().birthDate);
    QCOMPARE(m_form->getPersonInfo().employDate, stored().employDate);
    QCOMPARE(m_form->getPersonInfo().identityType, stored().identityType);
    QCOMPARE(m_form->getPersonInfo().sex, stored().sex);
}

void tst_PersonInfoModifyWt::picksThePeriod()
{
    m_form->setPersonInfo(stored());
    auto* picker = m_form->findChild<DatetimeSpanSelWt*>();
    QVERIFY(picker != nullptr);
    QVERIFY(!picker->isVisible());
    QTest::mouseClick(line("validTimeRange"), Qt::LeftButton);
    QVERIFY(picker->isVisible());
    const QPoint below = line("validTimeRange")->mapToGlobal(QPoint(0, line("validTimeRange")->height() + 1));
    QCOMPARE(picker->pos(), below);
    QCOMPARE(child<QDateTimeEdit>(picker, "startDateTime")->date(), stored().validStartTime.date());
    QCOMPARE(child<QDateTimeEdit>(picker, "endDateTime")->date(), stored().validEndTime.date());
    child<QDateTimeEdit>(picker, "endDateTime")->setDate(QDate(2026, 1, 1));
    click(picker, "okBt");
    QVERIFY(!picker->isVisible());
    QVERIFY(line("validTimeRange")->text().contains("2026"));
    QCOMPARE(m_form->getPersonInfo().validStartTime, stored().validStartTime);
    QCOMPARE(m_form->getPersonInfo().validEndTime.date(), QDate(2026, 1, 1));
}

void tst_PersonInfoModifyWt::refusesAPeriodOverThreeYears()
{
    PersonInfo person = stored();
    person.validStartTime = QDateTime(QDate(2021, 1, 1), QTime(0, 0));
    person.validEndTime = person.validStartTime.addSecs(94608000);
    m_form->setPersonInfo(person);
    auto* picker = m_form->findChild<DatetimeSpanSelWt*>();
    QTest::keyClick(line("validTimeRange"), Qt::Key_Return);
    QVERIFY(picker->isVisible());
    auto* end = child<QDateTimeEdit>(picker, "endDateTime");
    end->setDateTime(person.validEndTime.addSecs(1));
    click(picker, "okBt");
    QVERIFY(picker->isVisible());
    QCOMPARE(m_form->getPersonInfo().validEndTime, person.validEndTime);
    end->setDateTime(person.validEndTime);
    click(picker, "okBt");
    QVERIFY(!picker->isVisible());
}

QTEST_MAIN(tst_PersonInfoModifyWt)
#include "tst_PersonInfoModifyWt.moc"
