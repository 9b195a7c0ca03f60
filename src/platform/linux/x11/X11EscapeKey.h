#pragma once

#include "platform/linux/x11/X11Connection.h"

#include <functional>
#include <vector>

namespace brimlight {

/// The Escape key, whoever has the keyboard. No other key is taken, nor Escape together with Shift, Control,
/// Alt or Super, which belongs to the desktop. Under XWayland it comes only while a window of X11 has the
/// keyboard.
class X11EscapeKey
{
public:
    X11EscapeKey(X11Connection &connection, std::function<void()> pressed);

    /// False at first.
    void setWatched(bool watched);

private:
    bool handle(const xcb_generic_event_t &event) const;

    X11Connection &m_connection;
    std::function<void()> m_pressed;
    bool m_isWatched = false;
    /// As the keyboard was when it was last watched; most have one.
    std::vector<xcb_keycode_t> m_keys;
    X11Connection::Listening m_listening;
};

} // namespace brimlight
