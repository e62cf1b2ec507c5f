#pragma once

#include <dvx_client_sdk/FaceRecords.h>

#include <QList>
#include <QString>

namespace qarn_personMgr
{

/// Takes the faces of one channel into the register, in their order: a person with the same serial number is
/// updated, any other is added to the organization. A face that the register refuses is left out.
void importFaces(const QList<dvx_sdk::FaceInfo>& faces, const QString& organizationId);

} // namespace qarn_personMgr
