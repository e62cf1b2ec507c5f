#include "sync/ChannelRequests.h"

#include "sync/FaceConversion.h"

#include <dvx_client_sdk/FaceRequests.h>
#include <qarn_data/PersonData.h>

namespace qarn_personMgr
{

ChannelRequests::ChannelRequests(const QString& syncId, const Channel& channel)
    : m_syncId(syncId),
      m_channel(channel)
{
}

template <typename Condition>
void ChannelRequests::address(Condition& condition) const
{
    condition.requestId = m_syncId;
    condition.deviceId = m_channel.first;
    condition.channelNo = m_channel.second;
}

void ChannelRequests::askFaces(int received, bool withImages) const
{
    constexpr int ListPageSize = 32;
    constexpr int ImagePageSize = 1; // an answer with photographs stays small
    dvx_sdk::GetFacesCondition condition;
    address(condition);
    condition.includeImages = withImages;
    condition.pageSize = withImages ? ImagePageSize : ListPageSize;
    condition.pageNo = received / condition.pageSize + 1;
    dvx_sdk::get_faces_req(condition);
}

void ChannelRequests::deleteFace(const dvx_sdk::FaceInfo& face) const
{
    dvx_sdk::DelFaceCondition condition;
    address(condition);
    condition.faceId = face.faceId;
    dvx_sdk::del_face_req(condition);
}

void ChannelRequests::addFaceOf(const qarn_data::PersonInfo& person) const
{
    const QStringList organizationNames =
        qarn_data::PersonData::instance().getHierarchicalOrganizationNames(person.organizationId);
    dvx_sdk::ModifyFaceCondition face = faceOfPerson(person, organizationNames);
    address(face);
    dvx_sdk::add_face_req(face);
}

} // namespace qarn_personMgr
