#include "FaceChannel.h"

#include <algorithm>
#include <mutex>

namespace sim
{

std::string externalId(const Face& face)
{
    return face.attributes.value("externalId", std::string());
}

FaceChannel::FaceChannel(std::size_t capacity) : m_capacity(capacity) {}

FaceChannel::AddResult FaceChannel::add(const FacePtr& face)
{
    const std::string key = externalId(*face);
    const std::unique_lock lock(m_mutex);
    if (m_byId.count(face->id) != 0 || (!key.empty() && m_byExternalId.count(key) != 0))
        return AddResult::Duplicate;
    if (m_faces.size() >= m_capacity)
        return AddResult::Full;
    m_faces.push_back(face);
    m_byId[face->id] = face;
    if (!key.empty())
        m_byExternalId[key] = face;
    return AddResult::Added;
}

bool FaceChannel::remove(const std::string& id)
{
    const std::unique_lock lock(m_mutex);
    const auto found = m_byId.find(id);
    if (found == m_byId.end())
        return false;
    const FacePtr face = found->second;
    m_byId.erase(found);
    if (const std::string key = externalId(*face); !key.empty())
        m_byExternalId.erase(key);
    m_faces.erase(std::find(m_faces.begin(), m_faces.end(), face));
    return true;
}

FacePtr FaceChannel::find(const std::string& id) const
{
    const std::shared_lock lock(m_mutex);
    const auto found = m_byId.find(id);
    return found == m_byId.end() ? nullptr : found->second;
}

std::vector<FacePtr> FaceChannel::page(std::size_t first, std::size_t count, std::size_t& total) const
{
    const std::shared_lock lock(m_mutex);
    total = m_faces.size();
    const std::size_t begin = std::min(first, total);
    const std::size_t end = begin + std::min(count, total - begin);
    return {m_faces.begin() + static_cast<std::ptrdiff_t>(begin),
            m_faces.begin() + static_cast<std::ptrdiff_t>(end)};
}

} // namespace sim
