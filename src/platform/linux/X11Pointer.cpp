#include "platform/linux/X11Pointer.h"

#include "platform/linux/QtScreens.h"
#include "platform/linux/X11Connection.h"
#include "platform/linux/XcbReply.h"

#include <xcb/xinput.h>

#include <QCursor>
#include <QGuiApplication>
#include <QMouseEvent>

namespace brimlight {
namespace {

/// Mouse events on their way to our windows.
class WindowEvents : public QObject, public EventMonitor
{
public:
    using Wanted = bool (*)(const QEvent &);

    WindowEvents(Wanted wanted, std::function<void()> happened)
        : m_wanted(wanted)
        , m_happened(std::move(happened))
    {
        qGuiApp->installEventFilter(this);
    }

    bool eventFilter(QObject *receiver, QEvent *event) override
    {
        if (m_wanted(*event) && receiver->isWindowType())
            m_happened();
        return false;
    }

private:
    Wanted m_wanted;
    std::function<void()> m_happened;
};

/// Raw motion of all devices, which the server reports wherever the pointer is and whoever has grabbed it.
class RawMotion : public EventMonitor
{
public:
    RawMotion(X11Connection &connection, std::function<void()> moved)
        : m_connection(connection)
        , m_listening(connection, [opcode = connection.inputOpcode(),
                                   moved = std::move(moved)](const xcb_generic_event_t &event) {
            const auto &generic = reinterpret_cast<const xcb_ge_generic_event_t &>(event);
            if ((event.response_type & ~0x80) != XCB_GE_GENERIC || generic.extension != opcode ||
                generic.event_type != XCB_INPUT_RAW_MOTION)
                return false;
            moved();
            return true;
        })
    {
        select(XCB_INPUT_XI_EVENT_MASK_RAW_MOTION);
    }
    ~RawMotion() override { select(static_cast<xcb_input_xi_event_mask_t>(0)); }

private:
    void select(xcb_input_xi_event_mask_t events)
    {
        struct
        {
            xcb_input_event_mask_t head;
            uint32_t mask;
        } selection{.head = {.deviceid = XCB_INPUT_DEVICE_ALL_MASTER, .mask_len = 1}, .mask = events};
        xcb_input_xi_select_events(m_connection, m_connection.root(), 1, &selection.head);
        m_connection.flush();
    }

    X11Connection &m_connection;
    X11Connection::Listening m_listening;
};

} // namespace

std::optional<Point> X11Pointer::location() const
{
    if (!m_connection || (m_connection->isXWayland() && !m_overSurface))
        return std::nullopt;
    const QScreen *primary = QGuiApplication::primaryScreen();
    if (!primary)
        return std::nullopt;
    // Qt asks the server each time and turns pixels into points.
    const QPoint position = QCursor::pos();
    const Rect point = flipped(QRectF(position, QSizeF(0, 0)), primary->geometry());
    return Point{point.x, point.y};
}

bool X11Pointer::isAnyButtonPressed() const
{
    if (!m_connection)
        return QGuiApplication::mouseButtons() != Qt::NoButton;
    const auto reply = adopt(xcb_query_pointer_reply(
        *m_connection, xcb_query_pointer(*m_connection, m_connection->root()), nullptr));
    constexpr uint16_t anyButton =
        XCB_BUTTON_MASK_1 | XCB_BUTTON_MASK_2 | XCB_BUTTON_MASK_3 | XCB_BUTTON_MASK_4 | XCB_BUTTON_MASK_5;
    return reply && (reply->mask & anyButton) != 0;
}

std::unique_ptr<EventMonitor> X11Pointer::monitorLocalMotion(std::function<void()> moved)
{
    return std::make_unique<WindowEvents>(
        [](const QEvent &event) { return event.type() == QEvent::MouseMove; }, std::move(moved));
}

std::unique_ptr<EventMonitor> X11Pointer::monitorGlobalMotion(std::function<void()> moved)
{
    if (!m_connection || m_connection->inputOpcode() == 0)
        return nullptr;
    return std::make_unique<RawMotion>(*m_connection, std::move(moved));
}

std::unique_ptr<EventMonitor> X11Pointer::monitorLeftRelease(std::function<void()> released)
{
    return std::make_unique<WindowEvents>(
        [](const QEvent &event) {
            return event.type() == QEvent::MouseButtonRelease &&
                   static_cast<const QMouseEvent &>(event).button() == Qt::LeftButton;
        },
        std::move(released));
}

} // namespace brimlight
