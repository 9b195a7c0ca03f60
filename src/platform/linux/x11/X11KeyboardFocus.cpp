#include "platform/linux/x11/X11KeyboardFocus.h"

#include "platform/linux/x11/XcbReply.h"

namespace brimlight {

X11KeyboardFocus::X11KeyboardFocus(X11Connection &connection, xcb_window_t window)
    : m_connection(connection)
    , m_window(window)
{
}

void X11KeyboardFocus::take()
{
    const xcb_window_t before = current();
    if (before == m_window)
        return;
    if (!focus(m_window))
        return;
    m_previous = before;
    if (!m_presses)
        m_presses.emplace(m_connection, XCB_INPUT_RAW_BUTTON_PRESS,
                          [this](const auto &event) { pressed(event.time); });
}

void X11KeyboardFocus::giveBack()
{
    m_presses.reset();
    restore();
}

void X11KeyboardFocus::restore(xcb_timestamp_t time)
{
    if (m_previous == XCB_WINDOW_NONE)
        return;
    // The window may be gone or hidden by now.
    if (current() == m_window && !focus(m_previous, time))
        focus(XCB_INPUT_FOCUS_POINTER_ROOT, time);
    m_previous = XCB_WINDOW_NONE;
}

void X11KeyboardFocus::pressed(xcb_timestamp_t time)
{
    const auto reply = adopt(
        xcb_query_pointer_reply(m_connection, xcb_query_pointer(m_connection, m_connection.root()), nullptr));
    // Dated just before the press, this loses to the window manager if that focuses the window that was
    // clicked.
    if (reply && reply->child != m_window)
        restore(time - 1);
}

xcb_window_t X11KeyboardFocus::current() const
{
    const auto reply =
        adopt(xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
    return reply ? reply->focus : static_cast<xcb_window_t>(XCB_WINDOW_NONE);
}

bool X11KeyboardFocus::focus(xcb_window_t window, xcb_timestamp_t time)
{
    const auto cookie = xcb_set_input_focus_checked(m_connection, XCB_INPUT_FOCUS_PARENT, window, time);
    return !adopt(xcb_request_check(m_connection, cookie));
}

} // namespace brimlight
