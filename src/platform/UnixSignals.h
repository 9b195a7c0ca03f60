#pragma once

#include <functional>

namespace brimlight {

/// Signals of the process, delivered as ordinary events of the main loop.
class UnixSignals
{
public:
    virtual ~UnixSignals() = default;

    /// From now on `signal` no longer has its default effect but runs `action` on the loop. False when
    /// refused.
    virtual bool install(int signal, const std::function<void()> &action) = 0;
};

} // namespace brimlight
