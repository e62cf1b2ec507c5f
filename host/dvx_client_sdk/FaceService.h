#pragma once

#include <QByteArray>
#include <QSet>
#include <QString>

class QJsonDocument;
class QJsonObject;
class QJsonValue;

namespace dvx_sdk
{

/// What a channel tells about its face list.
struct FaceService {
    QByteArray endpoint;      ///< path of the list, below the channel's base
    QString schemaUrn;        ///< of the Face resource
    QSet<QString> attributes; ///< in lower case; empty: not told, so all are taken to be known
    bool schemaRead = false;  ///< attributes have been asked for

    bool isKnown() const { return !endpoint.isEmpty(); }
    bool takes(const char* attribute) const;
};

/// From a /ResourceTypes answer; an unknown service when there is no usable Face resource in it.
FaceService parseResourceTypes(const QByteArray& body);
/// The attribute names of the schema in a /Schemas answer; empty when it is not there.
QSet<QString> parseSchema(const QByteArray& body, const QString& schemaUrn);

/// A member of a SCIM object. Attribute names are not case sensitive (RFC 7643, 2.1).
QJsonValue scimValue(const QJsonObject& object, const char* name);
bool parseScimObject(const QByteArray& body, QJsonObject& object);

} // namespace dvx_sdk
