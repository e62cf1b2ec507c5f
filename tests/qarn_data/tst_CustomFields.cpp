#include "Samples.h"
#include "TestStore.h"

#include <QtTest>

using namespace qarn_data;
using samples::fullPerson;
using samples::person;
using samples::root;

namespace
{

using Fields = QMap<QString, QString>;

PersonData& data()
{
    return PersonData::instance();
}

Fields fieldsOf(const QString& serialNum)
{
    return data().getPersonBySerialNum(serialNum, false).customFields;
}

} // namespace

class tst_CustomFields : public QObject
{
    Q_OBJECT
private slots:
    void namesKeepTheirOrder();
    void valuesComeBackWithTheName();
    void hiddenValuesSurviveAnUpdate();
    void valuesGoWithThePerson();
    void nothingWithoutStore();
};

void tst_CustomFields::namesKeepTheirOrder()
{
    TestStore store;
    QVERIFY(data().getCustomFields().isEmpty());
    samples::Watch watch;
    data().resetCustomFields({"Shoe", "Hat", "", "Shoe", QString::fromUtf8("帽子"), " "});
    const QStringList expected{"Shoe", "Hat", QString::fromUtf8("帽子")};
    QCOMPARE(data().getCustomFields(), expected);
    QCOMPARE(watch.changes(), 1);
    QCOMPARE(watch.fieldsReset.first().first().toStringList(), expected);
    data().resetCustomFields({"Hat", QString::fromUtf8("帽子"), "Shoe"}); // turned round
    store.reopen();
    QCOMPARE(data().getCustomFields(), QStringList({"Hat", QString::fromUtf8("帽子"), "Shoe"}));
    data().resetCustomFields({});
    QVERIFY(data().getCustomFields().isEmpty());
    QCOMPARE(samples::inconsistency(), QString());
}

void tst_CustomFields::valuesComeBackWithTheName()
{
    TestStore store;
    data().resetCustomFields({"Shoe", "Hat"});
    QVERIFY(data().addPersons({fullPerson("a", root()), person("b", "B")}));
    data().resetCustomFields({"Hat"});
    for (int round = 0; round < 2; ++round) {
        QCOMPARE(fieldsOf("SN-a"), Fields({{"Hat", "58"}}));
        QCOMPARE(fieldsOf("B"), Fields());
        QCOMPARE(samples::inconsistency(), QString());
        store.reopen();
    }
    data().resetCustomFields({"New", "Shoe"});
    QCOMPARE(fieldsOf("SN-a"), Fields({{"Shoe", "43"}}));
    data().resetCustomFields({"Shoe", "Hat"});
    QCOMPARE(fieldsOf("SN-a"), Fields({{"Shoe", "43"}, {"Hat", "58"}}));
    QCOMPARE(samples::inconsistency(), QString());
}

void tst_CustomFields::hiddenValuesSurviveAnUpdate()
{
    TestStore store;
    data().resetCustomFields({"Shoe", "Hat"});
    QVERIFY(data().addPerson(fullPerson("a", root())));
    data().resetCustomFields({"Hat"});
    PersonInfo info = data().getPersonBySerialNum("SN-a", false);
    info.customFields = {{"Hat", "61"}};
    QVERIFY(data().updatePerson(info));
    info.customFields.clear(); // "no value" for what is shown
    QVERIFY(data().updatePerson(info));
    QVERIFY(data().changePersonsOrganization({info}, data().createOrganization({"X"}), true));
    for (int round = 0; round < 2; ++round) {
        QCOMPARE(fieldsOf("SN-a"), Fields());
        QCOMPARE(samples::inconsistency(), QString());
        store.reopen();
    }
    data().resetCustomFields({"Shoe", "Hat"});
    const PersonList all = data().getAllPersons(false);
    QCOMPARE(all.size(), 2);
    for (const PersonInfo& record : all)
        QCOMPARE(record.customFields, Fields({{"Shoe", "43"}}));
    QCOMPARE(samples::inconsistency(), QString());
}

void tst_CustomFields::valuesGoWithThePerson()
{
    TestStore store;
    data().resetCustomFields({"Shoe", "Hat"});
    QVERIFY(data().addPerson(fullPerson("a", root())));
    data().resetCustomFields({});
    QVERIFY(data().deletePersons({"a"}));
    PersonInfo again = fullPerson("a", root());
    again.customFields.clear();
    QVERIFY(data().addPerson(again));
    data().resetCustomFields({"Shoe", "Hat"});
    QCOMPARE(fieldsOf("SN-a"), Fields()); // not the dead one's
    QCOMPARE(samples::inconsistency(), QString());
}

void tst_CustomFields::nothingWithoutStore()
{
    samples::Watch watch;
    data().resetCustomFields({"Shoe"});
    QVERIFY(data().getCustomFields().isEmpty());
    QCOMPARE(watch.failed.count(), 1);
    QCOMPARE(watch.changes(), 0);
}

QTEST_GUILESS_MAIN(tst_CustomFields)
#include "tst_CustomFields.moc"
