#pragma once

#include <nlohmann/json.hpp>

#include <memory>
#include <shared_mutex>
#include <string>
#include <unordered_map>
#include <vector>

namespace sim
{

/// A face as it was added. The photograph stands apart since most readers leave it out.
struct Face {
    std::string id;
    nlohmann::json attributes; ///< everything but the photograph
    std::string photo;         ///< Base64
};

using FacePtr = std::shared_ptr<const Face>;

/// The face list of one channel, in the order of adding. Any thread.
class FaceChannel
{
public:
    enum class AddResult { Added, Duplicate, Full };

    explicit FaceChannel(std::size_t capacity);

    /// Refuses an externalId that another face has. An empty one is never a duplicate.
    AddResult add(const FacePtr& face);
    bool remove(const std::string& id);
    FacePtr find(const std::string& id) const; ///< null when there is none
    /// Faces from `first` (counted from 0); `total` gets the size of the whole list.
    std::vector<FacePtr> page(std::size_t first, std::size_t count, std::size_t& total) const;

private:
    std::size_t m_capacity;
    mutable std::shared_mutex m_mutex;
    std::vector<FacePtr> m_faces;
    std::unordered_map<std::string, FacePtr> m_byId;
    std::unordered_map<std::string, FacePtr> m_byExternalId;
};

std::string externalId(const Face& face);

} // namespace sim
