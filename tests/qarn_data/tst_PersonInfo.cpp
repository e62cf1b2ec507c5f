#include "Samples.h"

#include <QThread>
#include <QtTest>

#include <memory>

using namespace qarn_data;

/// Its slots name the types as the module's slots do: with and without the namespace.
class Receiver : public QObject
{
    Q_OBJECT
public:
    PersonList persons;
    PersonInfo person;
    OrganizationInfo organization;

public slots:
    void take(const PersonList& list, bool) { persons = list; }
    void takeOne(const qarn_data::PersonInfo& info, const QStringList&, bool) { person = info; }
    void takeOrganization(const OrganizationInfo& info, bool) { organization = info; }
};

class tst_PersonInfo : public QObject
{
    Q_OBJECT
private slots:
    void defaults();
    void blankAsksNoClock();
    void copiesEveryMember();
    void travelsThroughQueuedConnections();
    void typesAreKnownByAllTheirNames_data();
    void typesAreKnownByAllTheirNames();
};

void tst_PersonInfo::defaults()
{
    const QDateTime before = QDateTime::currentDateTime();
    const PersonInfo info;
    const QDateTime after = QDateTime::currentDateTime();
    QVERIFY(info.id.isEmpty());
    QVERIFY(info.organizationId.isEmpty() && info.serialNum.isEmpty() && info.name.isEmpty());
    QCOMPARE(info.sex, 1);
    QVERIFY(info.validStartTime >= before && info.validStartTime <= after);
    QCOMPARE(info.validEndTime, info.validStartTime.addMonths(1));
    QVERIFY(info.faceImage1.isEmpty() && info.faceImage2.isEmpty() && info.faceImage3.isEmpty());
    QCOMPARE(info.birthDate, QDate(1986, 10, 22));
    QCOMPARE(info.identityType, 0);
    QCOMPARE(info.employDate, info.validStartTime.date());
    QVERIFY(info.customFields.isEmpty());
}

void tst_PersonInfo::blankAsksNoClock()
{
    const PersonInfo info(PersonInfo::Blank::Record);
    QVERIFY(info.validStartTime.isNull() && info.validEndTime.isNull());
    QVERIFY(info.birthDate.isNull() && info.employDate.isNull());
    QCOMPARE(info.sex, 1);
}

void tst_PersonInfo::copiesEveryMember()
{
    const PersonInfo info = samples::fullPerson("full", "o");
    const PersonInfo copy = info;
    QCOMPARE(copy.id, info.id);
    QCOMPARE(copy.organizationId, info.organizationId);
    QCOMPARE(copy.serialNum, info.serialNum);
    QCOMPARE(copy.name, info.name);
    QCOMPARE(copy.sex, info.sex);
    QCOMPARE(copy.email, info.email);
    QCOMPARE(copy.phoneNum, info.phoneNum);
    QCOMPARE(copy.validStartTime, info.validStartTime);
    QCOMPARE(copy.validEndTime, info.validEndTime);
    QCOMPARE(copy.remarks, info.remarks);
    QCOMPARE(copy.faceImage1, info.faceImage1);
    QCOMPARE(copy.faceImage2, info.faceImage2);
    QCOMPARE(copy.faceImage3, info.faceImage3);
    QCOMPARE(copy.birthDate, info.birthDate);
    QCOMPARE(copy.identityType, info.identityType);
    QCOMPARE(copy.identityId, info.identityId);
    QCOMPARE(copy.job, info.job);
    QCOMPARE(copy.employDate, info.employDate);
    QCOMPARE(copy.address, info.address);
    QCOMPARE(copy.customFields, info.customFields);
}

void tst_PersonInfo::travelsThroughQueuedConnections()
{
    Receiver receiver;
    DataSignals& hub = DataSignals::instance();
    connect(&hub, &DataSignals::signalAddPersonsToLocalDB, &receiver, &Receiver::take);
    connect(&hub, &DataSignals::signalUpdatePersonInLocalDB, &receiver, &Receiver::takeOne);
    connect(&hub, &DataSignals::signalUpdateOrganizationInLocalDB, &receiver, &Receiver::takeOrganization);
    const PersonInfo info = samples::fullPerson("full", "o");
    const std::unique_ptr<QThread> thread(QThread::create([&] {
        emit hub.signalAddPersonsToLocalDB({info, info}, true);
        emit hub.signalUpdatePersonInLocalDB(info, {"full"}, true);
        emit hub.signalUpdateOrganizationInLocalDB({"o", "r", "Ost"}, true);
    }));
    thread->start();
    QVERIFY(thread->wait());
    QVERIFY(receiver.persons.isEmpty()); // queued: the slots run in this thread, later
    QTRY_COMPARE(receiver.persons.size(), 2);
    QTRY_COMPARE(receiver.organization.name, QString("Ost"));
    QCOMPARE(receiver.person.customFields, info.customFields);
    QVERIFY(receiver.persons.first().faceImage1.isSharedWith(info.faceImage1));
}

void tst_PersonInfo::typesAreKnownByAllTheirNames_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<int>("type");
    const int person = qMetaTypeId<PersonInfo>();
    const int list = qMetaTypeId<PersonList>();
    const int organization = qMetaTypeId<OrganizationInfo>();
    QTest::newRow("PersonInfo") << QByteArray("PersonInfo") << person;
    QTest::newRow("qarn_data::PersonInfo") << QByteArray("qarn_data::PersonInfo") << person;
    QTest::newRow("PersonList") << QByteArray("PersonList") << list;
    QTest::newRow("qarn_data::PersonList") << QByteArray("qarn_data::PersonList") << list;
    QTest::newRow("QList<PersonInfo>") << QByteArray("QList<PersonInfo>") << list;
    QTest::newRow("QList<qarn_data::PersonInfo>") << QByteArray("QList<qarn_data::PersonInfo>") << list;
    QTest::newRow("OrganizationInfo") << QByteArray("OrganizationInfo") << organization;
    QTest::newRow("qarn_data::OrganizationInfo") << QByteArray("qarn_data::OrganizationInfo") << organization;
}

void tst_PersonInfo::typesAreKnownByAllTheirNames()
{
    QFETCH(QByteArray, name);
    QFETCH(int, type);
    QCOMPARE(QMetaType::type(name.constData()), type);
}

QTEST_GUILESS_MAIN(tst_PersonInfo)
#include "tst_PersonInfo.moc"
