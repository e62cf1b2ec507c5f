#pragma once

#include "FaceJob.h"

#include <dvx_client_sdk/FaceRecords.h>

namespace dvx_sdk
{

/// Deletes one face from a channel.
class DeleteFaceJob : public FaceJob
{
    Q_OBJECT
public:
    DeleteFaceJob(const DelFaceCondition& condition, FaceIdMap& ids);

protected:
    Needs needs() const override { return Needs::Endpoint; }
    void perform() override;
    void emitAnswer(int code) override;

private:
    const int m_faceId;
};

} // namespace dvx_sdk
