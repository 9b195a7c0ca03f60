#pragma once

#include "Hand.h"

#include <array>

namespace brimlight::onscreen {

/// Somebody else's window out of which something is dragged with the mouse.
class DragSource
{
public:
    /// Takes hold of the pointer; `data` is what whoever it is dropped on can have as `format`.
    DragSource(const QByteArray &display, const char *format, QByteArray data);

    /// Goes there as a hand does, through places in between, and tells the windows on the way.
    void dragTo(QPoint point);
    /// The window below would take it.
    bool isAccepted();
    /// Lets go. True when somebody has taken it.
    bool drop();

private:
    struct Target
    {
        xcb_window_t id = XCB_WINDOW_NONE;
        bool accepts = false;
    };

    xcb_window_t awareWindowAt(QPoint point) const;
    void moveTo(QPoint point);
    void tell(const char *message, const std::array<uint32_t, 4> &values) const;
    void take();
    void answer(const xcb_selection_request_event_t &request) const;

    XClient m_x;
    Hand m_hand{m_x};
    xcb_window_t m_id;
    xcb_atom_t m_format;
    QByteArray m_data;
    Target m_target;
    bool m_finished = false;
};

} // namespace brimlight::onscreen
