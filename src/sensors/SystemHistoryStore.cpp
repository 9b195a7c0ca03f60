#include "sensors/SystemHistoryStore.h"

namespace brimlight {

SystemHistoryStore::SystemHistoryStore(HostStatistics &statistics, Scheduler &scheduler, QObject *parent)
    : QObject(parent)
    , m_scheduler(scheduler)
    , m_reader(statistics)
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
    sample();
    m_timer = m_scheduler.every(interval, std::chrono::milliseconds::zero(), [this] { sample(); });
}

void SystemHistoryStore::sample()
{
    m_snapshot = m_reader.read();
    Q_EMIT snapshotChanged();
    m_cpuHistory = m_reader.cpuHistory();
    Q_EMIT cpuHistoryChanged();
    m_memHistory = m_reader.memHistory();
    Q_EMIT memHistoryChanged();
}

} // namespace brimlight
