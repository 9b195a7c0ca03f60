#pragma once

#include "platform/Geometry.h"

#include <functional>
#include <vector>

namespace brimlight {

/// The directions in which something can be scrolled.
struct ScrollAxes
{
    bool horizontal = false;
    bool vertical = false;

    bool operator==(const ScrollAxes &) const = default;
};

/// One scroll step over the surface.
struct ScrollEvent
{
    /// Touchpad gestures have a phase; a mouse wheel never has one.
    enum class Phase { none, began, changed, ended, cancelled };

    Phase phase = Phase::none;
    /// Points, positive when the content moves right or down.
    double deltaX = 0;
    double deltaY = 0;
    /// The pointer, from the upper left corner of the surface, y downwards.
    Point position;
    /// What of the content can be scrolled there; told when the gesture begins.
    ScrollAxes scrollable;
};

/// A strip that reports the pointer while nothing is drawn.
struct SurfaceSensor
{
    Rect strip;
    /// A camera housing has nothing below it, so all of it takes clicks. Elsewhere the pointer is felt in the
    /// whole strip, but all except the upper edge leaves clicks and wheel to the windows below.
    bool isHousing = false;
};

/// An area with rounded corners, in logical coordinates.
struct SurfaceOutline
{
    Rect frame;
    double bottomRadius = 0;
    double topRadius = 0;
    /// False for what is seen but lets clicks through.
    bool takesPointer = true;
    /// Asks for the desktop behind it to be blurred, where `SurfaceBackdrop::blurred` is on offer.
    bool blursBehind = false;

    bool operator==(const SurfaceOutline &) const = default;
};

/// What a translucent pixel of the surface lets through.
enum class SurfaceBackdrop {
    /// Nothing: without a compositor it is black.
    opaque,
    /// The desktop as it is.
    translucent,
    /// The desktop, blurred within the outlines that ask for it.
    blurred,
};

/// The one window of the program: borderless, above everything, on every workspace, never focused by itself.
///
/// Three things describe it. `extent` is what can be drawn on; it is set only at the edges of a state, since
/// a resize costs a new buffer. `outlines` are what is drawn within it; the pointer reaches whatever lies
/// below everywhere else. `sensor` reports the pointer even while nothing is drawn.
class OverlaySurface
{
public:
    struct Events
    {
        std::function<void()> entered;
        std::function<void()> exited;
        /// A click on the sensor, where that takes clicks, while nothing is drawn there.
        std::function<void()> tapped;
        /// The same with the right button, when it goes down.
        std::function<void()> menuRequested;
        /// Escape was pressed while it is watched for.
        std::function<void()> escapePressed;
        /// Returns true when the event is used up; else it reaches the content as a Qt wheel event.
        std::function<bool(const ScrollEvent &)> scrolled;
        /// `backdrop` answers differently from now on.
        std::function<void()> backdropChanged;
    };

    virtual ~OverlaySurface() = default;

    virtual void setEvents(Events events) = 0;
    virtual void orderFront() = 0;
    /// Logical coordinates count from the primary screen as it is now: when that has moved, an equal extent
    /// is set again.
    virtual void setExtent(const Rect &extent) = 0;
    virtual void setOutlines(const std::vector<SurfaceOutline> &outlines) = 0;
    virtual void setSensor(const SurfaceSensor &sensor) = 0;
    /// Who tells what of the content can be scrolled at a point of the surface. Asked at the beginning of
    /// each gesture; until it is set nothing can.
    virtual void setScrollable(std::function<ScrollAxes(Point)> scrollableAt) = 0;
    /// True while a text field of the content wants keys; false gives the keyboard back to where it was.
    virtual void setWantsKeyboard(bool wants) = 0;
    /// Asks for Escape, and for no other key, though the keyboard is elsewhere. Not every session grants it.
    virtual void setWatchesEscape(bool watches) = 0;
    virtual SurfaceBackdrop backdrop() const = 0;
};

} // namespace brimlight
