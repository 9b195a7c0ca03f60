#include "DragSource.h"

#include "XReply.h"

#include <stdexcept>
#include <utility>

namespace brimlight::onscreen {

DragSource::DragSource(const QByteArray &display, const char *format, QByteArray data)
    : m_x(display)
    , m_id(xcb_generate_id(m_x))
    , m_format(m_x.atom(format))
    , m_data(std::move(data))
{
    xcb_create_window(m_x, XCB_COPY_FROM_PARENT, m_id, m_x.root(), 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                      XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_set_selection_owner(m_x, m_id, m_x.atom("XdndSelection"), XCB_CURRENT_TIME);
    // While something is dragged no other window hears of the pointer.
    const auto grab = owned(xcb_grab_pointer_reply(
        m_x,
        xcb_grab_pointer(m_x, 0, m_x.root(), XCB_EVENT_MASK_BUTTON_RELEASE, XCB_GRAB_MODE_ASYNC,
                         XCB_GRAB_MODE_ASYNC, XCB_WINDOW_NONE, XCB_CURSOR_NONE, XCB_CURRENT_TIME),
        nullptr));
    if (!grab || grab->status != XCB_GRAB_STATUS_SUCCESS)
        throw std::runtime_error("somebody else holds the pointer");
}

void DragSource::dragTo(QPoint point)
{
    constexpr int steps = 8;
    const QPoint from = m_x.pointer();
    // The last steps are small: what gives way to a drag does it before the hand comes to rest.
    for (int step = 1; step <= steps; ++step)
        moveTo(from + (point - from) * step / steps);
    for (const int offset : {1, 0}) {
        waitUntil([this] { return isAccepted(); }, milliseconds(100));
        moveTo(point + QPoint(offset, 0));
    }
}

bool DragSource::isAccepted()
{
    take();
    return m_target.accepts;
}

bool DragSource::drop()
{
    const bool accepted = waitUntil([this] { return isAccepted(); }, bounded);
    xcb_ungrab_pointer(m_x, XCB_CURRENT_TIME);
    // The hand moves through a connection of its own: without an answer its next click could overtake this.
    m_x.sync();
    tell(accepted ? "XdndDrop" : "XdndLeave", {0, XCB_CURRENT_TIME, 0, 0});
    return accepted && waitUntil([this] {
               take();
               return m_finished;
           });
}

xcb_window_t DragSource::awareWindowAt(QPoint point) const
{
    xcb_window_t window = m_x.root();
    while (window != XCB_WINDOW_NONE && m_x.property(window, "XdndAware").empty()) {
        const auto reply = owned(xcb_translate_coordinates_reply(
            m_x,
            xcb_translate_coordinates(m_x, m_x.root(), window, static_cast<int16_t>(point.x()),
                                      static_cast<int16_t>(point.y())),
            nullptr));
        window = reply->child;
    }
    return window;
}

void DragSource::moveTo(QPoint point)
{
    constexpr uint32_t version = 5U << 24;
    m_hand.moveTo(point);
    m_x.sync();
    if (const xcb_window_t below = awareWindowAt(point); below != m_target.id) {
        tell("XdndLeave", {});
        m_target = {.id = below};
        tell("XdndEnter", {version, m_format, 0, 0});
    }
    const auto place = static_cast<uint32_t>(point.x() << 16 | point.y());
    tell("XdndPosition", {0, place, XCB_CURRENT_TIME, m_x.atom("XdndActionCopy")});
    take();
}

void DragSource::tell(const char *message, const std::array<uint32_t, 4> &values) const
{
    if (m_target.id == XCB_WINDOW_NONE)
        return;
    xcb_client_message_event_t event = {};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = m_target.id;
    event.type = m_x.atom(message);
    event.data.data32[0] = m_id;
    std::copy(values.begin(), values.end(), event.data.data32 + 1);
    xcb_send_event(m_x, 0, m_target.id, XCB_EVENT_MASK_NO_EVENT, reinterpret_cast<const char *>(&event));
    m_x.flush();
}

void DragSource::take()
{
    while (const auto event = owned(xcb_poll_for_event(m_x))) {
        const auto &message = reinterpret_cast<const xcb_client_message_event_t &>(*event);
        switch (event->response_type & ~0x80) {
        case XCB_CLIENT_MESSAGE:
            // A late answer is none of the window that the pointer is over now.
            if (message.data.data32[0] != m_target.id)
                break;
            if (message.type == m_x.atom("XdndStatus"))
                m_target.accepts = (message.data.data32[1] & 1) != 0;
            else if (message.type == m_x.atom("XdndFinished"))
                m_finished = (message.data.data32[1] & 1) != 0;
            break;
        case XCB_SELECTION_REQUEST:
            answer(reinterpret_cast<const xcb_selection_request_event_t &>(*event));
            break;
        default:
            break;
        }
    }
}

void DragSource::answer(const xcb_selection_request_event_t &request) const
{
    xcb_selection_notify_event_t event = {};
    event.response_type = XCB_SELECTION_NOTIFY;
    event.time = request.time;
    event.requestor = request.requestor;
    event.selection = request.selection;
    event.target = request.target;
    if (request.target == m_format) {
        xcb_change_property(m_x, XCB_PROP_MODE_REPLACE, request.requestor, request.property, m_format, 8,
                            static_cast<uint32_t>(m_data.size()), m_data.constData());
        event.property = request.property;
    }
    xcb_send_event(m_x, 0, request.requestor, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char *>(&event));
    m_x.flush();
}

} // namespace brimlight::onscreen
