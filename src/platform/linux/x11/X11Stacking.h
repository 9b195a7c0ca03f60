#pragma once

#include "platform/WorkItem.h"
#include "platform/linux/x11/X11Connection.h"

namespace brimlight {

/// Keeps our windows above the managed ones. They are outside of the window manager's care, so whenever it
/// restacks its own, ours are raised again. Windows outside of its care, such as a screen locker, are left
/// above us.
class X11Stacking
{
public:
    X11Stacking(X11Connection &connection, Scheduler &scheduler, std::function<void()> raise);

private:
    bool handle(const xcb_generic_event_t &event);

    Scheduler &m_scheduler;
    std::function<void()> m_raise;
    xcb_window_t m_root;
    xcb_atom_t m_stackingList;
    xcb_atom_t m_activeWindow;
    WorkItem m_again;
    X11Connection::Listening m_listening;
};

} // namespace brimlight
