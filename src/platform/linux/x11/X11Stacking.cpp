#include "platform/linux/x11/X11Stacking.h"

#include "platform/linux/x11/XcbReply.h"

#include <algorithm>

namespace brimlight {

X11Stacking::X11Stacking(X11Connection &connection, Scheduler &scheduler, std::vector<xcb_window_t> windows)
    : m_connection(connection)
    , m_scheduler(scheduler)
    , m_windows(std::move(windows))
    , m_stackingList(connection.atom("_NET_CLIENT_LIST_STACKING"))
    , m_activeWindow(connection.atom("_NET_ACTIVE_WINDOW"))
    , m_listening(connection, [this](const xcb_generic_event_t &event) { return handle(event); })
{
}

bool X11Stacking::handle(const xcb_generic_event_t &event)
{
    if ((event.response_type & ~0x80) != XCB_PROPERTY_NOTIFY)
        return false;
    const auto &property = reinterpret_cast<const xcb_property_notify_event_t &>(event);
    if (property.window != m_connection.root() ||
        (property.atom != m_stackingList && property.atom != m_activeWindow))
        return false;
    raise();
    // Some window managers announce the new order before they carry it out.
    constexpr std::chrono::milliseconds afterwards{100};
    m_again.schedule(m_scheduler, afterwards, [this] { raise(); });
    return false;
}

void X11Stacking::raise()
{
    const xcb_window_t locker = lowestLocker(above(children(m_connection.root())));
    if (locker != XCB_WINDOW_NONE) {
        putBelow(locker);
        return;
    }
    const uint32_t toTheTop = XCB_STACK_MODE_ABOVE;
    for (const xcb_window_t window : m_windows)
        xcb_configure_window(m_connection, window, XCB_CONFIG_WINDOW_STACK_MODE, &toTheTop);
    m_connection.flush();
}

void X11Stacking::putBelow(xcb_window_t sibling)
{
    for (auto it = m_windows.rbegin(); it != m_windows.rend(); ++it) {
        const uint32_t values[] = {sibling, XCB_STACK_MODE_BELOW};
        const auto cookie = xcb_configure_window_checked(
            m_connection, *it, XCB_CONFIG_WINDOW_SIBLING | XCB_CONFIG_WINDOW_STACK_MODE, values);
        // It may be gone meanwhile; the next restacking finds that out.
        if (adopt(xcb_request_check(m_connection, cookie)))
            return;
        sibling = *it;
    }
}

std::vector<xcb_window_t> X11Stacking::children(xcb_window_t window) const
{
    const auto reply =
        adopt(xcb_query_tree_reply(m_connection, xcb_query_tree(m_connection, window), nullptr));
    if (!reply)
        return {};
    const xcb_window_t *first = xcb_query_tree_children(reply.get());
    return {first, first + xcb_query_tree_children_length(reply.get())};
}

std::vector<xcb_window_t> X11Stacking::above(const std::vector<xcb_window_t> &order) const
{
    const auto isOurs = [this](xcb_window_t window) {
        return std::ranges::find(m_windows, window) != m_windows.end();
    };
    std::vector<xcb_window_t> others;
    std::copy_if(std::ranges::find_if(order, isOurs), order.end(), std::back_inserter(others),
                 std::not_fn(isOurs));
    return others;
}

xcb_window_t X11Stacking::lowestLocker(const std::vector<xcb_window_t> &windows) const
{
    // All questions go out before the first answer is waited for.
    std::vector<std::pair<xcb_get_window_attributes_cookie_t, xcb_get_geometry_cookie_t>> cookies;
    cookies.reserve(windows.size());
    for (const xcb_window_t window : windows)
        cookies.emplace_back(xcb_get_window_attributes(m_connection, window),
                             xcb_get_geometry(m_connection, window));
    std::vector<xcb_window_t> candidates;
    for (size_t i = 0; i < windows.size(); ++i) {
        const auto attributes =
            adopt(xcb_get_window_attributes_reply(m_connection, cookies[i].first, nullptr));
        const auto geometry = adopt(xcb_get_geometry_reply(m_connection, cookies[i].second, nullptr));
        if (!attributes || !geometry)
            continue;
        const QRect frame(geometry->x, geometry->y, geometry->width, geometry->height);
        if (attributes->override_redirect && attributes->map_state == XCB_MAP_STATE_VIEWABLE &&
            attributes->_class == XCB_WINDOW_CLASS_INPUT_OUTPUT && frame.contains(m_screen))
            candidates.push_back(windows[i]);
    }
    if (candidates.empty())
        return XCB_WINDOW_NONE;
    // Frames are outside of the window manager's care themselves.
    constexpr int deepestFrame = 2;
    const std::vector<xcb_window_t> clients = managed();
    const auto found = std::ranges::find_if(
        candidates, [&](xcb_window_t window) { return !holds(window, clients, deepestFrame); });
    return found == candidates.end() ? static_cast<xcb_window_t>(XCB_WINDOW_NONE) : *found;
}

std::vector<xcb_window_t> X11Stacking::managed() const
{
    constexpr uint32_t most = 4096;
    const auto reply = adopt(xcb_get_property_reply(
        m_connection,
        xcb_get_property(m_connection, 0, m_connection.root(), m_stackingList, XCB_ATOM_WINDOW, 0, most),
        nullptr));
    if (!reply || reply->format != 32)
        return {};
    const auto *first = static_cast<const xcb_window_t *>(xcb_get_property_value(reply.get()));
    return {first, first + reply->value_len};
}

bool X11Stacking::holds(xcb_window_t window, const std::vector<xcb_window_t> &managed, int depth) const
{
    if (std::ranges::find(managed, window) != managed.end())
        return true;
    return depth > 0 && std::ranges::any_of(children(window), [&](xcb_window_t child) {
               return holds(child, managed, depth - 1);
           });
}

} // namespace brimlight
