#pragma once

#include "platform/linux/x11/X11Sensor.h"

#include <QRect>

namespace brimlight {

/// The strip in which a resting pointer is felt, in pixels of the X server, and the part of it that takes
/// clicks: all of a camera housing, elsewhere the rows at the screen's edge. Where clicks belong to the
/// windows below, an input-only window can feel the pointer only until that is there: then it gives way, down
/// to the rows that take clicks.
class X11Strip
{
public:
    /// Points from the upper edge that take clicks where there is no housing.
    static constexpr double edgeHeight = 2;
    /// The same under XWayland, where nothing tells where the pointer is among the windows below: there it is
    /// all that is felt.
    static constexpr double waylandEdgeHeight = 4;

    explicit X11Strip(X11Connection &connection);

    xcb_window_t id() const { return m_sensor.id(); }
    void show() { m_sensor.show(); }
    void setPlace(const QRect &pixels, bool isHousing, double devicePixelRatio);
    /// The pointer is in it and nothing is drawn over it.
    void setGivesWay(bool gives);

    /// The sensor has left the windows below more than the pointer's place tells: that must be asked for.
    bool hasGivenWay() const { return m_givesWay && m_clicked != m_felt; }
    /// Where a resting pointer is felt.
    const QRect &felt() const { return m_felt; }
    /// Where a click is taken.
    const QRect &clicked() const { return m_clicked; }

private:
    void apply();

    bool m_isXWayland;
    X11Sensor m_sensor;
    QRect m_felt;
    QRect m_clicked;
    bool m_givesWay = false;
};

} // namespace brimlight
