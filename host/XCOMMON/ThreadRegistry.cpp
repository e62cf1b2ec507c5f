#include <XCOMMON/ThreadRegistry.h>

#include <QThread>

#include <algorithm>

namespace XCOMMON
{

ThreadRegistry::ThreadRegistry() = default;

ThreadRegistry& ThreadRegistry::instance()
{
    static ThreadRegistry registry;
    return registry;
}

int ThreadRegistry::runningCount() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return countRunning();
}

int ThreadRegistry::countRunning() const
{
    const auto runs = [](const Entry& entry) { return !entry.ended && entry.thread->isRunning(); };
    return static_cast<int>(std::count_if(m_entries.cbegin(), m_entries.cend(), runs));
}

void ThreadRegistry::add(const QThread* thread)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_entries.push_back({thread, false});
}

void ThreadRegistry::remove(const QThread* thread)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto isThread = [thread](const Entry& entry) { return entry.thread == thread; };
    m_entries.erase(std::remove_if(m_entries.begin(), m_entries.end(), isThread), m_entries.end());
}

void ThreadRegistry::setEnded(const QThread* thread, bool ended)
{
    bool last = false;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        for (Entry& entry : m_entries) {
            if (entry.thread == thread)
                entry.ended = ended;
        }
        last = ended && countRunning() == 0;
    }
    if (last)
        emit signalAllFinished();
}

} // namespace XCOMMON
