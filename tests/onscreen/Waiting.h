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

/// Asks until `condition` holds; false when it does not in time.
template<typename Condition>
bool waitUntil(Condition condition, milliseconds limit = patience)
{
    const auto deadline = Clock::now() + limit;
    while (!condition()) {
        if (Clock::now() > deadline)
            return false;
        std::this_thread::sleep_for(milliseconds(4));
    }
    return true;
}

} // namespace brimlight::onscreen
