#include "editor/PersonCustomInfoWt.h"

#include "EditorTools.h"
#include "TestStore.h"

#include <qarn_data/PersonData.h>

#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QtTest>

using namespace qarn_personMgr;
using qarn_data::PersonData;
using qarn_data::PersonInfo;

class tst_PersonCustomInfoWt : public QObject
{
    Q_OBJECT
private slots:
    void init() { m_store = std::make_unique<TestStore>(); }
    void cleanup() { m_store.reset(); }

    void tellsThatNoFieldIsDefined();
    void showsTheFieldsInTheirOrder();
    void movesValues();
    void keepsTextsWithoutAValue();
    void dropsUnknownAndBlankValues();
    void isBuiltOnce();
    void laysOutRows();
    void showsNamesAsTheyAre();

private:
    static QList<QLineEdit*> edits(const QWidget& section);
    std::unique_ptr<TestStore> m_store;
};

QList<QLineEdit*> tst_PersonCustomInfoWt::edits(const QWidget& section)
{
    return section.findChildren<QLineEdit*>();
}

void tst_PersonCustomInfoWt::tellsThatNoFieldIsDefined()
{
    PersonCustomInfoWt section;
    QCOMPARE(edits(section).count(), 0);
    const auto labels = section.findChildren<QLabel*>();
    QCOMPARE(labels.count(), 1);
    QCOMPARE(labels.first()->text(), QString("Please add custom field first"));
    PersonInfo person;
    person.customFields.insert("Gone", "value");
    section.setPersonInfo(person);
    section.getPersonInfo(person);
    QVERIFY(person.customFields.isEmpty());
}

void tst_PersonCustomInfoWt::showsTheFieldsInTheirOrder()
{
    const QStringList names{"Zone", "Badge", "Äpfel"};
    PersonData::instance().resetCustomFields(names);
    PersonCustomInfoWt section;
    section.show();
    QVERIFY(QTest::qWaitForWindowExposed(&section));
    QMap<int, QString> byPosition;
    const auto labels = section.findChildren<QLabel*>();
    for (const QLabel* label : labels)
        byPosition.insert(label->y(), label->text());
    QCOMPARE(QStringList(byPosition.values()), names);
}

void tst_PersonCustomInfoWt::movesValues()
{
    PersonData::instance().resetCustomFields({"Zone", "Badge"});
    PersonCustomInfoWt section;
    PersonInfo person;
    person.customFields = {{"Zone", "North"}, {"Badge", "7"}};
    section.setPersonInfo(person);
    PersonInfo got;
    section.getPersonInfo(got);
    QCOMPARE(got.customFields, person.customFields);
}

void tst_PersonCustomInfoWt::keepsTextsWithoutAValue()
{
    PersonData::instance().resetCustomFields({"Zone", "Badge"});
    PersonCustomInfoWt section;
    PersonInfo person;
    person.customFields = {{"Zone", "North"}, {"Badge", "7"}};
    section.setPersonInfo(person);
    person.customFields = {{"Zone", "South"}};
    section.setPersonInfo(person);
    section.getPersonInfo(person);
    QCOMPARE(person.customFields, (QMap<QString, QString>{{"Zone", "South"}, {"Badge", "7"}}));
}

void tst_PersonCustomInfoWt::dropsUnknownAndBlankValues()
{
    PersonData::instance().resetCustomFields({"Zone"});
    PersonCustomInfoWt section;
    section.show();
    QVERIFY(QTest::qWaitForWindowExposed(&section));
    PersonInfo person;
    person.customFields = {{"Zone", "North"}, {"Gone", "value"}};
    section.setPersonInfo(person);
    section.getPersonInfo(person);
    QCOMPARE(person.customFields, (QMap<QString, QString>{{"Zone", "North"}}));
    typeInto(edits(section).first(), "   ");
    section.getPersonInfo(person);
    QVERIFY(person.customFields.isEmpty());
    typeInto(edits(section).first(), "  far north ");
    section.getPersonInfo(person);
    QCOMPARE(person.customFields, (QMap<QString, QString>{{"Zone", "far north"}}));
}

void tst_PersonCustomInfoWt::isBuiltOnce()
{
    PersonData::instance().resetCustomFields({"Zone"});
    PersonCustomInfoWt section;
    PersonData::instance().resetCustomFields({"Zone", "Badge"});
    QCOMPARE(edits(section).count(), 1);
    QCOMPARE(edits(PersonCustomInfoWt()).count(), 2);
}

void tst_PersonCustomInfoWt::laysOutRows()
{
    PersonData::instance().resetCustomFields({"Zone", "Badge", "Floor"});
    PersonCustomInfoWt section;
    section.resize(681, section.height());
    section.show();
    QVERIFY(QTest::qWaitForWindowExposed(&section));
    QCOMPARE(section.layout()->contentsMargins(), QMargins(0, 25, 230, 0));
    QCOMPARE(section.height(), 25 + 3 * 28 + 2 * 10);
    for (const QLineEdit* edit : edits(section)) {
        QCOMPARE(edit->size(), QSize(205, 28));
        QCOMPARE(edit->maxLength(), 64);
        QCOMPARE(edit->geometry().right() + 1, 681 - 230 - 90);
    }
    for (const QLabel* label : section.findChildren<QLabel*>())
        QCOMPARE(label->geometry().right() + 1, 681 - 230 - 90 - 205 - 20);
}

void tst_PersonCustomInfoWt::showsNamesAsTheyAre()
{
    const QString markup = "<b>&amp;</b>";
    const QString longest(32, 'W');
    PersonData::instance().resetCustomFields({markup, longest});
    PersonCustomInfoWt section;
    section.resize(681, section.height());
    section.show();
    QVERIFY(QTest::qWaitForWindowExposed(&section));
    QCOMPARE(section.width(), 681); // the longest name does not widen the form
    const auto labels = section.findChildren<QLabel*>();
    QCOMPARE(labels.at(0)->text(), markup);
    QCOMPARE(labels.at(0)->textFormat(), Qt::PlainText);
    QCOMPARE(labels.at(1)->text(), longest);
    QCOMPARE(labels.at(1)->toolTip(), longest);
    QCOMPARE(edits(section).at(1)->accessibleName(), longest);
}

QTEST_MAIN(tst_PersonCustomInfoWt)
#include "tst_PersonCustomInfoWt.moc"
