#include "FaceService.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>

#include <algorithm>

namespace dvx_sdk
{

namespace
{

/// The objects of a list answer; of an array, or a single object, as some servers send them.
QJsonArray resourcesOf(const QByteArray& body)
{
    const QJsonDocument document = QJsonDocument::fromJson(body);
    if (document.isArray())
        return document.array();
    const QJsonValue list = scimValue(document.object(), "Resources");
    return list.isArray() ? list.toArray() : QJsonArray{document.object()};
}

/// The endpoint goes into the request line as it is.
bool isPath(const QString& endpoint)
{
    return endpoint.startsWith(QLatin1Char('/')) && endpoint.size() > 1 &&
           std::all_of(endpoint.cbegin(), endpoint.cend(), [](QChar c) {
               return c.unicode() > 0x20 && c.unicode() < 0x7f && c != QLatin1Char('?') &&
                      c != QLatin1Char('#');
           });
}

bool isFaceType(const QJsonObject& type)
{
    const QString face = QStringLiteral("Face");
    return scimValue(type, "name").toString().compare(face, Qt::CaseInsensitive) == 0 ||
           scimValue(type, "id").toString().compare(face, Qt::CaseInsensitive) == 0;
}

} // namespace

bool FaceService::takes(const char* attribute) const
{
    return attributes.isEmpty() || attributes.contains(QString::fromLatin1(attribute).toLower());
}

FaceService parseResourceTypes(const QByteArray& body)
{
    const QJsonArray types = resourcesOf(body);
    for (const QJsonValue& value : types) {
        const QJsonObject type = value.toObject();
        const QString endpoint = scimValue(type, "endpoint").toString();
        const QString schema = scimValue(type, "schema").toString();
        if (isFaceType(type) && isPath(endpoint) && !schema.isEmpty())
            return {endpoint.toLatin1(), schema, {}, false};
    }
    return {};
}

QSet<QString> parseSchema(const QByteArray& body, const QString& schemaUrn)
{
    QSet<QString> names;
    const QJsonArray schemas = resourcesOf(body);
    for (const QJsonValue& schema : schemas) {
        if (scimValue(schema.toObject(), "id").toString().compare(schemaUrn, Qt::CaseInsensitive) != 0)
            continue;
        const QJsonArray attributes = scimValue(schema.toObject(), "attributes").toArray();
        for (const QJsonValue& attribute : attributes)
            names.insert(scimValue(attribute.toObject(), "name").toString().toLower());
    }
    return names;
}

QJsonValue scimValue(const QJsonObject& object, const char* name)
{
    const QLatin1String wanted(name);
    const auto exact = object.constFind(wanted);
    if (exact != object.constEnd())
        return *exact;
    for (auto member = object.constBegin(); member != object.constEnd(); ++member) {
        if (member.key().compare(wanted, Qt::CaseInsensitive) == 0)
            return *member;
    }
    return QJsonValue::Undefined;
}

bool parseScimObject(const QByteArray& body, QJsonObject& object)
{
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(body, &error);
    object = document.object();
    return error.error == QJsonParseError::NoError && document.isObject();
}

} // namespace dvx_sdk
