#include <dvx_client_sdk/FaceRequests.h>

#include "AddFaceJob.h"
#include "DeleteFaceJob.h"
#include "DeviceLink.h"
#include "GetFacesJob.h"
#include "LinkThread.h"

#include <dvx_client_sdk/ClientSignals.h>
#include <dvx_client_sdk/ResponseCodes.h>

namespace dvx_sdk
{

namespace
{

/// False when the link has ended.
template <typename Job, typename Condition>
bool post(const Condition& condition)
{
    return LinkThread::instance().post([condition](DeviceLink& link) {
        link.run(condition.deviceId, condition.channelNo, new Job(condition, link.ids()));
    });
}

} // namespace

void get_faces_req(const GetFacesCondition& condition)
{
    if (!post<GetFacesJob>(condition))
        emit ClientSignals::instance().signalGetFacesRes({condition.requestId, ShuttingDown}, {}, 0, 0);
}

void add_face_req(const ModifyFaceCondition& condition)
{
    if (!post<AddFaceJob>(condition))
        emit ClientSignals::instance().signalAddFaceRes({condition.requestId, ShuttingDown});
}

void del_face_req(const DelFaceCondition& condition)
{
    if (!post<DeleteFaceJob>(condition))
        emit ClientSignals::instance().signalDelFaceRes({condition.requestId, ShuttingDown});
}

} // namespace dvx_sdk
