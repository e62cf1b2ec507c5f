#include "DeleteFaceJob.h"

#include "FaceIdMap.h"

#include <dvx_client_sdk/ClientSignals.h>
#include <dvx_client_sdk/ResponseCodes.h>

#include <QUrl>

namespace dvx_sdk
{

namespace
{

constexpr int TimeoutMs = 10000;
constexpr int DeletedStatus = 204;

} // namespace

DeleteFaceJob::DeleteFaceJob(const DelFaceCondition& condition, FaceIdMap& ids)
    : FaceJob({condition.requestId, condition.deviceId, condition.channelNo}, TimeoutMs, ids),
      m_faceId(condition.faceId)
{
}

void DeleteFaceJob::perform()
{
    const QString id = ids().id(channelKey(), m_faceId);
    if (id.isEmpty())
        return end(UnknownFace);
    const QByteArray path = service().endpoint + '/' + QUrl::toPercentEncoding(id);
    send("DELETE", path, {}, SmallAnswerBytes, [this, id](const HttpResult& result) {
        if (result.status != DeletedStatus)
            return refuse(result.status);
        ids().forget(channelKey(), id);
        end(Success);
    });
}

void DeleteFaceJob::emitAnswer(int code)
{
    emit ClientSignals::instance().signalDelFaceRes({target().requestId, code});
}

} // namespace dvx_sdk
