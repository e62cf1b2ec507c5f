#pragma once

#include <QPair>
#include <QString>

namespace dvx_sdk
{
struct FaceInfo;
}

namespace qarn_data
{
struct PersonInfo;
}

namespace qarn_personMgr
{

/// Sends the requests of a synchronisation to one channel. The answers come by dvx_sdk::ClientSignals, under
/// the synchronisation's id.
class ChannelRequests
{
public:
    using Channel = QPair<QString, int>; ///< device id and channel number

    ChannelRequests(const QString& syncId, const Channel& channel);

    void askFaces(int received, bool withImages) const; ///< the page that follows so many faces
    void deleteFace(const dvx_sdk::FaceInfo& face) const;
    void addFaceOf(const qarn_data::PersonInfo& person) const;

private:
    template <typename Condition>
    void address(Condition& condition) const;

    const QString m_syncId;
    const Channel m_channel;
};

} // namespace qarn_personMgr
