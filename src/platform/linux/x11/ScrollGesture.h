#pragma once

#include "platform/OverlaySurface.h"
#include "platform/WorkItem.h"

namespace brimlight {

/// Gives the scroll steps of a touchpad, which arrive without phases on X11, the phases of a gesture: began
/// with the first step after a silence, changed with each further one, ended when the silence is back.
class ScrollGesture
{
public:
    static constexpr std::chrono::milliseconds silence{150};
    using Deliver = std::function<void(const ScrollEvent &)>;

    ScrollGesture(Scheduler &scheduler, Deliver deliver)
        : m_scheduler(scheduler)
        , m_deliver(std::move(deliver))
    {
    }

    /// One step in points, positive when the content moves right or down, with the pointer at `position`.
    void step(double deltaX, double deltaY, Point position);

private:
    Scheduler &m_scheduler;
    Deliver m_deliver;
    WorkItem m_end;
};

} // namespace brimlight
