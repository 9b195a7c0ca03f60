#include "sensors/SystemHistoryStore.h"

namespace brimlight {

SystemHistoryStore::SystemHistoryStore(SystemSampler &counters, Scheduler &scheduler, QObject *parent)
    : QObject(parent)
    , m_scheduler(scheduler)
    , m_counters(counters, [this](const SystemCounters &sample) { take(sample); })
{
}

void SystemHistoryStore::setActive(bool active)
{
    if (active == isActive())
        return;
    if (!active) {
        m_timer.reset();
        return;
    }
    m_counters.ask();
    m_timer = m_scheduler.every(interval, std::chrono::milliseconds::zero(), [this] { m_counters.ask(); });
}

void SystemHistoryStore::take(const SystemCounters &counters)
{
    m_snapshot = m_reader.read(counters);
    Q_EMIT snapshotChanged();
    m_cpuHistory = m_reader.cpuHistory();
    Q_EMIT cpuHistoryChanged();
    m_memHistory = m_reader.memHistory();
    Q_EMIT memHistoryChanged();
}

} // namespace brimlight
