#pragma once

#include "FaceChannel.h"

#include <fstream>
#include <map>
#include <mutex>
#include <string>

namespace sim
{

using Channels = std::map<int, std::unique_ptr<FaceChannel>>;

/// Keeps the faces in a file of JSON lines, one a change, so that a killed device starts with what it had:
///   {"channel":1,"face":{"externalId":"A1","name":"Ann","photo":"..."}}   "id" is made up when absent
///   {"channel":1,"deleted":"<id>"}
/// A file written by hand is as good as one written here.
class Journal
{
public:
    /// Replays the file into the channels and opens it for more. False with `error` for a file that cannot
    /// be used; no file yet is an empty one.
    bool open(const std::string& path, const Channels& channels, std::string& error);
    void added(int channel, const Face& face);
    void deleted(int channel, const std::string& id);

private:
    void append(const nlohmann::json& line);

    std::mutex m_mutex;
    std::ofstream m_file;
};

std::string newFaceId();
/// Splits a face's JSON object into attributes and photograph.
FacePtr makeFace(nlohmann::json object);

} // namespace sim
