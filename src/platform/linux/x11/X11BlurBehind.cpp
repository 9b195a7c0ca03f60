#include "platform/linux/x11/X11BlurBehind.h"

#include "platform/linux/x11/XcbReply.h"

#include <algorithm>

namespace brimlight {

X11BlurBehind::X11BlurBehind(X11Connection &connection, xcb_window_t window,
                             std::function<void()> offeredChanged)
    : m_connection(connection)
    , m_window(window)
    , m_offeredChanged(std::move(offeredChanged))
    , m_property(connection.atom("_KDE_NET_WM_BLUR_BEHIND_REGION"))
    , m_supported(connection.atom("_NET_SUPPORTED"))
    , m_isOffered(findOffer())
    , m_listening(connection, [this](const xcb_generic_event_t &event) { return handle(event); })
{
}

void X11BlurBehind::setRegion(const std::vector<xcb_rectangle_t> &region)
{
    std::vector<uint32_t> numbers;
    numbers.reserve(4 * region.size());
    for (const xcb_rectangle_t &row : region)
        numbers.insert(numbers.end(),
                       {static_cast<uint32_t>(row.x), static_cast<uint32_t>(row.y), row.width, row.height});
    if (numbers == m_region)
        return;
    m_region = std::move(numbers);
    // An empty region would mean the whole window.
    if (m_region.empty())
        xcb_delete_property(m_connection, m_window, m_property);
    else
        xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, m_window, m_property, XCB_ATOM_CARDINAL, 32,
                            static_cast<uint32_t>(m_region.size()), m_region.data());
}

bool X11BlurBehind::handle(const xcb_generic_event_t &event)
{
    if ((event.response_type & ~0x80) != XCB_PROPERTY_NOTIFY)
        return false;
    const auto &property = reinterpret_cast<const xcb_property_notify_event_t &>(event);
    if (property.window != m_connection.root() ||
        (property.atom != m_property && property.atom != m_supported))
        return false;
    const bool offered = findOffer();
    if (offered == m_isOffered)
        return false;
    m_isOffered = offered;
    m_offeredChanged();
    return false;
}

bool X11BlurBehind::findOffer() const
{
    const auto namesCookie = xcb_list_properties(m_connection, m_connection.root());
    constexpr uint32_t enough = 4096;
    const auto listCookie =
        xcb_get_property(m_connection, 0, m_connection.root(), m_supported, XCB_ATOM_ATOM, 0, enough);
    const auto names = adopt(xcb_list_properties_reply(m_connection, namesCookie, nullptr));
    const auto list = adopt(xcb_get_property_reply(m_connection, listCookie, nullptr));
    const auto contains = [this](const xcb_atom_t *atoms, int count) {
        return std::find(atoms, atoms + count, m_property) != atoms + count;
    };
    if (names &&
        contains(xcb_list_properties_atoms(names.get()), xcb_list_properties_atoms_length(names.get())))
        return true;
    return list && list->format == 32 &&
           contains(static_cast<const xcb_atom_t *>(xcb_get_property_value(list.get())),
                    xcb_get_property_value_length(list.get()) / static_cast<int>(sizeof(xcb_atom_t)));
}

} // namespace brimlight
