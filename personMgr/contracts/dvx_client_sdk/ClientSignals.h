#pragma once

#include <dvx_client_sdk/Export.h>
#include <dvx_client_sdk/FaceRecords.h>

#include <QObject>

namespace dvx_sdk
{

/// The answers of all devices to all requests. Emitted in a thread of this library; a listener keeps those
/// whose Response::requestId is its own.
class DVX_CLIENT_SDK_EXPORT ClientSignals : public QObject
{
    Q_OBJECT
public:
    static ClientSignals& instance();

signals:
    /// totalCnt: the faces that the channel holds. The last argument is the number of faces in this answer.
    void signalGetFacesRes(const dvx_sdk::Response& response, const QList<dvx_sdk::FaceInfo>& faces,
                           uint totalCnt, uint faceCnt);
    void signalAddFaceRes(const dvx_sdk::Response& response);
    void signalDelFaceRes(const dvx_sdk::Response& response);

private:
    ClientSignals();
};

} // namespace dvx_sdk
