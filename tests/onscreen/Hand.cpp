#include "Hand.h"

#include "XReply.h"

#include <xcb/xinput.h>
#include <xcb/xtest.h>

#include <stdexcept>

namespace brimlight::onscreen {

void Hand::moveTo(QPoint point, milliseconds after) const
{
    fake(XCB_MOTION_NOTIFY, 0, point, after);
    m_x.flush();
}

void Hand::clickAt(QPoint point, uint8_t button) const
{
    moveTo(point);
    fake(XCB_BUTTON_PRESS, button);
    fake(XCB_BUTTON_RELEASE, button);
    m_x.flush();
}

void Hand::drag(QPoint from, QPoint to) const
{
    dragAndHold(from, to);
    release();
}

void Hand::dragAndHold(QPoint from, QPoint to) const
{
    constexpr int steps = 20;
    moveTo(from);
    fake(XCB_BUTTON_PRESS, XCB_BUTTON_INDEX_1);
    for (int i = 1; i <= steps; ++i)
        moveTo(from + (to - from) * i / steps, milliseconds(15));
    m_x.flush();
}

void Hand::release() const
{
    fake(XCB_BUTTON_RELEASE, XCB_BUTTON_INDEX_1);
    m_x.flush();
}

void Hand::scroll(uint8_t button, int steps) const
{
    for (int i = 0; i < steps; ++i) {
        fake(XCB_BUTTON_PRESS, button);
        fake(XCB_BUTTON_RELEASE, button);
    }
    m_x.flush();
}

void Hand::typeKey(uint32_t keysym) const
{
    const uint8_t code = keycode(keysym);
    fake(XCB_KEY_PRESS, code);
    fake(XCB_KEY_RELEASE, code);
    m_x.flush();
}

void Hand::typeKeyWith(uint32_t modifier, uint32_t keysym) const
{
    fake(XCB_KEY_PRESS, keycode(modifier));
    typeKey(keysym);
    fake(XCB_KEY_RELEASE, keycode(modifier));
    m_x.flush();
}

void Hand::useTouchpad(const char *device) const
{
    // Input properties need the version to be agreed on first.
    owned(xcb_input_xi_query_version_reply(m_x, xcb_input_xi_query_version(m_x, 2, 2), nullptr));
    const auto reply = owned(
        xcb_input_xi_query_device_reply(m_x, xcb_input_xi_query_device(m_x, XCB_INPUT_DEVICE_ALL), nullptr));
    for (auto it = xcb_input_xi_query_device_infos_iterator(reply.get()); it.rem;
         xcb_input_xi_device_info_next(&it)) {
        const QByteArray name(xcb_input_xi_device_info_name(it.data),
                              xcb_input_xi_device_info_name_length(it.data));
        if (name != device)
            continue;
        const uint8_t enabled = 1;
        xcb_input_xi_change_property(m_x, it.data->deviceid, XCB_PROP_MODE_REPLACE, 8,
                                     m_x.atom("libinput Tapping Enabled"), XCB_ATOM_INTEGER, 1, &enabled);
        m_x.sync();
        return;
    }
    throw std::runtime_error(std::string("no such device: ") + device);
}

void Hand::fake(uint8_t type, uint8_t detail, QPoint point, milliseconds after) const
{
    xcb_test_fake_input(m_x, type, detail, static_cast<uint32_t>(after.count()), m_x.root(),
                        static_cast<int16_t>(point.x()), static_cast<int16_t>(point.y()), 0);
}

uint8_t Hand::keycode(uint32_t keysym) const
{
    const xcb_setup_t *setup = xcb_get_setup(m_x);
    const auto count = static_cast<uint8_t>(setup->max_keycode - setup->min_keycode + 1);
    const auto reply = owned(xcb_get_keyboard_mapping_reply(
        m_x, xcb_get_keyboard_mapping(m_x, setup->min_keycode, count), nullptr));
    const xcb_keysym_t *symbols = xcb_get_keyboard_mapping_keysyms(reply.get());
    for (int i = 0; i < count; ++i) {
        if (symbols[i * reply->keysyms_per_keycode] == keysym)
            return static_cast<uint8_t>(setup->min_keycode + i);
    }
    throw std::runtime_error("no key gives this symbol");
}

} // namespace brimlight::onscreen
