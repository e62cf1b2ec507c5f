#pragma once

#include "FaceJob.h"

#include <dvx_client_sdk/FaceRecords.h>

namespace dvx_sdk
{

/// Adds one face to a channel.
class AddFaceJob : public FaceJob
{
    Q_OBJECT
public:
    AddFaceJob(const ModifyFaceCondition& face, FaceIdMap& ids);

protected:
    Needs needs() const override { return Needs::Schema; }
    void perform() override;
    void emitAnswer(int code) override;

private:
    ModifyFaceCondition m_face;
};

} // namespace dvx_sdk
