#pragma once

#include <atomic>
#include <memory>
#include <mutex>

namespace qarn_data
{

/// Something that is made when it is first asked for, by whichever of several readers comes first, and is
/// kept current from then on. Changing it excludes readers, which its owner sees to.
template <class Thing>
class Lazily
{
public:
    template <class Make>
    const Thing& get(Make make) const
    {
        std::call_once(m_state->once, [&] {
            make(m_state->thing);
            m_state->isMade = true;
        });
        return m_state->thing;
    }
    Thing* ifMade() { return m_state->isMade ? &m_state->thing : nullptr; }

private:
    struct State {
        std::once_flag once;
        std::atomic<bool> isMade{false};
        Thing thing;
    };
    std::unique_ptr<State> m_state = std::make_unique<State>();
};

} // namespace qarn_data
