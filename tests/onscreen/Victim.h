#pragma once

#include "XClient.h"

namespace brimlight::onscreen {

/// Somebody else's window, which notes what it is given.
class Victim
{
public:
    enum class Kind {
        /// Large, without a frame of the window manager, at the top of the screen.
        plain,
        fullScreen
    };

    /// Returns once the window is active and, when asked for, full screen.
    Victim(const QByteArray &display, Kind kind);

    xcb_window_t id() const { return m_id; }
    /// It has the keyboard, and the window manager says so.
    bool isActive() const;
    /// Asks the window manager to make it the active window, as a task bar does.
    void activate() const;
    /// Puts itself above its like.
    void raise() const;

    /// Where buttons were pressed over it, in the screen's coordinates, since it was mapped.
    const std::vector<QPoint> &presses();
    int keyPresses();

    static constexpr QRgb color = 0xff2e6b3a;

private:
    void take();

    XClient m_x;
    xcb_window_t m_id;
    std::vector<QPoint> m_presses;
    int m_keyPresses = 0;
};

} // namespace brimlight::onscreen
