#pragma once

#include "platform/linux/x11/X11RawEvents.h"

#include <optional>

namespace brimlight {

/// The keyboard, borrowed: taken from the window that has it and given back to that one. A click elsewhere
/// gives it back as well, since some window managers do not focus a window anew that they take for the active
/// one.
class X11KeyboardFocus
{
public:
    X11KeyboardFocus(X11Connection &connection, xcb_window_t window);

    void take();
    /// Does nothing when somebody else has taken the keyboard meanwhile.
    void giveBack();

private:
    xcb_window_t current() const;
    bool focus(xcb_window_t window, xcb_timestamp_t time = XCB_CURRENT_TIME);
    void restore(xcb_timestamp_t time = XCB_CURRENT_TIME);
    void pressed(xcb_timestamp_t time);

    X11Connection &m_connection;
    xcb_window_t m_window;
    xcb_window_t m_previous = XCB_WINDOW_NONE;
    std::optional<X11RawEvents> m_presses;
};

} // namespace brimlight
