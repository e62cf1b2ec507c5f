#include "FaceJson.h"

#include "FaceService.h"
#include "PhotoCut.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

namespace dvx_sdk
{

namespace
{

constexpr qint64 MaxTotal = 250000; ///< faces that a channel can be believed to hold
constexpr int MaxIdLength = 1024;
constexpr double MaxExactNumber = 9007199254740992.0;

QString toTime(const QDateTime& time)
{
    return time.toUTC().toString(Qt::ISODateWithMs); // ends in "Z"
}

QDateTime fromTime(const QJsonValue& value)
{
    const QDateTime time = QDateTime::fromString(value.toString(), Qt::ISODateWithMs);
    return time.isValid() ? time.toLocalTime() : QDateTime();
}

int fromSex(const QJsonValue& value)
{
    if (value.isDouble())
        return value.toInt(1);
    const QString text = value.toString();
    bool number = false;
    const int sex = text.toInt(&number);
    if (number)
        return sex;
    return text.compare(QLatin1String("female"), Qt::CaseInsensitive) == 0 ? 2 : 1;
}

QString toId(const QJsonValue& value)
{
    // Beyond 2^53 a JSON number is not exact any more: two faces might get one id.
    if (value.isDouble() && std::abs(value.toDouble()) < MaxExactNumber)
        return QString::number(static_cast<qint64>(value.toDouble()));
    return value.toString();
}

/// The text is the photograph, or the number of one that was cut out.
QByteArray photoOf(const QJsonValue& value, const QList<QByteArray>& cutOut)
{
    const QByteArray text = value.toString().toLatin1();
    if (text.isEmpty())
        return {};
    return toStandardAlphabet(cutOut.isEmpty() ? text : cutOut.value(text.toInt()));
}

bool parseFace(const QJsonObject& object, const QList<QByteArray>& photos, QPair<QString, FaceInfo>& entry)
{
    entry.first = toId(scimValue(object, "id"));
    FaceInfo& face = entry.second;
    const QJsonValue name = scimValue(object, "name");
    face.serialNum = scimValue(object, "externalId").toString();
    face.name = name.isObject() ? scimValue(name.toObject(), "formatted").toString() : name.toString();
    face.sex = fromSex(scimValue(object, "sex"));
    face.validStartTime = fromTime(scimValue(object, "validFrom"));
    face.validEndTime = fromTime(scimValue(object, "validTo"));
    const QByteArray photo = photoOf(scimValue(object, "photo"), photos);
    if (!photo.isEmpty())
        face.faceImages.append(photo);
    return !entry.first.isEmpty() && entry.first.size() <= MaxIdLength;
}

} // namespace

QByteArray faceToJson(const ModifyFaceCondition& face, const FaceService& service)
{
    QJsonObject object{{QStringLiteral("schemas"), QJsonArray{service.schemaUrn}}};
    const auto put = [&object, &service](const char* name, const QJsonValue& value) {
        if (service.takes(name))
            object.insert(QLatin1String(name), value);
    };
    if (!face.serialNum.isEmpty())
        object.insert(QStringLiteral("externalId"), face.serialNum);
    put("name", face.name);
    put("organization", QJsonArray::fromStringList(face.organizationNames));
    put("sex", face.sex);
    put("listType", face.listType);
    if (face.validStartTime.isValid())
        put("validFrom", toTime(face.validStartTime));
    if (face.validEndTime.isValid())
        put("validTo", toTime(face.validEndTime));
    QByteArray json = QJsonDocument(object).toJson(QJsonDocument::Compact);
    const QByteArray photo = face.faceImages.value(0);
    if (!service.takes("photo") || photo.isEmpty() || !isPlainText(photo.constData(), photo.size()))
        return json;
    json.chop(1); // Base64 needs no escapes: by far the largest part is copied once
    json.reserve(json.size() + photo.size() + 16);
    json += ",\"photo\":\"";
    json += photo;
    return json += "\"}";
}

bool parseFacePage(const QByteArray& body, qint64 startIndex, FacePage& page)
{
    QJsonObject list;
    const PhotoCut cut = cutPhotos(body);
    if (!parseScimObject(cut.body, list))
        return false;
    const QJsonValue total = scimValue(list, "totalResults");
    const QJsonValue start = scimValue(list, "startIndex");
    if (!total.isDouble() || total.toDouble() < 0 || total.toDouble() > MaxTotal)
        return false;
    page.total = static_cast<qint64>(total.toDouble());
    const QJsonArray resources = scimValue(list, "Resources").toArray(); // absent when there are none
    if (start.isDouble() && !resources.isEmpty() && start.toDouble() != static_cast<double>(startIndex))
        return false;
    for (const QJsonValue& resource : resources) {
        QPair<QString, FaceInfo> entry;
        if (!resource.isObject() || !parseFace(resource.toObject(), cut.photos, entry))
            return false;
        page.faces.append(entry);
    }
    return true;
}

} // namespace dvx_sdk
