#include "platform/linux/x11/X11PointerWatch.h"

namespace brimlight {

X11PointerWatch::X11PointerWatch(X11Connection &connection, Scheduler &scheduler, std::function<void()> look)
    : m_connection(connection)
    , m_scheduler(scheduler)
    , m_look(std::move(look))
{
}

void X11PointerWatch::setRunning(bool running)
{
    if (running == isRunning())
        return;
    if (!running) {
        m_motion.reset();
        m_poll.reset();
        return;
    }
    m_motion.emplace(m_connection, XCB_INPUT_RAW_MOTION, [this](const auto &) { request(); });
    m_poll = m_scheduler.every(period, period / 5, [this] { request(); });
    request();
}

void X11PointerWatch::request()
{
    // A fast mouse sends a thousand events a second; the server is asked once a turn.
    if (m_requested)
        return;
    m_requested = true;
    m_scheduler.post(*this, [this] {
        m_requested = false;
        if (isRunning())
            m_look();
    });
}

} // namespace brimlight
