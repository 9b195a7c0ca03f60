#pragma once

#include "platform/Scheduler.h"
#include "sensors/Samplers.h"
#include "sensors/SystemReader.h"

#include <QObject>
#include <QtQmlIntegration>

namespace brimlight {

/// The load of the machine now and over the last minutes. It samples while it is active: 60 values are two
/// minutes of active time, and a pause leaves no gap. Every sample notifies all three properties in their
/// order.
class SystemHistoryStore : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the controller")
    Q_PROPERTY(brimlight::SystemSnapshot snapshot READ snapshot NOTIFY snapshotChanged)
    Q_PROPERTY(QList<double> cpuHistory READ cpuHistory NOTIFY cpuHistoryChanged)
    Q_PROPERTY(QList<double> memHistory READ memHistory NOTIFY memHistoryChanged)

public:
    static constexpr std::chrono::milliseconds interval{2000};

    SystemHistoryStore(SystemSampler &counters, Scheduler &scheduler, QObject *parent = nullptr);

    /// Starts by asking for a sample at once, or stops; the history stays. The same value again changes
    /// nothing.
    void setActive(bool active);
    bool isActive() const { return m_timer != nullptr; }

    const SystemSnapshot &snapshot() const { return m_snapshot; }
    /// Oldest first, at most 60 values, from 0 to 1.
    const QList<double> &cpuHistory() const { return m_cpuHistory; }
    const QList<double> &memHistory() const { return m_memHistory; }

Q_SIGNALS:
    void snapshotChanged();
    void cpuHistoryChanged();
    void memHistoryChanged();

private:
    void take(const SystemCounters &counters);

    Scheduler &m_scheduler;
    Asker<SystemCounters> m_counters;
    SystemReader m_reader;
    SystemSnapshot m_snapshot;
    QList<double> m_cpuHistory;
    QList<double> m_memHistory;
    std::unique_ptr<Scheduled> m_timer;
};

} // namespace brimlight
