#pragma once

#include <xcb/xcb.h>

namespace brimlight {

class X11Connection;

/// The keyboard, borrowed: taken from the window that has it and given back to that one.
class X11KeyboardFocus
{
public:
    X11KeyboardFocus(X11Connection &connection, xcb_window_t window);

    void take();
    /// Does nothing when somebody else has taken the keyboard meanwhile.
    void giveBack();

private:
    xcb_window_t current() const;
    bool focus(xcb_window_t window);

    X11Connection &m_connection;
    xcb_window_t m_window;
    xcb_window_t m_previous = XCB_WINDOW_NONE;
};

} // namespace brimlight
