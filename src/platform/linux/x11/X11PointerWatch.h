#pragma once

#include "platform/Scheduler.h"
#include "platform/linux/x11/X11RawEvents.h"

#include <QObject>

#include <optional>

namespace brimlight {

/// Has the pointer's place looked at while no window of ours is told of it: after every motion, whoever has
/// grabbed the pointer, and every now and then, because a pointer that is put elsewhere makes no motion.
class X11PointerWatch : public QObject
{
public:
    static constexpr std::chrono::milliseconds period{100};

    X11PointerWatch(X11Connection &connection, Scheduler &scheduler, std::function<void()> look);

    /// Starting anew looks once, in a turn of its own.
    void setRunning(bool running);
    bool isRunning() const { return m_poll != nullptr; }

private:
    void request();

    X11Connection &m_connection;
    Scheduler &m_scheduler;
    std::function<void()> m_look;
    std::optional<X11RawEvents> m_motion;
    std::unique_ptr<Scheduled> m_poll;
    bool m_requested = false;
};

} // namespace brimlight
