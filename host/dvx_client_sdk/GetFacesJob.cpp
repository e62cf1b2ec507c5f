#include "GetFacesJob.h"

#include "FaceIdMap.h"
#include "FaceJson.h"

#include <dvx_client_sdk/ClientSignals.h>
#include <dvx_client_sdk/ResponseCodes.h>

#include <algorithm>

namespace dvx_sdk
{

namespace
{

constexpr int TimeoutMs = 10000;
constexpr int WithImagesTimeoutMs = 30000;
constexpr int MaxPageSize = 1000;
constexpr int OkStatus = 200;
constexpr qint64 MaxAnswerBytes = 64 * 1024 * 1024;
constexpr qint64 FaceBytes = 256 * 1024;
constexpr qint64 FaceWithImageBytes = 4 * 1024 * 1024; ///< the largest photograph as Base64, and some

qint64 answerLimit(int faces, bool withImages)
{
    return std::min(SmallAnswerBytes + faces * (withImages ? FaceWithImageBytes : FaceBytes), MaxAnswerBytes);
}

FaceJob::Target targetOf(const GetFacesCondition& condition)
{
    return {condition.requestId, condition.deviceId, condition.channelNo};
}

} // namespace

GetFacesJob::GetFacesJob(const GetFacesCondition& condition, FaceIdMap& ids)
    : FaceJob(targetOf(condition), condition.includeImages ? WithImagesTimeoutMs : TimeoutMs, ids),
      m_condition(condition),
      m_pageSize(std::clamp(condition.pageSize, 1, MaxPageSize)),
      m_start(qint64(std::max(condition.pageNo, 1) - 1) * m_pageSize + 1)
{
}

void GetFacesJob::perform()
{
    const int count = m_pageSize - m_faces.count();
    QByteArray path = service().endpoint + "?startIndex=" + QByteArray::number(m_start) +
                      "&count=" + QByteArray::number(count);
    if (!m_condition.includeImages)
        path += "&excludedAttributes=photo";
    send("GET", path, {}, answerLimit(count, m_condition.includeImages),
         [this](const HttpResult& result) { slotPage(result); });
}

void GetFacesJob::slotPage(const HttpResult& result)
{
    if (result.status != OkStatus)
        return refuse(result.status);
    FacePage page;
    if (!parseFacePage(result.body, m_start, page))
        return end(BadAnswer);
    const bool facesLeft = m_start <= page.total;
    if (facesLeft && page.faces.isEmpty())
        return end(BadAnswer); // would keep a reader going for ever
    for (auto& [id, face] : page.faces) {
        if (m_faces.count() == m_pageSize)
            break; // more than asked for
        face.faceId = ids().number(channelKey(), id);
        if (!m_condition.includeImages)
            face.faceImages.clear();
        m_faces.append(face);
        ++m_start;
    }
    m_total = static_cast<uint>(page.total);
    if (m_faces.count() < m_pageSize && m_start <= page.total)
        perform();
    else
        end(Success);
}

void GetFacesJob::emitAnswer(int code)
{
    if (code != Success)
        m_faces.clear();
    emit ClientSignals::instance().signalGetFacesRes({target().requestId, code}, m_faces,
                                                     code == Success ? m_total : 0,
                                                     static_cast<uint>(m_faces.count()));
}

} // namespace dvx_sdk
