#pragma once

#include <xcb/xcb.h>

#include <optional>

namespace brimlight {

/// The timers by which the X server itself blanks the screen and saves the monitor's power. Suspended,
/// neither of the two starts; their settings stay as the user has made them, and the server ends the
/// suspension when the connection ends, however that comes about. What is blank already is not woken.
class X11ScreenSaver
{
public:
    /// Not for XWayland, where the compositor has timers of its own.
    explicit X11ScreenSaver(xcb_connection_t *xcb);

    /// False for a server with an extension before version 1.1. Asks it once.
    bool canBeSuspended();
    /// The server counts: every suspension has its end.
    void setSuspended(bool suspended);

private:
    xcb_connection_t *m_xcb;
    std::optional<bool> m_canBeSuspended;
};

} // namespace brimlight
