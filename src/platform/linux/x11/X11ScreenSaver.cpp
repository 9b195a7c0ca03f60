#include "platform/linux/x11/X11ScreenSaver.h"

#include "platform/linux/x11/XcbReply.h"

#include <xcb/screensaver.h>

namespace brimlight {
namespace {

bool hasSuspension(xcb_connection_t *xcb)
{
    const xcb_query_extension_reply_t *extension = xcb_get_extension_data(xcb, &xcb_screensaver_id);
    if (!extension || !extension->present)
        return false;
    const auto version =
        adopt(xcb_screensaver_query_version_reply(xcb, xcb_screensaver_query_version(xcb, 1, 1), nullptr));
    return version && (version->server_major_version > 1 || version->server_minor_version >= 1);
}

} // namespace

X11ScreenSaver::X11ScreenSaver(xcb_connection_t *xcb)
    : m_xcb(xcb)
{
}

bool X11ScreenSaver::canBeSuspended()
{
    if (!m_canBeSuspended)
        m_canBeSuspended = hasSuspension(m_xcb);
    return *m_canBeSuspended;
}

void X11ScreenSaver::setSuspended(bool suspended)
{
    xcb_screensaver_suspend(m_xcb, suspended ? 1 : 0);
    xcb_flush(m_xcb);
}

} // namespace brimlight
