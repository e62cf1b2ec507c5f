#include <dvx_client_sdk/ClientSignals.h>

namespace dvx_sdk
{

ClientSignals::ClientSignals()
{
    // Listeners in other threads get copies by queued connections.
    qRegisterMetaType<Response>("dvx_sdk::Response");
    qRegisterMetaType<FaceInfoList>("QList<dvx_sdk::FaceInfo>");
}

ClientSignals& ClientSignals::instance()
{
    static ClientSignals clientSignals;
    return clientSignals;
}

} // namespace dvx_sdk
