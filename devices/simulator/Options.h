#pragma once

#include "FaultPlan.h"

#include <string>
#include <vector>

namespace sim
{

/// What the command line sets.
struct Options {
    std::string host = "127.0.0.1";
    int port = 0; ///< 0: a free one
    int channels = 1;
    int capacity = 50000; ///< faces a channel
    int pageLimit = 1000; ///< faces an answer, however many are asked for
    int latencyMs = 0;    ///< waited before each answer
    unsigned seed = 1;    ///< of random faults
    std::string name = "Face device";
    std::string token; ///< empty: none is asked for
    std::string dataFile;
    std::string tlsCertificate;
    std::string tlsKey;
    std::string schemaUrn = "urn:face-device:schemas:1.0:Face";
    bool untilStdinCloses = false;
    bool help = false;
    std::vector<FaultRule> faults;
};

/// False, with the reason in `error`, when the arguments make no sense.
bool parseOptions(const std::vector<std::string>& arguments, Options& options, std::string& error);
std::string usage();

} // namespace sim
