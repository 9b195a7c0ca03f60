#include "notch/HoverWatch.h"

namespace brimlight {

HoverWatch::HoverWatch(Pointer &pointer, Scheduler &scheduler, std::function<void()> evaluate)
    : m_pointer(pointer)
    , m_scheduler(scheduler)
    , m_evaluate(std::move(evaluate))
{
}

void HoverWatch::start()
{
    stop();
    const auto keep = [this](std::unique_ptr<EventMonitor> monitor) {
        if (monitor)
            m_monitors.push_back(std::move(monitor));
    };
    keep(m_pointer.monitorLocalMotion([this] { request(); }));
    keep(m_pointer.monitorGlobalMotion([this] { request(); }));
    m_poll = m_scheduler.every(pollPeriod, pollPeriod / 5, [this] { request(); });
}

void HoverWatch::stop()
{
    m_monitors.clear();
    m_poll.reset();
}

void HoverWatch::request()
{
    // A fast mouse sends a thousand events a second; one evaluation per turn sees the last position of them
    // all.
    if (m_requested)
        return;
    m_requested = true;
    m_scheduler.post(*this, [this] {
        m_requested = false;
        m_evaluate();
    });
}

} // namespace brimlight
