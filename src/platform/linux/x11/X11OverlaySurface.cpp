#include "platform/linux/x11/X11OverlaySurface.h"

#include "platform/linux/screens/QtScreens.h"
#include "platform/linux/x11/OutlineRows.h"
#include "platform/linux/x11/XcbReply.h"

#include <xcb/shape.h>

#include <QEvent>
#include <QGuiApplication>

#include <algorithm>

namespace brimlight {
namespace {

QRectF primaryFrame()
{
    const QScreen *primary = QGuiApplication::primaryScreen();
    return primary ? QRectF(primary->geometry()) : QRectF();
}

/// Prepares the window and makes its native counterpart.
QWindow &prepared(QWindow &window)
{
    window.setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                    Qt::X11BypassWindowManagerHint | Qt::NoDropShadowWindowHint);
    QSurfaceFormat format = window.requestedFormat();
    format.setAlphaBufferSize(8);
    window.setFormat(format);
    window.create();
    return window;
}

} // namespace

X11OverlaySurface::X11OverlaySurface(QWindow &window, X11Connection &connection, Scheduler &scheduler,
                                     std::function<void(bool)> overChanged)
    : m_window(prepared(window))
    , m_connection(connection)
    , m_overChanged(std::move(overChanged))
    , m_strip(connection)
    , m_watch(connection, scheduler, [this] { pointerWent(); })
    , m_keyboard(connection, static_cast<xcb_window_t>(window.winId()))
    , m_escape(connection,
               [this] {
                   if (m_events.escapePressed)
                       m_events.escapePressed();
               })
    , m_stacking(connection, scheduler, {m_strip.id(), static_cast<xcb_window_t>(window.winId())})
    , m_blur(connection, static_cast<xcb_window_t>(window.winId()), [this] { backdropMayHaveChanged(); })
    , m_touchpad(connection)
    , m_gesture(scheduler, [this](const ScrollEvent &event) { scrolled(event); })
    , m_wheel(window)
    , m_dragEnter(connection.atom("XdndEnter"))
    , m_dragPosition(connection.atom("XdndPosition"))
    , m_dragLeave(connection.atom("XdndLeave"))
    , m_dragStatus(connection.atom("XdndStatus"))
    , m_listening(connection, [this](const xcb_generic_event_t &event) { return handle(event); })
{
    const xcb_atom_t type = m_connection.atom("_NET_WM_WINDOW_TYPE_DOCK");
    xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, static_cast<xcb_window_t>(m_window.winId()),
                        m_connection.atom("_NET_WM_WINDOW_TYPE"), XCB_ATOM_ATOM, 32, 1, &type);
    m_window.installEventFilter(this);
    m_connection.observeComposited([this] {
        applyBackground();
        applyShape();
        backdropMayHaveChanged();
    });
    applyBackground();
    applyShape();
    m_backdrop = backdrop();
}

void X11OverlaySurface::orderFront()
{
    m_strip.show();
    m_window.show();
    // A window without content does not exist for a Wayland compositor, and nothing is drawn yet.
    if (m_connection.isXWayland())
        xcb_clear_area(m_connection, 0, static_cast<xcb_window_t>(m_window.winId()), 0, 0, 0, 0);
    m_stacking.raise();
}

void X11OverlaySurface::setExtent(const Rect &extent)
{
    m_extent = extent;
    m_window.setGeometry(unflipped(extent, primaryFrame()).toAlignedRect());
    applyShape();
}

void X11OverlaySurface::setOutlines(const std::vector<SurfaceOutline> &outlines)
{
    if (outlines == m_outlines)
        return;
    const bool feltContent = feelsContent();
    m_outlines = outlines;
    applyShape();
    if (feelsContent() != feltContent) {
        // What was scrolled until now went elsewhere.
        m_touchpad.forgetPositions();
        applyRest();
    }
    // Nobody can see what is typed into a surface that shows nothing.
    if (!feelsContent())
        m_keyboard.giveBack();
}

bool X11OverlaySurface::feelsContent() const
{
    return std::ranges::any_of(m_outlines, &SurfaceOutline::takesPointer);
}

