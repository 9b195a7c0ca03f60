#pragma once

#include <chrono>
#include <thread>

namespace brimlight::onscreen {

using std::chrono::milliseconds;
using Clock = std::chrono::steady_clock;

/// How long anything that must happen is waited for; a busy machine is slow.
inline constexpr milliseconds patience{10000};
/// How long anything that must not happen is waited for. Longer than every delay of the program.
inline constexpr milliseconds bounded{900};

/// Asks until `condition` holds; false when it does not in time. `interval` for questions that are a load
/// themselves.
template<typename Condition>
bool waitUntil(Condition condition, milliseconds limit = patience, milliseconds interval = milliseconds(4))
{
    const auto deadline = Clock::now() + limit;
    while (!condition()) {
        if (Clock::now() > deadline)
            return false;
        std::this_thread::sleep_for(interval);
    }
    return true;
}

/// Asks again and again whether `condition` holds; false as soon as it does not.
template<typename Condition>
bool holds(Condition condition, milliseconds duration = bounded)
{
    return !waitUntil([&] { return !condition(); }, duration);
}

} // namespace brimlight::onscreen
