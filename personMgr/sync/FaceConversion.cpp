#include "sync/FaceConversion.h"

#include <QUuid>

using dvx_sdk::FaceInfo;
using qarn_data::PersonInfo;

namespace qarn_personMgr
{

namespace
{

constexpr int FacePresetCode = 18;
constexpr int MadeUpSerialNumLength = 10;

void takeImageAndValidity(PersonInfo& person, const FaceInfo& face)
{
    if (!face.faceImages.isEmpty())
        person.faceImage1 = QByteArray::fromBase64(face.faceImages.first());
    if (face.validStartTime.isValid())
        person.validStartTime = face.validStartTime;
    if (face.validEndTime.isValid())
        person.validEndTime = face.validEndTime;
}

} // namespace

dvx_sdk::ModifyFaceCondition faceOfPerson(const PersonInfo& person, const QStringList& organizationNames)
{
    dvx_sdk::ModifyFaceCondition face;
    face.serialNum = person.serialNum;
    face.name = person.name;
    face.organizationNames = organizationNames;
    face.sex = person.sex;
    face.presetCode = FacePresetCode;
    face.listType = dvx_sdk::generalListType;
    face.validStartTime = person.validStartTime;
    face.validEndTime = person.validEndTime;
    face.faceImages = {person.faceImage1.toBase64()};
    return face;
}

void updatePersonFromFace(PersonInfo& person, const FaceInfo& face)
{
    if (!face.name.isEmpty())
        person.name = face.name;
    person.sex = face.sex;
    takeImageAndValidity(person, face);
}

void fillPersonFromFace(PersonInfo& person, const FaceInfo& face, const QString& organizationId)
{
    person.id = QUuid::createUuid().toString();
    person.serialNum = face.serialNum;
    person.name = face.name;
    person.sex = face.sex;
    person.organizationId = organizationId;
    takeImageAndValidity(person, face);
    if (person.serialNum.isEmpty())
        person.serialNum = QUuid::createUuid().toString().left(MadeUpSerialNumLength);
}

QString displayName(const PersonInfo& person)
{
    return person.name.isEmpty() ? person.serialNum : person.name;
}

} // namespace qarn_personMgr
