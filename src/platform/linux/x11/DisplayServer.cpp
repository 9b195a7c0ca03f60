#include "platform/linux/x11/DisplayServer.h"

#include <xcb/xcb.h>

#include <QtGlobal>

namespace brimlight {

std::optional<QString> prepareDisplay()
{
    const QByteArray chosen = qgetenv("QT_QPA_PLATFORM");
    // Desktops set "wayland" or "wayland;xcb" for all programs; the panel places itself, which only X11
    // allows.
    if (!chosen.isEmpty() && !chosen.startsWith("wayland") && !chosen.startsWith("xcb"))
        return std::nullopt;
    xcb_connection_t *connection = xcb_connect(nullptr, nullptr);
    const bool failed = xcb_connection_has_error(connection) != 0;
    xcb_disconnect(connection);
    if (!failed) {
        qputenv("QT_QPA_PLATFORM", "xcb");
        return std::nullopt;
    }
    const QByteArray display = qgetenv("DISPLAY");
    if (!display.isEmpty())
        return QStringLiteral("no X11 display can be reached at DISPLAY=%1")
            .arg(QString::fromLocal8Bit(display));
    if (qEnvironmentVariableIsSet("WAYLAND_DISPLAY"))
        return QStringLiteral("this Wayland session offers no XWayland (DISPLAY is not set)");
    return QStringLiteral("no display server can be reached (DISPLAY is not set)");
}

} // namespace brimlight
