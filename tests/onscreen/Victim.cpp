#include "Victim.h"

#include "Waiting.h"
#include "XReply.h"

#include <cstring>
#include <stdexcept>

namespace brimlight::onscreen {

Victim::Victim(const QByteArray &display, Kind kind)
    : m_x(display)
    , m_id(xcb_generate_id(m_x))
{
    const QSize screen = m_x.size();
    const QRect frame(screen.width() / 8, 0, screen.width() * 3 / 4, screen.height() * 3 / 4);
    const uint32_t values[] = {color & 0xffffff, XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_KEY_PRESS};
    xcb_create_window(m_x, XCB_COPY_FROM_PARENT, m_id, m_x.root(), static_cast<int16_t>(frame.x()),
                      static_cast<int16_t>(frame.y()), static_cast<uint16_t>(frame.width()),
                      static_cast<uint16_t>(frame.height()), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                      XCB_COPY_FROM_PARENT, XCB_CW_BACK_PIXEL | XCB_CW_EVENT_MASK, values);

    const auto set = [this](const char *property, xcb_atom_t type, const std::vector<uint32_t> &data) {
        xcb_change_property(m_x, XCB_PROP_MODE_REPLACE, m_id, m_x.atom(property), type, 32,
                            static_cast<uint32_t>(data.size()), data.data());
    };
    constexpr char className[] = "victim\0Victim";
    xcb_change_property(m_x, XCB_PROP_MODE_REPLACE, m_id, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 8,
                        sizeof className, className);
    constexpr uint32_t userPosition = 1;
    constexpr uint32_t decorations = 2;
    set("WM_NORMAL_HINTS", XCB_ATOM_WM_SIZE_HINTS, [] {
        std::vector<uint32_t> hints(18);
        hints[0] = userPosition;
        return hints;
    }());
    set("_MOTIF_WM_HINTS", m_x.atom("_MOTIF_WM_HINTS"), {decorations, 0, 0, 0, 0});
    if (kind == Kind::fullScreen)
        set("_NET_WM_STATE", XCB_ATOM_ATOM, {m_x.atom("_NET_WM_STATE_FULLSCREEN")});
    xcb_map_window(m_x, m_id);
    m_x.flush();

    const auto width = [this] {
        return owned(xcb_get_geometry_reply(m_x, xcb_get_geometry(m_x, m_id), nullptr))->width;
    };
    // A window manager that is still about its own start may show a window without making it the active one.
    const bool ready = waitUntil([&] {
        return waitUntil([&] { return isActive() && (kind == Kind::plain || width() == screen.width()); },
                         milliseconds(100)) ||
               (activate(), false);
    });
    if (!ready)
        throw std::runtime_error("the window manager did not show the window");
}

bool Victim::isActive() const
{
    return m_x.activeWindow() == m_id && m_x.focus() == m_id;
}

void Victim::activate() const
{
    constexpr uint32_t fromPager = 2;
    m_x.tellWindowManager(m_id, "_NET_ACTIVE_WINDOW", {fromPager, XCB_CURRENT_TIME, XCB_WINDOW_NONE});
}

void Victim::raise() const
{
    const uint32_t above = XCB_STACK_MODE_ABOVE;
    xcb_configure_window(m_x, m_id, XCB_CONFIG_WINDOW_STACK_MODE, &above);
    m_x.flush();
}

const std::vector<QPoint> &Victim::presses()
{
    take();
    return m_presses;
}

int Victim::keyPresses()
{
    take();
    return m_keyPresses;
}

void Victim::take()
{
    while (const auto event = owned(xcb_poll_for_event(m_x))) {
        const auto &press = reinterpret_cast<const xcb_button_press_event_t &>(*event);
        switch (event->response_type & ~0x80) {
        case XCB_BUTTON_PRESS:
            m_presses.emplace_back(press.root_x, press.root_y);
            break;
        case XCB_KEY_PRESS:
            ++m_keyPresses;
            break;
        default:
            break;
        }
    }
}

} // namespace brimlight::onscreen