void X11OverlaySurface::setSensor(const SurfaceSensor &sensor)
{
    m_sensor = sensor;
    applyShape();
    const QRectF frame = unflipped(sensor.strip, primaryFrame());
    const double ratio = m_window.devicePixelRatio();
    // Screens keep their origin in pixels; only what lies within a screen is scaled.
    const QScreen *screen = QGuiApplication::screenAt(frame.center().toPoint());
    const QRectF place = screen ? QRectF(screen->geometry()) : frame;
    const QPointF origin = screen ? place.topLeft() : QPointF();
    const QRectF pixels(origin + (frame.topLeft() - origin) * ratio, frame.size() * ratio);
    m_strip.setPlace(pixels.toAlignedRect(), sensor.isHousing, ratio);
    m_stacking.setScreen(QRectF(place.topLeft(), place.size() * ratio).toRect());
}

Rect X11OverlaySurface::feltStrip() const
{
    const Rect &strip = m_sensor.strip;
    if (!m_connection.isXWayland() || m_sensor.isHousing)
        return strip;
    const double height = std::min(strip.height, X11Strip::waylandEdgeHeight);
    return {strip.x, strip.maxY() - height, strip.width, height};
}

void X11OverlaySurface::setWantsKeyboard(bool wants)
{
    m_wantsKeyboard = wants;
    if (wants)
        m_keyboard.take();
    else
        m_keyboard.giveBack();
}

SurfaceBackdrop X11OverlaySurface::backdrop() const
{
    // A Wayland compositor blends the windows of XWayland but does not read what they say about blur.
    if (m_connection.isXWayland())
        return SurfaceBackdrop::translucent;
    if (!m_connection.isComposited())
        return SurfaceBackdrop::opaque;
    return m_blur.isOffered() ? SurfaceBackdrop::blurred : SurfaceBackdrop::translucent;
}

void X11OverlaySurface::backdropMayHaveChanged()
{
    const SurfaceBackdrop now = backdrop();
    if (now == m_backdrop)
        return;
    m_backdrop = now;
    if (m_events.backdropChanged)
        m_events.backdropChanged();
}

bool X11OverlaySurface::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Enter:
        pointerCame();
        break;
    case QEvent::Leave:
        pointerWent();
        // Whoever drags holds the pointer: a source that was lost no longer does.
        setDragOver(false);
        break;
    case QEvent::DragLeave:
    case QEvent::Drop:
        setDragOver(false);
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

bool X11OverlaySurface::handle(const xcb_generic_event_t &event)
{
    switch (event.response_type & ~0x80) {
    case XCB_ENTER_NOTIFY:
        if (reinterpret_cast<const xcb_enter_notify_event_t &>(event).event == m_strip.id())
            pointerCame();
        return false;
    case XCB_LEAVE_NOTIFY: {
        const auto &leave = reinterpret_cast<const xcb_leave_notify_event_t &>(event);
        if (leave.event == m_strip.id()) {
            if (leave.mode == XCB_NOTIFY_MODE_GRAB)
                pointerGrabbed();
            pointerWent();
        }
        return false;
    }
    case XCB_CLIENT_MESSAGE:
        return handleDrag(reinterpret_cast<const xcb_client_message_event_t &>(event));
    case XCB_GE_GENERIC: {
        const auto &generic = reinterpret_cast<const xcb_ge_generic_event_t &>(event);
        if (generic.extension != m_connection.inputOpcode())
            return false;
        switch (generic.event_type) {
        case XCB_INPUT_MOTION:
        case XCB_INPUT_BUTTON_PRESS:
        case XCB_INPUT_BUTTON_RELEASE:
            return handlePointer(reinterpret_cast<const xcb_input_button_press_event_t &>(event));
        case XCB_INPUT_ENTER:
            m_grabbed = false;
            applyRest();
            return false;
        case XCB_INPUT_LEAVE: {
            const auto mode = reinterpret_cast<const xcb_input_leave_event_t &>(event).mode;
            if (mode == XCB_INPUT_NOTIFY_MODE_GRAB || mode == XCB_INPUT_NOTIFY_MODE_PASSIVE_GRAB)
                pointerGrabbed();
            return false;
        }
        case XCB_INPUT_HIERARCHY:
        case XCB_INPUT_DEVICE_CHANGED:
        case XCB_INPUT_PROPERTY:
            m_touchpad.forgetDevices();
            return false;
        default:
            return false;
        }
    }
    default:
        return false;
    }
}

