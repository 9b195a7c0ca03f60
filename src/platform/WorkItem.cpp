#include "platform/WorkItem.h"

namespace brimlight {

void WorkItem::schedule(Scheduler &scheduler, std::chrono::milliseconds delay, std::function<void()> body)
{
    cancel();
    m_scheduled = scheduler.after(delay, [this, body = std::move(body)] {
        // Destroying the handle may destroy this closure: keep the body alive on the stack first.
        const auto run = body;
        m_scheduled.reset();
        run();
    });
}

} // namespace brimlight
