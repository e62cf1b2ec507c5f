#pragma once

#include <dvx_client_sdk/FaceRecords.h>
#include <qarn_data/PersonInfo.h>

#include <QStringList>

namespace qarn_personMgr
{

/// The face that a device gets for a person; request and channel are left to the caller.
dvx_sdk::ModifyFaceCondition faceOfPerson(const qarn_data::PersonInfo& person,
                                          const QStringList& organizationNames);

/// Takes into a known person what the device's face has; what it lacks stays.
void updatePersonFromFace(qarn_data::PersonInfo& person, const dvx_sdk::FaceInfo& face);

/// Makes a new person of a device's face. What the face lacks keeps the value that `person` came with.
void fillPersonFromFace(qarn_data::PersonInfo& person, const dvx_sdk::FaceInfo& face,
                        const QString& organizationId);

/// What a message calls the person.
QString displayName(const qarn_data::PersonInfo& person);

} // namespace qarn_personMgr
