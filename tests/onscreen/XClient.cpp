#include "XClient.h"

#include "XReply.h"

#include <cstring>
#include <stdexcept>

namespace brimlight::onscreen {
namespace {

uint16_t length(const char *text)
{
    return static_cast<uint16_t>(std::strlen(text));
}

} // namespace

XClient::XClient(const QByteArray &display)
    : m_xcb(xcb_connect(display.constData(), nullptr))
{
    if (xcb_connection_has_error(m_xcb)) {
        xcb_disconnect(m_xcb);
        throw std::runtime_error("cannot reach display " + display.toStdString());
    }
    m_screen = xcb_setup_roots_iterator(xcb_get_setup(m_xcb)).data;
}

XClient::~XClient()
{
    xcb_disconnect(m_xcb);
}

void XClient::sync() const
{
    owned(xcb_get_input_focus_reply(m_xcb, xcb_get_input_focus(m_xcb), nullptr));
}

xcb_atom_t XClient::atom(const char *name) const
{
    const auto reply =
        owned(xcb_intern_atom_reply(m_xcb, xcb_intern_atom(m_xcb, 0, length(name), name), nullptr));
    return reply->atom;
}

std::vector<uint32_t> XClient::property(xcb_window_t window, const char *name) const
{
    constexpr uint32_t most = 1024;
    const auto reply = owned(xcb_get_property_reply(
        m_xcb, xcb_get_property(m_xcb, 0, window, atom(name), XCB_ATOM_ANY, 0, most), nullptr));
    if (!reply || reply->format != 32)
        return {};
    const auto *values = static_cast<const uint32_t *>(xcb_get_property_value(reply.get()));
    return {values, values + reply->value_len};
}

std::optional<uint32_t> XClient::rootValue(const char *name) const
{
    const auto values = property(root(), name);
    return values.empty() ? std::nullopt : std::optional(values.front());
}

void XClient::tellWindowManager(xcb_window_t window, const char *message,
                                const std::vector<uint32_t> &values) const
{
    xcb_client_message_event_t event = {};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = atom(message);
    std::copy(values.begin(), values.end(), event.data.data32);
    xcb_send_event(m_xcb, 0, root(),
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char *>(&event));
    flush();
}

bool XClient::isComposited() const
{
    const auto reply = owned(
        xcb_get_selection_owner_reply(m_xcb, xcb_get_selection_owner(m_xcb, atom("_NET_WM_CM_S0")), nullptr));
    return reply->owner != XCB_WINDOW_NONE;
}

xcb_window_t XClient::activeWindow() const
{
    return rootValue("_NET_ACTIVE_WINDOW").value_or(XCB_WINDOW_NONE);
}

xcb_window_t XClient::focus() const
{
    return owned(xcb_get_input_focus_reply(m_xcb, xcb_get_input_focus(m_xcb), nullptr))->focus;
}

QPoint XClient::pointer() const
{
    const auto reply = owned(xcb_query_pointer_reply(m_xcb, xcb_query_pointer(m_xcb, root()), nullptr));
    return {reply->root_x, reply->root_y};
}

std::vector<WindowInfo> XClient::windows() const
{
    const auto tree = owned(xcb_query_tree_reply(m_xcb, xcb_query_tree(m_xcb, root()), nullptr));
    const xcb_window_t *children = xcb_query_tree_children(tree.get());
    std::vector<WindowInfo> windows;
    for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i)
        windows.push_back(describe(children[i]));
    return windows;
}

WindowInfo XClient::describe(xcb_window_t window) const
{
    const auto attributes =
        owned(xcb_get_window_attributes_reply(m_xcb, xcb_get_window_attributes(m_xcb, window), nullptr));
    const auto geometry = owned(xcb_get_geometry_reply(m_xcb, xcb_get_geometry(m_xcb, window), nullptr));
    const auto name = owned(xcb_get_property_reply(
        m_xcb, xcb_get_property(m_xcb, 0, window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 0, 64), nullptr));
    // It may be gone by now.
    if (!attributes || !geometry || !name)
        return {};
    return {.id = window,
            .frame = QRect(geometry->x, geometry->y, geometry->width, geometry->height),
            .isInputOnly = attributes->_class == XCB_WINDOW_CLASS_INPUT_ONLY,
            .isOverrideRedirect = attributes->override_redirect != 0,
            .isViewable = attributes->map_state == XCB_MAP_STATE_VIEWABLE,
            .className = QByteArray(static_cast<const char *>(xcb_get_property_value(name.get())),
                                    xcb_get_property_value_length(name.get()))};
}

QImage XClient::screenshot() const
{
    const QSize area = size();
    const auto reply = owned(xcb_get_image_reply(m_xcb,
                                                 xcb_get_image(m_xcb, XCB_IMAGE_FORMAT_Z_PIXMAP, root(), 0, 0,
                                                               static_cast<uint16_t>(area.width()),
                                                               static_cast<uint16_t>(area.height()), ~0u),
                                                 nullptr));
    if (!reply)
        return {};
    return QImage(xcb_get_image_data(reply.get()), area.width(), area.height(), QImage::Format_RGB32).copy();
}

void XClient::paintWallpaper()
{
    constexpr int side = 128;
    QImage tile(side, side, QImage::Format_RGB32);
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x)
            tile.setPixel(x, y, qRgb(60 + x, 90 + y, 200 - (x + y) / 2));
    }
    const xcb_pixmap_t pixmap = xcb_generate_id(m_xcb);
    const xcb_gcontext_t context = xcb_generate_id(m_xcb);
    xcb_create_pixmap(m_xcb, m_screen->root_depth, pixmap, root(), side, side);
    xcb_create_gc(m_xcb, context, pixmap, 0, nullptr);
    xcb_put_image(m_xcb, XCB_IMAGE_FORMAT_Z_PIXMAP, pixmap, context, side, side, 0, 0, 0,
                  m_screen->root_depth, static_cast<uint32_t>(tile.sizeInBytes()), tile.constBits());
    xcb_free_gc(m_xcb, context);
    xcb_change_window_attributes(m_xcb, root(), XCB_CW_BACK_PIXMAP, &pixmap);
    xcb_clear_area(m_xcb, 0, root(), 0, 0, 0, 0);
    // Where compositors look for it.
    xcb_change_property(m_xcb, XCB_PROP_MODE_REPLACE, root(), atom("_XROOTPMAP_ID"), XCB_ATOM_PIXMAP, 32, 1,
                        &pixmap);
    sync();
}

QSize XClient::size() const
{
    const auto reply = owned(xcb_get_geometry_reply(m_xcb, xcb_get_geometry(m_xcb, root()), nullptr));
    return {reply->width, reply->height};
}

} // namespace brimlight::onscreen