bool X11OverlaySurface::handlePointer(const xcb_input_button_press_event_t &event)
{
    if (!isOurs(event.event))
        return false;
    if (const auto step = m_touchpad.read(event)) {
        constexpr double fixedPoint = 65536;
        const double scale = fixedPoint * m_window.devicePixelRatio();
        m_gesture.step(step->deltaX, step->deltaY, {event.event_x / scale, event.event_y / scale});
        return true;
    }
    // Qt takes a while to tell the content that the keyboard has gone elsewhere; until then a field thinks it
    // has it.
    if (m_wantsKeyboard && event.event_type == XCB_INPUT_BUTTON_PRESS)
        m_keyboard.take();
    const bool onSensor = event.event == m_strip.id() || !feelsContent();
    const QPoint place(event.root_x >> 16, event.root_y >> 16);
    const bool takesClick = m_strip.clicked().contains(place);
    if (onSensor && event.detail == XCB_BUTTON_INDEX_1) {
        if (event.event_type == XCB_INPUT_BUTTON_PRESS) {
            m_pressed = takesClick;
        } else if (event.event_type == XCB_INPUT_BUTTON_RELEASE && m_pressed) {
            m_pressed = false;
            // Released elsewhere is taken back, as for any button. The event tells where; whether Qt has told
            // of the pointer's coming yet is another matter.
            if (m_strip.felt().contains(place) && m_events.tapped)
                m_events.tapped();
        }
    }
    if (onSensor && takesClick && event.event_type == XCB_INPUT_BUTTON_PRESS &&
        event.detail == XCB_BUTTON_INDEX_3 && m_events.menuRequested)
        m_events.menuRequested();
    return onSensor;
}

void X11OverlaySurface::scrolled(ScrollEvent event)
{
    if (event.phase == ScrollEvent::Phase::began && feelsContent() && m_scrollableAt)
        event.scrollable = m_scrollableAt(event.position);
    if (!m_events.scrolled || !m_events.scrolled(event))
        m_wheel.deliver(event);
}

bool X11OverlaySurface::handleDrag(const xcb_client_message_event_t &event)
{
    if (event.window != m_strip.id())
        return false;
    if (event.type == m_dragEnter) {
        setDragOver(true);
    } else if (event.type == m_dragLeave) {
        setDragOver(windowAtPointer() == m_window.winId());
    } else if (event.type == m_dragPosition) {
        xcb_client_message_event_t refusal = {};
        refusal.response_type = XCB_CLIENT_MESSAGE;
        refusal.format = 32;
        refusal.window = event.data.data32[0];
        refusal.type = m_dragStatus;
        refusal.data.data32[0] = m_strip.id();
        xcb_send_event(m_connection, 0, refusal.window, XCB_EVENT_MASK_NO_EVENT,
                       reinterpret_cast<const char *>(&refusal));
        m_connection.flush();
    }
    return true;
}

void X11OverlaySurface::setDragOver(bool over)
{
    if (over == m_dragOver)
        return;
    m_dragOver = over;
    applyShape();
}

xcb_window_t X11OverlaySurface::windowAtPointer() const
{
    const auto reply = adopt(
        xcb_query_pointer_reply(m_connection, xcb_query_pointer(m_connection, m_connection.root()), nullptr));
    return reply ? reply->child : static_cast<xcb_window_t>(XCB_WINDOW_NONE);
}

bool X11OverlaySurface::isPointerHere() const
{
    const auto reply = adopt(
        xcb_query_pointer_reply(m_connection, xcb_query_pointer(m_connection, m_connection.root()), nullptr));
    return reply && (isOurs(reply->child) ||
                     (m_strip.hasGivenWay() && m_strip.felt().contains(reply->root_x, reply->root_y)));
}

