#pragma once

#include "platform/Pointer.h"

namespace brimlight {

class X11Connection;

/// The pointer of the X server. Without X11 (an offscreen run) it is nowhere and no monitor can be had but
/// local ones.
class X11Pointer : public Pointer
{
public:
    explicit X11Pointer(X11Connection *connection)
        : m_connection(connection)
    {
    }

    std::optional<Point> location() const override;
    bool isAnyButtonPressed() const override;
    std::unique_ptr<EventMonitor> monitorLocalMotion(std::function<void()> moved) override;
    std::unique_ptr<EventMonitor> monitorGlobalMotion(std::function<void()> moved) override;
    std::unique_ptr<EventMonitor> monitorLeftRelease(std::function<void()> released) override;

    /// XWayland knows the pointer only over its own windows: there the surface says whether the position
    /// holds.
    void setOverSurface(bool over) { m_overSurface = over; }

private:
    X11Connection *m_connection;
    bool m_overSurface = false;
};

} // namespace brimlight
