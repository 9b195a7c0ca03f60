#include "platform/linux/x11/X11EscapeKey.h"

#include "platform/linux/x11/XcbReply.h"

#include <algorithm>
#include <array>
#include <utility>

namespace brimlight {
namespace {

constexpr xcb_keysym_t escape = 0xff1b;

/// Locks are no part of a shortcut: what is grabbed without them is not felt with them.
constexpr std::array<uint16_t, 4> modifiers{0, XCB_MOD_MASK_LOCK, XCB_MOD_MASK_2,
                                            XCB_MOD_MASK_LOCK | XCB_MOD_MASK_2};

std::vector<xcb_keycode_t> keysOf(X11Connection &connection)
{
    const xcb_setup_t &setup = *xcb_get_setup(connection);
    const auto count = static_cast<uint8_t>(setup.max_keycode - setup.min_keycode + 1);
    const auto reply = adopt(xcb_get_keyboard_mapping_reply(
        connection, xcb_get_keyboard_mapping(connection, setup.min_keycode, count), nullptr));
    std::vector<xcb_keycode_t> keys;
    if (!reply)
        return keys;
    const xcb_keysym_t *symbols = xcb_get_keyboard_mapping_keysyms(reply.get());
    for (int key = 0; key < count; ++key) {
        // The first column is the key without Shift.
        if (symbols[static_cast<ptrdiff_t>(key) * reply->keysyms_per_keycode] == escape)
            keys.push_back(static_cast<xcb_keycode_t>(setup.min_keycode + key));
    }
    return keys;
}

} // namespace

X11EscapeKey::X11EscapeKey(X11Connection &connection, std::function<void()> pressed)
    : m_connection(connection)
    , m_pressed(std::move(pressed))
    , m_listening(connection, [this](const xcb_generic_event_t &event) { return handle(event); })
{
}

void X11EscapeKey::setWatched(bool watched)
{
    if (watched == m_isWatched)
        return;
    m_isWatched = watched;
    if (watched)
        m_keys = keysOf(m_connection);
    const xcb_window_t root = m_connection.root();
    for (const xcb_keycode_t key : m_keys) {
        for (const uint16_t modifier : modifiers) {
            if (!watched) {
                xcb_ungrab_key(m_connection, key, root, modifier);
                continue;
            }
            // Fails where another program has it already; that one keeps it.
            const auto cookie = xcb_grab_key_checked(m_connection, 0, root, modifier, key,
                                                     XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
            xcb_discard_reply(m_connection, cookie.sequence);
        }
    }
    m_connection.flush();
}

bool X11EscapeKey::handle(const xcb_generic_event_t &event) const
{
    const int type = event.response_type & ~0x80;
    if (type != XCB_KEY_PRESS && type != XCB_KEY_RELEASE)
        return false;
    const auto &key = reinterpret_cast<const xcb_key_press_event_t &>(event);
    if (key.event != m_connection.root() || std::ranges::find(m_keys, key.detail) == m_keys.end())
        return false;
    if (type == XCB_KEY_PRESS && m_isWatched)
        m_pressed();
    return true;
}

} // namespace brimlight
