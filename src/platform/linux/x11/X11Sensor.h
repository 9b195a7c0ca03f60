#pragma once

#include <xcb/xcb.h>

#include <QRect>

namespace brimlight {

class X11Connection;

/// An invisible window that only feels the pointer. It lies under the drawn window and takes over when
/// nothing is drawn: without a compositor a transparent window would be black, with one it would keep
/// full-screen programs from scanning out directly.
class X11Sensor
{
public:
    explicit X11Sensor(X11Connection &connection);
    ~X11Sensor();
    X11Sensor(const X11Sensor &) = delete;
    X11Sensor &operator=(const X11Sensor &) = delete;

    xcb_window_t id() const { return m_id; }
    /// In pixels of the X server.
    void setGeometry(const QRect &pixels);
    void show();

private:
    X11Connection &m_connection;
    xcb_window_t m_id;
};

} // namespace brimlight
