#pragma once

#include "platform/Pointer.h"
#include "platform/Scheduler.h"

#include <QObject>

#include <vector>

namespace brimlight {

/// Asks for a hover evaluation whenever the pointer moves and, as a safety net, at every poll: a screen
/// change or a switch of workspace takes the pointer away without an event. Evaluations run in a turn of
/// their own.
class HoverWatch : public QObject
{
public:
    static constexpr std::chrono::milliseconds pollPeriod{350};

    HoverWatch(Pointer &pointer, Scheduler &scheduler, std::function<void()> evaluate);

    void start();
    void stop();
    bool isRunning() const { return m_poll != nullptr; }

private:
    void request();

    Pointer &m_pointer;
    Scheduler &m_scheduler;
    std::function<void()> m_evaluate;
    std::vector<std::unique_ptr<EventMonitor>> m_monitors;
    std::unique_ptr<Scheduled> m_poll;
    bool m_requested = false;
};

} // namespace brimlight
