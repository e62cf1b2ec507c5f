#include "Journal.h"

#include <filesystem>
#include <random>

namespace sim
{

namespace
{

bool replayLine(const nlohmann::json& line, const Channels& channels)
{
    const auto channel = channels.find(line.at("channel").get<int>());
    if (channel == channels.end())
        return true; // the device was started with fewer channels this time
    if (line.contains("deleted")) {
        channel->second->remove(line.at("deleted").get<std::string>());
        return true;
    }
    return channel->second->add(makeFace(line.at("face"))) == FaceChannel::AddResult::Added;
}

/// `good` gets the number of bytes up to a torn last line.
bool replay(std::istream& file, const Channels& channels, std::streamoff& good, std::string& error)
{
    std::string text;
    for (int number = 1; std::getline(file, text); ++number) {
        const bool lineEnds = !file.eof();
        try {
            if (text.empty() || replayLine(nlohmann::json::parse(text), channels)) {
                good += static_cast<std::streamoff>(text.size()) + (lineEnds ? 1 : 0);
                continue;
            }
            error = "face refused";
        } catch (const nlohmann::json::exception& failure) {
            if (!lineEnds) // of a device that was killed while it wrote
                return true;
            error = failure.what();
        }
        error = "line " + std::to_string(number) + ": " + error;
        return false;
    }
    return true;
}

} // namespace

std::string newFaceId()
{
    thread_local std::mt19937_64 random{std::random_device{}()};
    constexpr char digits[] = "0123456789abcdef";
    std::string id = "face-";
    auto bits = random();
    for (int i = 0; i < 16; ++i, bits >>= 4)
        id += digits[bits & 0xf];
    return id;
}

FacePtr makeFace(nlohmann::json object)
{
    auto face = std::make_shared<Face>();
    if (const auto photo = object.find("photo"); photo != object.end()) {
        face->photo = std::move(photo->get_ref<std::string&>());
        object.erase(photo);
    }
    if (!object.contains("id"))
        object["id"] = newFaceId();
    face->id = object.at("id").get<std::string>();
    face->attributes = std::move(object);
    return face;
}

bool Journal::open(const std::string& path, const Channels& channels, std::string& error)
{
    std::streamoff good = 0;
    std::ifstream file(path);
    if (file && !replay(file, channels, good, error)) {
        error = path + ", " + error;
        return false;
    }
    std::error_code failure; // told below, by what cannot be written
    if (file.is_open())
        std::filesystem::resize_file(path, static_cast<std::uintmax_t>(good), failure);
    m_file.open(path, std::ios::app | std::ios::ate);
    if (!m_file)
        error = path + " cannot be written";
    else if (m_file.tellp() > 0)
        m_file << '\n'; // the last line may lack its end
    return m_file.good();
}

void Journal::added(int channel, const Face& face)
{
    nlohmann::json object = face.attributes;
    object["photo"] = face.photo;
    append({{"channel", channel}, {"face", std::move(object)}});
}

void Journal::deleted(int channel, const std::string& id)
{
    append({{"channel", channel}, {"deleted", id}});
}

void Journal::append(const nlohmann::json& line)
{
    const std::lock_guard lock(m_mutex);
    if (m_file.is_open())
        m_file << line.dump() << std::endl;
}

} // namespace sim
