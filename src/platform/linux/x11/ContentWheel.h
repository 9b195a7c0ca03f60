#pragma once

#include "platform/OverlaySurface.h"

#include <QPointF>
#include <QPointingDevice>

class QWindow;

namespace brimlight {

/// Hands a touchpad's scrolling to the content of a window as Qt's wheel events: point by point, with the
/// phases of a gesture, from a device that is a touchpad. Qt would make them itself, but takes the units of
/// the driver for points, which are eight times as many in those of today.
class ContentWheel
{
public:
    explicit ContentWheel(QWindow &window);

    /// The first event that comes here begins the gesture for the content.
    void deliver(const ScrollEvent &event);

private:
    void send(QPoint points, Qt::ScrollPhase phase);

    QWindow &m_window;
    QPointingDevice m_device;
    QPointF m_position;
    /// What is left of the motion below a whole point.
    QPointF m_rest;
    bool m_isUnderWay = false;
};

} // namespace brimlight
