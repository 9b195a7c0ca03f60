#include "platform/linux/X11KeyboardFocus.h"

#include "platform/linux/X11Connection.h"
#include "platform/linux/XcbReply.h"

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
    if (focus(m_window))
        m_previous = before;
}

void X11KeyboardFocus::giveBack()
{
    if (m_previous == XCB_WINDOW_NONE)
        return;
    // The window may be gone or hidden by now.
    if (current() == m_window && !focus(m_previous))
        focus(XCB_INPUT_FOCUS_POINTER_ROOT);
    m_previous = XCB_WINDOW_NONE;
}

xcb_window_t X11KeyboardFocus::current() const
{
    const auto reply =
        adopt(xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
    return reply ? reply->focus : static_cast<xcb_window_t>(XCB_WINDOW_NONE);
}

bool X11KeyboardFocus::focus(xcb_window_t window)
{
    const auto cookie =
        xcb_set_input_focus_checked(m_connection, XCB_INPUT_FOCUS_PARENT, window, XCB_CURRENT_TIME);
    return !adopt(xcb_request_check(m_connection, cookie));
}

} // namespace brimlight
