#pragma once

#include "FaultPlan.h"
#include "Journal.h"
#include "Options.h"

#include <httplib.h>

namespace sim
{

/// One request to a channel.
struct Call {
    int number;
    FaceChannel& channel;
    Fault fault; ///< Total, Empty or None: what a list has to pretend
    const httplib::Request& request;
    httplib::Response& response;
};

/// What a device does for each kind of request.
class FaceHandlers
{
public:
    FaceHandlers(const Options& options, const Channels& channels, Journal& journal);

    void describeDevice(httplib::Response& response) const;
    void describeService(const Call& call);
    void describeTypes(const Call& call);
    void describeSchemas(const Call& call);
    void describeSchema(const Call& call);
    void listFaces(const Call& call);
    void addFace(const Call& call);
    void getFace(const Call& call);
    void deleteFace(const Call& call);

private:
    const Options& m_options;
    const Channels& m_channels;
    Journal& m_journal;
};

} // namespace sim
