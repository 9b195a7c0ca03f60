#include "platform/linux/x11/X11Pointer.h"

#include "platform/linux/screens/QtScreens.h"
#include "platform/linux/x11/X11Connection.h"
#include "platform/linux/x11/X11RawEvents.h"
#include "platform/linux/x11/XcbReply.h"

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

class RawMotion : public EventMonitor
{
public:
    RawMotion(X11Connection &connection, std::function<void()> moved)
        : m_events(connection, XCB_INPUT_RAW_MOTION, [moved = std::move(moved)](const auto &) { moved(); })
    {
    }

private:
    X11RawEvents m_events;
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
