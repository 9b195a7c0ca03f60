#include "platform/linux/x11/X11Sensor.h"

#include "platform/linux/x11/X11Connection.h"

#include <xcb/xinput.h>

#include <algorithm>

namespace brimlight {

X11Sensor::X11Sensor(X11Connection &connection)
    : m_connection(connection)
    , m_id(xcb_generate_id(connection))
{
    uint32_t events = XCB_EVENT_MASK_ENTER_WINDOW | XCB_EVENT_MASK_LEAVE_WINDOW;
    if (connection.inputOpcode() == 0)
        events |= XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_BUTTON_RELEASE;
    const uint32_t values[] = {1, events};
    xcb_create_window(connection, 0, m_id, connection.root(), 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                      XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values);
    // Things that are dragged are announced to windows that say they understand it.
    const uint32_t dragVersion = 5;
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, m_id, connection.atom("XdndAware"), XCB_ATOM_ATOM,
                        32, 1, &dragVersion);
    if (connection.inputOpcode() != 0) {
        struct
        {
            xcb_input_event_mask_t head;
            uint32_t mask;
        } selection{.head = {.deviceid = XCB_INPUT_DEVICE_ALL_MASTER, .mask_len = 1},
                    .mask = XCB_INPUT_XI_EVENT_MASK_MOTION | XCB_INPUT_XI_EVENT_MASK_BUTTON_PRESS |
                            XCB_INPUT_XI_EVENT_MASK_BUTTON_RELEASE};
        xcb_input_xi_select_events(connection, m_id, 1, &selection.head);
    }
}

X11Sensor::~X11Sensor()
{
    xcb_destroy_window(m_connection, m_id);
}

void X11Sensor::setGeometry(const QRect &pixels)
{
    const uint32_t values[] = {static_cast<uint32_t>(pixels.x()), static_cast<uint32_t>(pixels.y()),
                               static_cast<uint32_t>(std::max(pixels.width(), 1)),
                               static_cast<uint32_t>(std::max(pixels.height(), 1))};
    xcb_configure_window(m_connection, m_id,
                         XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH |
                             XCB_CONFIG_WINDOW_HEIGHT,
                         values);
    m_connection.flush();
}

void X11Sensor::show()
{
    xcb_map_window(m_connection, m_id);
    m_connection.flush();
}

} // namespace brimlight
