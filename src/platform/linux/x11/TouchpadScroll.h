#pragma once

#include <xcb/xcb.h>
#include <xcb/xinput.h>

#include <QHash>

#include <optional>

namespace brimlight {

class X11Connection;

/// One scroll axis of an input device.
struct ScrollAxis
{
    uint16_t valuator = 0;
    /// The change that counts as one click of a wheel.
    double increment = 1;
    /// The last known absolute value; absent until one has been seen.
    std::optional<double> last;
};

/// What is known of the device an event came from.
struct ScrollSource
{
    bool isTouchpad = false;
    std::optional<ScrollAxis> horizontal;
    std::optional<ScrollAxis> vertical;

    /// Other windows may have been scrolled meanwhile: the next values only set the start.
    void forgetPositions();
};

struct ScrollStep
{
    double deltaX = 0;
    double deltaY = 0;
};

/// Points that a touchpad moves for what a wheel calls one click; libinput's own unit.
inline constexpr double pointsPerClick = 15;

/// The step from the last known values of `source` to those of a motion event; updates them. Absent when the
/// event moves no scroll axis.
std::optional<ScrollStep> scrollStep(const xcb_input_button_press_event_t &motion, ScrollSource &source);

/// The step of a wheel button (4 up, 5 down, 6 left, 7 right), as older touchpad drivers send it; absent for
/// others.
std::optional<ScrollStep> scrollStep(uint32_t button);

/// Picks the scroll steps of touchpads out of the X server's events.
class TouchpadScroll
{
public:
    explicit TouchpadScroll(X11Connection &connection)
        : m_connection(connection)
    {
    }

    /// The step in a pointer event over one of our windows, absent when it is no touchpad's scrolling.
    std::optional<ScrollStep> read(const xcb_input_button_press_event_t &event);
    /// The pointer has been where scrolling is not told to us.
    void forgetPositions();
    /// Devices came, went or changed.
    void forgetDevices() { m_sources.clear(); }

private:
    ScrollSource &source(xcb_input_device_id_t id);

    X11Connection &m_connection;
    QHash<int, ScrollSource> m_sources;
};

} // namespace brimlight