void X11OverlaySurface::pointerCame()
{
    m_grabbed = false;
    if (m_over)
        return;
    m_over = true;
    m_touchpad.forgetPositions();
    applyRest();
    m_overChanged(true);
    if (m_events.entered)
        m_events.entered();
}

void X11OverlaySurface::pointerWent()
{
    if (!m_over)
        return;
    // Going from the sensor to the drawn window and back, or a grab by somebody else, is no leaving. XWayland
    // knows no better than this event: it would answer with the last place it has seen.
    if (!m_connection.isXWayland() && isPointerHere())
        return;
    m_over = false;
    m_grabbed = false;
    applyRest();
    m_overChanged(false);
    if (m_events.exited)
        m_events.exited();
}

void X11OverlaySurface::pointerGrabbed()
{
    m_grabbed = true;
    m_touchpad.forgetPositions();
    applyRest();
}

void X11OverlaySurface::applyRest()
{
    const bool restsInStrip = m_over && !feelsContent();
    m_strip.setGivesWay(restsInStrip);
    m_watch.setRunning(!m_connection.isXWayland() && (restsInStrip || (m_over && m_grabbed)));
}

void X11OverlaySurface::applyBackground()
{
    const auto window = static_cast<xcb_window_t>(m_window.winId());
    // A compositor reads new parts of a grown window before they are painted: transparent, instead of
    // whatever memory held. Without one that is black, and the server would paint all of the window with it
    // at every change of its shape.
    const uint32_t transparent = 0;
    const uint32_t none = XCB_BACK_PIXMAP_NONE;
    if (m_connection.isXWayland() || m_connection.isComposited())
        xcb_change_window_attributes(m_connection, window, XCB_CW_BACK_PIXEL, &transparent);
    else
        xcb_change_window_attributes(m_connection, window, XCB_CW_BACK_PIXMAP, &none);
}

void X11OverlaySurface::applyShape()
{
    std::vector<xcb_rectangle_t> drawn;
    std::vector<xcb_rectangle_t> felt;
    std::vector<xcb_rectangle_t> blurred;
    for (const SurfaceOutline &outline : m_outlines) {
        const auto rows = outlineRows(outline, m_extent, m_window.devicePixelRatio());
        drawn.insert(drawn.end(), rows.begin(), rows.end());
        if (outline.takesPointer)
            felt.insert(felt.end(), rows.begin(), rows.end());
        if (outline.blursBehind)
            blurred.insert(blurred.end(), rows.begin(), rows.end());
    }
    m_blur.setRegion(blurred);
    // Input-only windows have no counterpart in Wayland: there the drawn window, transparent, feels the strip
    // itself.
    if (!feelsContent() && (m_connection.isXWayland() || m_dragOver))
        felt = outlineRows({.frame = feltStrip()}, m_extent, m_window.devicePixelRatio());
    if (!feelsContent() && m_dragOver)
        drawn.insert(drawn.end(), felt.begin(), felt.end());
    const auto window = static_cast<xcb_window_t>(m_window.winId());
    const auto set = [&](xcb_shape_sk_t kind, const std::vector<xcb_rectangle_t> &rows) {
        xcb_shape_rectangles(m_connection, XCB_SHAPE_SO_SET, kind, XCB_CLIP_ORDERING_UNSORTED, window, 0, 0,
                             static_cast<uint32_t>(rows.size()), rows.data());
    };
    // A compositor blends what is transparent; without one only the shape keeps it from being black.
    const bool blended = m_connection.isXWayland() || (m_connection.isComposited() && !drawn.empty());
    if (blended)
        xcb_shape_mask(m_connection, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING, window, 0, 0, XCB_PIXMAP_NONE);
    else
        set(XCB_SHAPE_SK_BOUNDING, drawn);
    set(XCB_SHAPE_SK_INPUT, felt);
    m_connection.flush();
}

} // namespace brimlight
