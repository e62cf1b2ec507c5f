#include "FaceJson.h"

#include "FaceService.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
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

/// SCIM allows the URL alphabet too (RFC 7643, 2.3.6); who takes the image expects the standard one.
QByteArray toStandardAlphabet(QByteArray base64)
{
    if (base64.contains('-') || base64.contains('_')) { // hardly any does, and it is the largest part
        base64.replace('-', '+');
        base64.replace('_', '/');
    }
    return base64;
}

bool isBase64(const QByteArray& text)
{
    return std::all_of(text.cbegin(), text.cend(), [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '+' ||
               c == '/' || c == '=';
    });
}

QString toId(const QJsonValue& value)
{
    // Beyond 2^53 a JSON number is not exact any more: two faces might get one id.
    if (value.isDouble() && std::abs(value.toDouble()) < MaxExactNumber)
        return QString::number(static_cast<qint64>(value.toDouble()));
    return value.toString();
}

bool parseFace(const QJsonObject& object, QPair<QString, FaceInfo>& entry)
{
    entry.first = toId(scimValue(object, "id"));
    FaceInfo& face = entry.second;
    const QJsonValue name = scimValue(object, "name");
    face.serialNum = scimValue(object, "externalId").toString();
    face.name = name.isObject() ? scimValue(name.toObject(), "formatted").toString() : name.toString();
    face.sex = fromSex(scimValue(object, "sex"));
    face.validStartTime = fromTime(scimValue(object, "validFrom"));
    face.validEndTime = fromTime(scimValue(object, "validTo"));
    const QByteArray photo = toStandardAlphabet(scimValue(object, "photo").toString().toLatin1());
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
    if (!service.takes("photo") || photo.isEmpty() || !isBase64(photo))
        return json;
    json.chop(1); // Base64 needs no escapes: by far the largest part is copied once
    json.reserve(json.size() + photo.size() + 16);
    return json += ",\"photo\":\"" + photo + "\"}";
}

bool parseFacePage(const QByteArray& body, qint64 startIndex, FacePage& page)
{
    QJsonObject list;
    if (!parseScimObject(body, list))
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
        if (!resource.isObject() || !parseFace(resource.toObject(), entry))
            return false;
        page.faces.append(entry);
    }
    return true;
}

} // namespace dvx_sdk
