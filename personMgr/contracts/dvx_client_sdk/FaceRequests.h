#pragma once

#include <dvx_client_sdk/Export.h>

namespace dvx_sdk
{

struct DelFaceCondition;
struct GetFacesCondition;
struct ModifyFaceCondition;

/// Requests to a device channel. Any thread may call; each returns at once and is answered exactly once
/// by its signal of ClientSignals, whatever the device does. The answer may be emitted inside the call.

DVX_CLIENT_SDK_EXPORT void get_faces_req(const GetFacesCondition& condition);
DVX_CLIENT_SDK_EXPORT void add_face_req(const ModifyFaceCondition& condition);
DVX_CLIENT_SDK_EXPORT void del_face_req(const DelFaceCondition& condition);

} // namespace dvx_sdk
