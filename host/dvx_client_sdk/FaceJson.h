#pragma once

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QString>
#include <dvx_client_sdk/FaceRecords.h>

namespace dvx_sdk
{

struct FaceService;

/// The body of an add request: what the service takes of the face.
QByteArray faceToJson(const ModifyFaceCondition& face, const FaceService& service);

/// One page of a face list. FaceInfo::faceId is left to the caller, who knows the ids' numbers.
struct FacePage {
    QList<QPair<QString, FaceInfo>> faces; ///< with the device's ids
    qint64 total = 0;                      ///< faces of the whole list
};

/// False when the body is no face list that starts at `startIndex`.
bool parseFacePage(const QByteArray& body, qint64 startIndex, FacePage& page);

} // namespace dvx_sdk
