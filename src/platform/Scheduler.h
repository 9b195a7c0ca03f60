#pragma once

#include <QDateTime>

#include <chrono>
#include <functional>
#include <memory>

class QObject;

namespace brimlight {

/// Something that will run later. Destroying it cancels it; one that has run is inert.
class Scheduled
{
public:
    virtual ~Scheduled() = default;
    Scheduled() = default;
    Scheduled(const Scheduled &) = delete;
    Scheduled &operator=(const Scheduled &) = delete;
};

/// Time and delayed work on the main loop, and what must not run on it. Bodies never run inside the call that
/// schedules them.
class Scheduler
{
public:
    virtual ~Scheduler() = default;

    /// The wall clock.
    virtual QDateTime now() const = 0;

    /// Runs `body` in the next turn of the loop, unless `context` is gone by then.
    virtual void post(QObject &context, std::function<void()> body) = 0;

    /// Runs `body` once, `delay` from now; not earlier.
    virtual std::unique_ptr<Scheduled> after(std::chrono::milliseconds delay, std::function<void()> body) = 0;

    /// Runs `body` every `period`, for the first time after one period. A firing may come up to `tolerance`
    /// late so that wake-ups can be shared.
    virtual std::unique_ptr<Scheduled> every(std::chrono::milliseconds period,
                                             std::chrono::milliseconds tolerance,
                                             std::function<void()> body) = 0;

    /// Runs `work` on a thread of its own, which it may hold up for good, and then `done` on this loop,
    /// unless `context` is gone by then. `work` owns or outlives all that it uses.
    virtual void aside(QObject &context, std::function<void()> work, std::function<void()> done) = 0;
};

} // namespace brimlight
