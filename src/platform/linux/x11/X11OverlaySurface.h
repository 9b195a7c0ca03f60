#pragma once

#include "platform/OverlaySurface.h"
#include "platform/linux/x11/ContentWheel.h"
#include "platform/linux/x11/ScrollGesture.h"
#include "platform/linux/x11/TouchpadScroll.h"
#include "platform/linux/x11/X11BlurBehind.h"
#include "platform/linux/x11/X11Connection.h"
#include "platform/linux/x11/X11EscapeKey.h"
#include "platform/linux/x11/X11KeyboardFocus.h"
#include "platform/linux/x11/X11PointerWatch.h"
#include "platform/linux/x11/X11Stacking.h"
#include "platform/linux/x11/X11Strip.h"

#include <QObject>
#include <QWindow>

#include <memory>

namespace brimlight {

/// A window outside of the window manager's care, with a sensor beneath it.
class X11OverlaySurface : public QObject, public OverlaySurface
{
public:
    /// Prepares `window`, which must not have been shown. `overChanged` hears when the pointer comes and
    /// goes.
    X11OverlaySurface(QWindow &window, X11Connection &connection, Scheduler &scheduler,
                      std::function<void(bool)> overChanged);

    void setEvents(Events events) override { m_events = std::move(events); }
    void orderFront() override;
    void setExtent(const Rect &extent) override;
    void setOutlines(const std::vector<SurfaceOutline> &outlines) override;
    void setSensor(const SurfaceSensor &sensor) override;
    void setScrollable(std::function<ScrollAxes(Point)> at) override { m_scrollableAt = std::move(at); }
    void setWantsKeyboard(bool wants) override;
    void setWatchesEscape(bool watches) override { m_escape.setWatched(watches); }
    SurfaceBackdrop backdrop() const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool handle(const xcb_generic_event_t &event);
    bool handlePointer(const xcb_input_button_press_event_t &event);
    void scrolled(ScrollEvent event);
    /// Something is dragged over the sensor. That can take nothing: it gives way to the drawn window, which
    /// is what the source finds at its next motion, and Qt does the rest.
    bool handleDrag(const xcb_client_message_event_t &event);
    void setDragOver(bool over);
    /// What the pointer is over, of all windows on the screen.
    xcb_window_t windowAtPointer() const;
    bool isOurs(xcb_window_t window) const { return window == m_strip.id() || window == m_window.winId(); }
    /// Whether the pointer is over one of our windows or where the strip has given way to others.
    bool isPointerHere() const;
    void pointerCame();
    void pointerWent();
    /// Somebody has grabbed the pointer: from now on nobody tells when it goes.
    void pointerGrabbed();
    /// The strip gives way to the windows below as long as the pointer rests in it, and the pointer is
    /// watched whenever no event tells that it goes.
    void applyRest();
    /// Whether the pointer is taken by anything that is drawn; else the strip feels it.
    bool feelsContent() const;
    /// The part of the window that feels the pointer while nothing is drawn.
    Rect feltStrip() const;
    void applyShape();
    /// What the server paints by itself where something new of the window is seen.
    void applyBackground();
    void backdropMayHaveChanged();

    QWindow &m_window;
    X11Connection &m_connection;
    std::function<void(bool)> m_overChanged;
    Events m_events;
    std::function<ScrollAxes(Point)> m_scrollableAt;
    X11Strip m_strip;
    X11PointerWatch m_watch;
    X11KeyboardFocus m_keyboard;
    X11EscapeKey m_escape;
    X11Stacking m_stacking;
    X11BlurBehind m_blur;
    SurfaceBackdrop m_backdrop = SurfaceBackdrop::opaque;
    TouchpadScroll m_touchpad;
    ScrollGesture m_gesture;
    ContentWheel m_wheel;
    Rect m_extent;
    SurfaceSensor m_sensor;
    std::vector<SurfaceOutline> m_outlines;
    bool m_over = false;
    bool m_grabbed = false;
    bool m_pressed = false;
    bool m_wantsKeyboard = false;
    /// Something is being dragged over the strip, so the drawn window covers it though nothing is drawn.
    bool m_dragOver = false;
    xcb_atom_t m_dragEnter;
    xcb_atom_t m_dragPosition;
    xcb_atom_t m_dragLeave;
    xcb_atom_t m_dragStatus;
    X11Connection::Listening m_listening;
};

} // namespace brimlight
