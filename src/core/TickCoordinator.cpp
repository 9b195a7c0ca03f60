#include "core/TickCoordinator.h"

#include "core/TraceLog.h"

namespace brimlight {

TickCoordinator::TickCoordinator(Scheduler &scheduler, const TraceLog &log, QObject *parent)
    : QObject(parent)
    , m_scheduler(scheduler)
    , m_log(log)
    , m_now(scheduler.now())
{
}

void TickCoordinator::setActive(bool active)
{
    if (active == m_isActive)
        return;
    m_isActive = active;
    if (active)
        start();
    else
        m_timer.reset();
    m_log.trace(QStringLiteral("Ticker active=%1 interval=%2")
                    .arg(active ? QStringLiteral("true") : QStringLiteral("false"))
                    .arg(std::chrono::duration<double>(m_interval).count(), 0, 'f', 1));
}

void TickCoordinator::setInterval(std::chrono::milliseconds interval)
{
    if (interval == m_interval)
        return;
    m_interval = interval;
    if (m_isActive)
        start();
}

void TickCoordinator::start()
{
    tick();
    // A fifth of the period as tolerance lets the system share wake-ups.
    m_timer = m_scheduler.every(m_interval, m_interval / 5, [this] { tick(); });
}

void TickCoordinator::tick()
{
    m_now = m_scheduler.now();
    Q_EMIT nowChanged();
}

} // namespace brimlight
