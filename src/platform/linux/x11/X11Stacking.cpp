#include "platform/linux/x11/X11Stacking.h"

namespace brimlight {

X11Stacking::X11Stacking(X11Connection &connection, Scheduler &scheduler, std::function<void()> raise)
    : m_scheduler(scheduler)
    , m_raise(std::move(raise))
    , m_root(connection.root())
    , m_stackingList(connection.atom("_NET_CLIENT_LIST_STACKING"))
    , m_activeWindow(connection.atom("_NET_ACTIVE_WINDOW"))
    , m_listening(connection, [this](const xcb_generic_event_t &event) { return handle(event); })
{
}

bool X11Stacking::handle(const xcb_generic_event_t &event)
{
    if ((event.response_type & ~0x80) != XCB_PROPERTY_NOTIFY)
        return false;
    const auto &property = reinterpret_cast<const xcb_property_notify_event_t &>(event);
    if (property.window != m_root || (property.atom != m_stackingList && property.atom != m_activeWindow))
        return false;
    m_raise();
    // Some window managers announce the new order before they carry it out.
    constexpr std::chrono::milliseconds afterwards{100};
    m_again.schedule(m_scheduler, afterwards, m_raise);
    return false;
}

} // namespace brimlight
