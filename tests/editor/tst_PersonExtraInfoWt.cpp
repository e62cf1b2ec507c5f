#include "editor/PersonExtraInfoWt.h"

#include "EditorTools.h"

#include <qarn_data/PersonInfo.h>

#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QtTest>

using namespace qarn_personMgr;
using qarn_data::PersonInfo;

class tst_PersonExtraInfoWt : public QObject
{
    Q_OBJECT
private slots:
    void showsANewPerson();
    void movesAllSixMembers();
    void trimsWhatIsTyped();
    void keepsADateForAnInvalidOne();
    void offersTenIdentityTypes();
    void limitsTexts();
    void isAsHighAsItSays();
    void takesOddIdentityTypes();
};

void tst_PersonExtraInfoWt::showsANewPerson()
{
    PersonExtraInfoWt section;
    section.setPersonInfo(PersonInfo());
    QCOMPARE(child<QDateEdit>(&section, "birthDate")->text(), QString("1986-10-22"));
    QCOMPARE(child<QDateEdit>(&section, "employDate")->date(), QDate::currentDate());
    QCOMPARE(child<QComboBox>(&section, "identityType")->currentText(), QString("identity Chinese id"));
    for (const char* name : {"identityId", "job", "address"})
        QCOMPARE(child<QLineEdit>(&section, name)->text(), QString());
}

void tst_PersonExtraInfoWt::movesAllSixMembers()
{
    PersonInfo person;
    person.birthDate = QDate(2001, 2, 3);
    person.identityType = 4;
    person.identityId = "P 77";
    person.job = "Clerk";
    person.employDate = QDate(1999, 1, 1); // before the birth: nothing is checked
    person.address = "Main Street 1";
    PersonExtraInfoWt section;
    section.setPersonInfo(person);
    PersonInfo got;
    section.getPersonInfo(got);
    QCOMPARE(got.birthDate, person.birthDate);
    QCOMPARE(got.identityType, 4);
    QCOMPARE(got.identityId, person.identityId);
    QCOMPARE(got.job, person.job);
    QCOMPARE(got.employDate, person.employDate);
    QCOMPARE(got.address, person.address);
}

void tst_PersonExtraInfoWt::trimsWhatIsTyped()
{
    PersonExtraInfoWt section;
    section.setPersonInfo(PersonInfo());
    section.show();
    QVERIFY(QTest::qWaitForWindowExposed(&section));
    typeInto(child<QLineEdit>(&section, "identityId"), " 12 34 ");
    typeInto(child<QLineEdit>(&section, "job"), "  Clerk");
    typeInto(child<QLineEdit>(&section, "address"), "   ");
    QTest::keyClick(child<QComboBox>(&section, "identityType"), Qt::Key_Down);
    PersonInfo got;
    section.getPersonInfo(got);
    QCOMPARE(got.identityId, QString("12 34"));
    QCOMPARE(got.job, QString("Clerk"));
    QCOMPARE(got.address, QString());
    QCOMPARE(got.identityType, 1);
}

void tst_PersonExtraInfoWt::keepsADateForAnInvalidOne()
{
    PersonExtraInfoWt section;
    PersonInfo person;
    person.birthDate = QDate(2001, 2, 3);
    person.employDate = QDate(2020, 4, 5);
    section.setPersonInfo(person);
    PersonInfo invalid;
    invalid.birthDate = QDate();
    invalid.employDate = QDate();
    section.setPersonInfo(invalid);
    section.getPersonInfo(invalid);
    QCOMPARE(invalid.birthDate, QDate(2001, 2, 3));
    QCOMPARE(invalid.employDate, QDate(2020, 4, 5));
}

void tst_PersonExtraInfoWt::offersTenIdentityTypes()
{
    PersonExtraInfoWt section;
    const auto* types = child<QComboBox>(&section, "identityType");
    const QStringList expected{"identity Chinese id",
                               "identity student id",
                               "identity officer id",
                               "identity driver id",
                               "identity passport id",
                               "identity foreigner in china id",
                               "identity hongkong or macao access id",
                               "identity hongkong or macao live id",
                               "identity taiwan live id",
                               "identity other"};
    QStringList texts;
    for (int i = 0; i < types->count(); ++i)
        texts.append(types->itemText(i));
    QCOMPARE(texts, expected);
    QCOMPARE(types->maxVisibleItems(), 5);
}

void tst_PersonExtraInfoWt::limitsTexts()
{
    PersonExtraInfoWt section;
    for (const char* name : {"identityId", "job", "address"})
        QCOMPARE(child<QLineEdit>(&section, name)->maxLength(), 64);
}

void tst_PersonExtraInfoWt::isAsHighAsItSays()
{
    PersonExtraInfoWt section;
    QCOMPARE(section.minimumHeight(), 273);
    QCOMPARE(section.maximumHeight(), 273);
    section.show();
    QVERIFY(QTest::qWaitForWindowExposed(&section));
    for (const char* name : {"birthDate", "identityType", "identityId", "job", "employDate", "address"})
        QCOMPARE(child<QWidget>(&section, name)->size(), QSize(205, 28));
}

void tst_PersonExtraInfoWt::takesOddIdentityTypes()
{
    PersonExtraInfoWt section;
    PersonInfo person;
    person.identityType = 10;
    section.setPersonInfo(person);
    section.getPersonInfo(person);
    QCOMPARE(person.identityType, -1); // nothing is selected
}

QTEST_MAIN(tst_PersonExtraInfoWt)
#include "tst_PersonExtraInfoWt.moc"
