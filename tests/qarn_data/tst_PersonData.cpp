#include "TestStore.h"

#include <qarn_data/DataSignals.h>
#include <qarn_data/PersonData.h>

#include <QSignalSpy>
#include <QtTest>

using namespace qarn_data;

namespace
{

PersonInfo person(const QString& id, const QString& serialNum, const QString& name,
                  const QString& organizationId = QString())
{
    PersonInfo info;
    info.id = id;
    info.serialNum = serialNum;
    info.name = name;
    info.organizationId = organizationId;
    return info;
}

} // namespace

class tst_PersonData : public QObject
{
    Q_OBJECT
private slots:
    void roundTrip();
};

void tst_PersonData::roundTrip()
{
    TestStore store;
    PersonData& data = PersonData::instance();
    const QString root = data.getRootOrganizationId();
    QVERIFY(data.isRootOrganization(root));
    QVERIFY(data.addPersons({person("a", "A1", "Anna", root), person("b", "", "Bob")}));
    PersonInfo full = person("c", "C3", "Carl", root);
    full.faceImage1 = "jpeg-1";
    full.faceImage3 = "jpeg-3";
    full.customFields = {{"Shoe", "42"}};
    QVERIFY(data.addPerson(full));
    QCOMPARE(data.getAllPersons(false).count(), 3);
    QCOMPARE(data.getPersons({root}, false).count(), 2);
    QString problem;
    QVERIFY2(DataService::instance().checkConsistency(&problem), qPrintable(problem));
    store.reopen();
    QCOMPARE(data.getAllPersons(false).count(), 3);
    QCOMPARE(data.getPersonBySerialNum("C3", false).faceImage3, QByteArray("jpeg-3"));
    QCOMPARE(data.getPersonByName("Carl", false).customFields.value("Shoe"), QString("42"));
    full.name = "Karl";
    QVERIFY(data.updatePerson(full));
    QVERIFY(data.deletePersons({"a"}));
    const QString leaf = data.createOrganization({"X", "Y"});
    QVERIFY(data.changePersonsOrganization({full}, leaf, true));
    QCOMPARE(data.getPersons({leaf}, false).count(), 1);
    QVERIFY(data.changePersonsOrganization(data.getPersons({leaf}, false), root, false));
    QVERIFY2(DataService::instance().checkConsistency(&problem), qPrintable(problem));
    QVERIFY(data.deleteOrganizations({leaf}));
    QVERIFY2(DataService::instance().checkConsistency(&problem), qPrintable(problem));
}

QTEST_GUILESS_MAIN(tst_PersonData)
#include "tst_PersonData.moc"
