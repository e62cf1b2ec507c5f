#include "AddFaceJob.h"

#include "FaceJson.h"

#include <dvx_client_sdk/ClientSignals.h>
#include <dvx_client_sdk/ResponseCodes.h>

#include <QJsonObject>

namespace dvx_sdk
{

namespace
{

constexpr int TimeoutMs = 30000;
constexpr int CreatedStatus = 201;
constexpr qint64 AnswerBytes = SmallAnswerBytes + 4 * 1024 * 1024; ///< some devices send the photograph back

bool isCreated(const HttpResult& result)
{
    QJsonObject object;
    return result.status == CreatedStatus && (result.body.isEmpty() || parseScimObject(result.body, object));
}

} // namespace

AddFaceJob::AddFaceJob(const ModifyFaceCondition& face, FaceIdMap& ids)
    : FaceJob({face.requestId, face.deviceId, face.channelNo}, TimeoutMs, ids),
      m_face(face)
{
}

void AddFaceJob::perform()
{
    const QByteArray body = faceToJson(m_face, service());
    m_face = {}; // the photograph is needed once only
    send("POST", service().endpoint, body, AnswerBytes, [this](const HttpResult& result) {
        if (isCreated(result))
            end(Success);
        else
            refuse(result.status == CreatedStatus ? 0 : result.status);
    });
}

void AddFaceJob::emitAnswer(int code)
{
    emit ClientSignals::instance().signalAddFaceRes({target().requestId, code});
}

} // namespace dvx_sdk
