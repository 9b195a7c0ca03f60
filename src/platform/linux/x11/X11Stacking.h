#pragma once

#include "platform/WorkItem.h"
#include "platform/linux/x11/X11Connection.h"

#include <QRect>

#include <vector>

namespace brimlight {

/// Keeps our windows above the managed ones. They are outside of the window manager's care, so whenever it
/// restacks its own, ours are raised again, past everything but a screen locker: a window that is above ours,
/// covers the whole screen and is not the window manager's either.
class X11Stacking
{
public:
    /// `windows` from the lowest to the topmost.
    X11Stacking(X11Connection &connection, Scheduler &scheduler, std::vector<xcb_window_t> windows);

    /// The screen that our windows are on, in pixels of the X server.
    void setScreen(const QRect &pixels) { m_screen = pixels; }
    void raise();

private:
    bool handle(const xcb_generic_event_t &event);
    std::vector<xcb_window_t> children(xcb_window_t window) const;
    /// The windows above the lowest of ours, ours left out.
    std::vector<xcb_window_t> above(const std::vector<xcb_window_t> &order) const;
    /// The lowest of `windows` that is a screen locker, XCB_WINDOW_NONE if none is.
    xcb_window_t lowestLocker(const std::vector<xcb_window_t> &windows) const;
    std::vector<xcb_window_t> managed() const;
    /// Is one of `managed` or the frame around one.
    bool holds(xcb_window_t window, const std::vector<xcb_window_t> &managed, int depth) const;
    void putBelow(xcb_window_t sibling);

    X11Connection &m_connection;
    Scheduler &m_scheduler;
    std::vector<xcb_window_t> m_windows;
    QRect m_screen;
    xcb_atom_t m_stackingList;
    xcb_atom_t m_activeWindow;
    WorkItem m_again;
    X11Connection::Listening m_listening;
};

} // namespace brimlight
