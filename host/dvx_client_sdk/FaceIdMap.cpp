#include "FaceIdMap.h"

#include <limits>

namespace dvx_sdk
{

FaceIdMap::FaceIdMap(int capacity) : m_capacity(capacity) {}

int FaceIdMap::number(const QString& channel, const QString& id)
{
    bool numeric = false;
    const int own = id.toInt(&numeric);
    if (numeric && own > 0 && own < FirstNumber && QString::number(own) == id)
        return own;
    const Key key(channel, id);
    if (const auto known = m_numbers.constFind(key); known != m_numbers.constEnd())
        return *known;
    const int next = m_oldest + static_cast<int>(m_keys.size());
    if (next == std::numeric_limits<int>::max()) { // a thousand million faces later
        m_numbers.clear();
        m_keys.clear();
        m_oldest = FirstNumber;
        return number(channel, id);
    }
    m_numbers.insert(key, next);
    m_keys.push_back(key);
    if (static_cast<int>(m_keys.size()) > m_capacity) {
        m_numbers.remove(m_keys.front());
        m_keys.pop_front();
        ++m_oldest;
    }
    return next;
}

QString FaceIdMap::id(const QString& channel, int number) const
{
    if (number > 0 && number < FirstNumber)
        return QString::number(number);
    const qint64 position = qint64(number) - m_oldest;
    if (position < 0 || position >= static_cast<qint64>(m_keys.size()))
        return {};
    const Key& key = m_keys[static_cast<std::size_t>(position)];
    return key.first == channel ? key.second : QString();
}

void FaceIdMap::forget(const QString& channel, const QString& id)
{
    const auto known = m_numbers.find(Key(channel, id));
    if (known == m_numbers.end())
        return;
    m_keys[static_cast<std::size_t>(*known - m_oldest)] = Key();
    m_numbers.erase(known);
}

} // namespace dvx_sdk
