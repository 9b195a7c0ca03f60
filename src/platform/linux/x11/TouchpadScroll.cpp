#include "platform/linux/x11/TouchpadScroll.h"

#include "platform/linux/x11/X11Connection.h"
#include "platform/linux/x11/XcbReply.h"

namespace brimlight {
namespace {

double fixedPoint(const xcb_input_fp3232_t &value)
{
    constexpr double fractions = 4294967296.0;
    return value.integral + value.frac / fractions;
}

/// The value of a valuator in an event, absent when the event does not carry it.
std::optional<double> valuatorValue(const xcb_input_button_press_event_t &event, uint16_t valuator)
{
    const uint32_t *mask = xcb_input_button_press_valuator_mask(&event);
    const int bits = 32 * xcb_input_button_press_valuator_mask_length(&event);
    const xcb_input_fp3232_t *values = xcb_input_button_press_axisvalues(&event);
    if (valuator >= bits)
        return std::nullopt;
    int index = 0;
    for (int bit = 0; bit < valuator; ++bit) {
        if (mask[bit / 32] & (1u << (bit % 32)))
            ++index;
    }
    if (!(mask[valuator / 32] & (1u << (valuator % 32))))
        return std::nullopt;
    return fixedPoint(values[index]);
}

/// Points by which one axis moved; absent when the event does not touch it.
std::optional<double> advance(std::optional<ScrollAxis> &axis, const xcb_input_button_press_event_t &event)
{
    if (!axis)
        return std::nullopt;
    const auto value = valuatorValue(event, axis->valuator);
    if (!value)
        return std::nullopt;
    const double from = axis->last.value_or(*value);
    axis->last = value;
    // Values grow towards the lower right, where the content moves the other way.
    return (from - *value) / axis->increment * pointsPerClick;
}

bool hasTouchpadProperty(X11Connection &connection, xcb_input_device_id_t id)
{
    const auto reply = adopt(xcb_input_xi_list_properties_reply(
        connection, xcb_input_xi_list_properties(connection, id), nullptr));
    if (!reply)
        return false;
    // What only the drivers of touchpads offer.
    const xcb_atom_t wanted[] = {connection.atom("libinput Tapping Enabled"),
                                 connection.atom("Synaptics Off")};
    const xcb_atom_t *properties = xcb_input_xi_list_properties_properties(reply.get());
    const int count = xcb_input_xi_list_properties_properties_length(reply.get());
    for (int i = 0; i < count; ++i) {
        for (const xcb_atom_t atom : wanted) {
            if (properties[i] == atom && atom != XCB_ATOM_NONE)
                return true;
        }
    }
    return false;
}

void readScrollClasses(const xcb_input_xi_device_info_t &device, ScrollSource &source)
{
    for (auto it = xcb_input_xi_device_info_classes_iterator(&device); it.rem;
         xcb_input_device_class_next(&it)) {
        if (it.data->type != XCB_INPUT_DEVICE_CLASS_TYPE_SCROLL)
            continue;
        const auto &scroll = *reinterpret_cast<const xcb_input_scroll_class_t *>(it.data);
        const double increment = fixedPoint(scroll.increment);
        if (increment == 0)
            continue;
        const ScrollAxis axis{.valuator = scroll.number, .increment = increment, .last = std::nullopt};
        if (scroll.scroll_type == XCB_INPUT_SCROLL_TYPE_HORIZONTAL)
            source.horizontal = axis;
        else
            source.vertical = axis;
    }
}

} // namespace

void ScrollSource::forgetPositions()
{
    for (auto *axis : {&horizontal, &vertical}) {
        if (*axis)
            (*axis)->last.reset();
    }
}

std::optional<ScrollStep> scrollStep(const xcb_input_button_press_event_t &motion, ScrollSource &source)
{
    const auto x = advance(source.horizontal, motion);
    const auto y = advance(source.vertical, motion);
    if (!x && !y)
        return std::nullopt;
    return ScrollStep{x.value_or(0), y.value_or(0)};
}

std::optional<ScrollStep> scrollStep(uint32_t button)
{
    switch (button) {
    case 4:
        return ScrollStep{0, pointsPerClick};
    case 5:
        return ScrollStep{0, -pointsPerClick};
    case 6:
        return ScrollStep{pointsPerClick, 0};
    case 7:
        return ScrollStep{-pointsPerClick, 0};
    default:
        return std::nullopt;
    }
}

std::optional<ScrollStep> TouchpadScroll::read(const xcb_input_button_press_event_t &event)
{
    ScrollSource &from = source(event.sourceid);
    if (!from.isTouchpad)
        return std::nullopt;
    if (event.event_type == XCB_INPUT_MOTION)
        return scrollStep(event, from);
    // The server also sends a button for every click of a scroll axis that has been reported already.
    if (event.event_type == XCB_INPUT_BUTTON_PRESS &&
        !(event.flags & XCB_INPUT_POINTER_EVENT_FLAGS_POINTER_EMULATED))
        return scrollStep(event.detail);
    return std::nullopt;
}

void TouchpadScroll::forgetPositions()
{
    for (ScrollSource &source : m_sources)
        source.forgetPositions();
}

ScrollSource &TouchpadScroll::source(xcb_input_device_id_t id)
{
    const auto known = m_sources.find(id);
    if (known != m_sources.end())
        return *known;
    ScrollSource found;
    const auto reply = adopt(
        xcb_input_xi_query_device_reply(m_connection, xcb_input_xi_query_device(m_connection, id), nullptr));
    if (reply) {
        found.isTouchpad = hasTouchpadProperty(m_connection, id);
        for (auto it = xcb_input_xi_query_device_infos_iterator(reply.get()); it.rem;
             xcb_input_xi_device_info_next(&it))
            readScrollClasses(*it.data, found);
    }
    return *m_sources.insert(id, found);
}

} // namespace brimlight
