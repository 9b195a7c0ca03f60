#pragma once

#include "platform/Scheduler.h"

namespace brimlight {

/// One kind of delayed work, of which at most one is pending. The owner tests its conditions again in the
/// body.
class WorkItem
{
public:
    /// Cancels a pending body and schedules this one. When it runs, the item is no longer pending.
    void schedule(Scheduler &scheduler, std::chrono::milliseconds delay, std::function<void()> body);
    void cancel() { m_scheduled.reset(); }
    bool isPending() const { return m_scheduled != nullptr; }

private:
    std::unique_ptr<Scheduled> m_scheduled;
};

} // namespace brimlight
