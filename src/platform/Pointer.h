#pragma once

#include "platform/Geometry.h"

#include <functional>
#include <memory>
#include <optional>

namespace brimlight {

/// Delivers events until it is destroyed.
class EventMonitor
{
public:
    virtual ~EventMonitor() = default;
    EventMonitor() = default;
    EventMonitor(const EventMonitor &) = delete;
    EventMonitor &operator=(const EventMonitor &) = delete;
};

/// The pointer, wherever on the desktop it is.
class Pointer
{
public:
    virtual ~Pointer() = default;

    /// Where it is now; absent when the system does not tell, which counts as outside of everything.
    virtual std::optional<Point> location() const = 0;
    virtual bool isAnyButtonPressed() const = 0;

    /// Reports motion and drags over our own windows. Null when refused.
    virtual std::unique_ptr<EventMonitor> monitorLocalMotion(std::function<void()> moved) = 0;
    /// The same over everything else on the desktop. Null when refused.
    virtual std::unique_ptr<EventMonitor> monitorGlobalMotion(std::function<void()> moved) = 0;
    /// Reports the release of the left button over our own windows. Null when refused.
    virtual std::unique_ptr<EventMonitor> monitorLeftRelease(std::function<void()> released) = 0;
};

} // namespace brimlight
