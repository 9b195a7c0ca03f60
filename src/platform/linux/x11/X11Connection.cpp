#include "platform/linux/x11/X11Connection.h"

#include "platform/linux/x11/XcbReply.h"

#include <xcb/xfixes.h>
#include <xcb/xinput.h>

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <cstring>

namespace brimlight {
namespace {

/// XWayland before 23.1 has no extension to be known by, but names its outputs after itself.
bool hasXWaylandOutput()
{
    const QList<QScreen *> screens = QGuiApplication::screens();
    return std::any_of(screens.begin(), screens.end(), [](const QScreen *screen) {
        return screen->name().startsWith(QLatin1String("XWAYLAND"));
    });
}

} // namespace

X11Connection::Listening::Listening(X11Connection &connection, Listener listener)
    : m_connection(connection)
    , m_listener(std::move(listener))
{
    m_connection.m_listenings.append(this);
}

X11Connection::Listening::~Listening()
{
    m_connection.m_listenings.removeOne(this);
}

std::unique_ptr<X11Connection> X11Connection::ofApplication()
{
    const auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!x11 || !x11->connection())
        return nullptr;
    return std::unique_ptr<X11Connection>(new X11Connection(x11->connection()));
}

X11Connection::X11Connection(xcb_connection_t *xcb)
    : m_xcb(xcb)
    , m_root(xcb_setup_roots_iterator(xcb_get_setup(xcb)).data->root)
{
    // All questions go out before the first answer is waited for.
    const auto xwaylandCookie =
        xcb_query_extension(m_xcb, static_cast<uint16_t>(std::strlen("XWAYLAND")), "XWAYLAND");
    xcb_prefetch_extension_data(m_xcb, &xcb_input_id);
    xcb_prefetch_extension_data(m_xcb, &xcb_xfixes_id);
    m_compositorSelection = atom("_NET_WM_CM_S0");

    const auto xwayland = adopt(xcb_query_extension_reply(m_xcb, xwaylandCookie, nullptr));
    m_isXWayland = (xwayland && xwayland->present) || hasXWaylandOutput();

    const xcb_query_extension_reply_t *input = xcb_get_extension_data(m_xcb, &xcb_input_id);
    if (input && input->present) {
        const auto version =
            adopt(xcb_input_xi_query_version_reply(m_xcb, xcb_input_xi_query_version(m_xcb, 2, 2), nullptr));
        if (version && (version->major_version > 2 || version->minor_version >= 2))
            m_inputOpcode = input->major_opcode;
    }
    watchCompositor();
    qGuiApp->installNativeEventFilter(this);
}

X11Connection::~X11Connection()
{
    if (qGuiApp)
        qGuiApp->removeNativeEventFilter(this);
}

xcb_atom_t X11Connection::atom(const char *name) const
{
    const auto cookie = xcb_intern_atom(m_xcb, 0, static_cast<uint16_t>(std::strlen(name)), name);
    const auto reply = adopt(xcb_intern_atom_reply(m_xcb, cookie, nullptr));
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

void X11Connection::selectRawEvents(uint16_t type, int change)
{
    if (m_inputOpcode == 0)
        return;
    m_rawEvents[type] += change;
    struct
    {
        xcb_input_event_mask_t head;
        uint32_t mask;
    } selection{.head = {.deviceid = XCB_INPUT_DEVICE_ALL_MASTER, .mask_len = 1}, .mask = 0};
    for (auto it = m_rawEvents.cbegin(); it != m_rawEvents.cend(); ++it) {
        if (it.value() > 0)
            selection.mask |= 1u << it.key();
    }
    xcb_input_xi_select_events(m_xcb, m_root, 1, &selection.head);
    flush();
}

void X11Connection::watchCompositor()
{
    const xcb_query_extension_reply_t *fixes = xcb_get_extension_data(m_xcb, &xcb_xfixes_id);
    if (fixes && fixes->present) {
        const auto version =
            adopt(xcb_xfixes_query_version_reply(m_xcb, xcb_xfixes_query_version(m_xcb, 5, 0), nullptr));
        if (version) {
            m_fixesEvent = fixes->first_event + XCB_XFIXES_SELECTION_NOTIFY;
            xcb_xfixes_select_selection_input(m_xcb, m_root, m_compositorSelection,
                                              XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
                                                  XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                                                  XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
        }
    }
    const auto owner = adopt(
        xcb_get_selection_owner_reply(m_xcb, xcb_get_selection_owner(m_xcb, m_compositorSelection), nullptr));
    m_isComposited = owner && owner->owner != XCB_WINDOW_NONE;
}

void X11Connection::handleSelection(const xcb_generic_event_t &event)
{
    const auto &notify = reinterpret_cast<const xcb_xfixes_selection_notify_event_t &>(event);
    if (notify.selection != m_compositorSelection)
        return;
    const bool composited = notify.owner != XCB_WINDOW_NONE;
    if (composited == m_isComposited)
        return;
    m_isComposited = composited;
    if (m_compositedChanged)
        m_compositedChanged();
}

bool X11Connection::nativeEventFilter(const QByteArray &eventType, void *message, qintptr *)
{
    if (eventType != "xcb_generic_event_t")
        return false;
    const auto &event = *static_cast<const xcb_generic_event_t *>(message);
    if (m_fixesEvent != 0 && (event.response_type & ~0x80) == m_fixesEvent)
        handleSelection(event);
    // A listener may go while it is called; it is rare enough that a copy of the list is cheap.
    const QList<Listening *> listenings = m_listenings;
    for (Listening *listening : listenings) {
        if (m_listenings.contains(listening) && listening->m_listener(event))
            return true;
    }
    return false;
}

} // namespace brimlight
