#pragma once

#include "FaceJob.h"

#include <dvx_client_sdk/FaceRecords.h>

namespace dvx_sdk
{

/// Reads one page of a channel's faces. A device that gives smaller pages is asked again until the page is
/// full, since the pages of the answers count by the size that was asked for.
class GetFacesJob : public FaceJob
{
    Q_OBJECT
public:
    GetFacesJob(const GetFacesCondition& condition, FaceIdMap& ids);

protected:
    Needs needs() const override { return Needs::Endpoint; }
    void perform() override;
    void emitAnswer(int code) override;

private:
    void slotPage(const HttpResult& result);

    const GetFacesCondition m_condition;
    const int m_pageSize;
    qint64 m_start; ///< index of the next face to ask for, counted from 1
    FaceInfoList m_faces;
    uint m_total = 0;
};

} // namespace dvx_sdk
