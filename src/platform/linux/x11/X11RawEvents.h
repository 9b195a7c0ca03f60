#pragma once

#include "platform/linux/x11/X11Connection.h"

#include <xcb/xinput.h>

namespace brimlight {

/// Raw events of all devices, which the server reports wherever the pointer is and whoever has grabbed it,
/// for as long as this lives. None come without the X Input extension.
class X11RawEvents
{
public:
    /// `type` is XCB_INPUT_RAW_MOTION or another of the raw events, which share one form.
    X11RawEvents(X11Connection &connection, uint16_t type,
                 std::function<void(const xcb_input_raw_button_press_event_t &)> happened);
    ~X11RawEvents();
    X11RawEvents(const X11RawEvents &) = delete;
    X11RawEvents &operator=(const X11RawEvents &) = delete;

private:
    X11Connection &m_connection;
    uint16_t m_type;
    X11Connection::Listening m_listening;
};

} // namespace brimlight
