#include "sync/FaceConversion.h"

#include <QtTest>

using dvx_sdk::FaceInfo;
using qarn_data::PersonInfo;
using namespace qarn_personMgr;

class tst_FaceConversion : public QObject
{
    Q_OBJECT
private slots:
    void faceHasWhatThePersonHas();
    void faceWithoutAPhotograph();
    void updateTakesOnlyWhatIsThere();
    void newPersonKeepsWhatTheFaceLacks();
    void nameForMessages();
};

void tst_FaceConversion::faceHasWhatThePersonHas()
{
    PersonInfo person;
    person.serialNum = "A1";
    person.name = "Ann";
    person.sex = 2;
    person.faceImage1 = QByteArray("\xff\xd8\xff\xfb", 4);
    person.faceImage2 = "second";
    const dvx_sdk::ModifyFaceCondition face = faceOfPerson(person, {"Root", "Door"});
    QCOMPARE(face.serialNum, QString("A1"));
    QCOMPARE(face.name, QString("Ann"));
    QCOMPARE(face.sex, 2);
    QCOMPARE(face.organizationNames, QStringList({"Root", "Door"}));
    QCOMPARE(face.presetCode, 18);
    QCOMPARE(face.reservedNumber2, 0);
    QCOMPARE(face.listType, QString("general"));
    QCOMPARE(face.validStartTime, person.validStartTime);
    QCOMPARE(face.validEndTime, person.validEndTime);
    QCOMPARE(face.faceImages, QList<QByteArray>{"/9j/+w=="});
}

void tst_FaceConversion::faceWithoutAPhotograph()
{
    QCOMPARE(faceOfPerson(PersonInfo(), {}).faceImages, QList<QByteArray>{QByteArray()});
}

void tst_FaceConversion::updateTakesOnlyWhatIsThere()
{
    PersonInfo person;
    person.id = "id";
    person.name = "Old";
    person.faceImage1 = "image";
    const QDateTime start = person.validStartTime;
    FaceInfo face;
    face.sex = 2;
    updatePersonFromFace(person, face);
    QCOMPARE(person.id, QString("id"));
    QCOMPARE(person.name, QString("Old"));
    QCOMPARE(person.faceImage1, QByteArray("image"));
    QCOMPARE(person.validStartTime, start);
    QCOMPARE(person.sex, 2);
    face.name = "New";
    face.faceImages = {QByteArray("bmV3"), QByteArray("b3RoZXI=")};
    face.validEndTime = QDateTime(QDate(2030, 1, 1), QTime(0, 0));
    updatePersonFromFace(person, face);
    QCOMPARE(person.name, QString("New"));
    QCOMPARE(person.faceImage1, QByteArray("new"));
    QCOMPARE(person.validStartTime, start);
    QCOMPARE(person.validEndTime, face.validEndTime);
}

void tst_FaceConversion::newPersonKeepsWhatTheFaceLacks()
{
    PersonInfo person;
    person.id = "before";
    person.name = "Before";
    person.faceImage1 = "image";
    person.job = "Guard";
    fillPersonFromFace(person, FaceInfo(), "org");
    QVERIFY(person.id != "before");
    QVERIFY(!QUuid(person.id).isNull());
    QCOMPARE(person.name, QString());
    QCOMPARE(person.organizationId, QString("org"));
    QCOMPARE(person.faceImage1, QByteArray("image"));
    QCOMPARE(person.job, QString("Guard"));
    QCOMPARE(person.serialNum.size(), 10);
}

void tst_FaceConversion::nameForMessages()
{
    PersonInfo person;
    person.serialNum = "A1";
    QCOMPARE(displayName(person), QString("A1"));
    person.name = "Ann";
    QCOMPARE(displayName(person), QString("Ann"));
}

QTEST_GUILESS_MAIN(tst_FaceConversion)
#include "tst_FaceConversion.moc"
