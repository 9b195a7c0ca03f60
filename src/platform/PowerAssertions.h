#pragma once

#include "platform/Obstacle.h"

#include <QString>

#include <cstdint>
#include <functional>

class QObject;

namespace brimlight {

/// Keeps the machine's display awake. Everything that is held ends with the process.
class PowerAssertions
{
public:
    virtual ~PowerAssertions() = default;

    /// Keeps the display awake until the id is released; `name` tells the user who does. Never waits: the id
    /// is given at once and is 0 only when nothing can be taken. `failed` is called in a later turn of the
    /// loop when it turns out that nothing was taken, unless it has been released or `context` is gone.
    virtual uint32_t create(const QString &name, QObject &context, std::function<void()> failed) = 0;
    /// An id that is not held, such as 0, is passed over.
    virtual void release(uint32_t id) = 0;
    /// Finds out, without taking anything, whether anything here would keep the display awake, and calls back
    /// in a later turn of the loop, unless `context` is gone by then.
    virtual void check(QObject &context, ObstacleReply answered) = 0;
};

} // namespace brimlight
