#include "platform/linux/x11/X11RawEvents.h"

namespace brimlight {

X11RawEvents::X11RawEvents(X11Connection &connection, uint16_t type,
                           std::function<void(const xcb_input_raw_button_press_event_t &)> happened)
    : m_connection(connection)
    , m_type(type)
    , m_listening(connection,
                  [&connection, type, happened = std::move(happened)](const xcb_generic_event_t &event) {
                      const auto &generic = reinterpret_cast<const xcb_ge_generic_event_t &>(event);
                      if ((event.response_type & ~0x80) == XCB_GE_GENERIC &&
                          generic.extension == connection.inputOpcode() && generic.event_type == type)
                          happened(reinterpret_cast<const xcb_input_raw_button_press_event_t &>(event));
                      return false;
                  })
{
    m_connection.selectRawEvents(m_type, 1);
}

X11RawEvents::~X11RawEvents()
{
    m_connection.selectRawEvents(m_type, -1);
}

} // namespace brimlight
