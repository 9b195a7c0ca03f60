#pragma once

#include "platform/Scheduler.h"

#include <QDateTime>
#include <QObject>
#include <QtQmlIntegration>

namespace brimlight {

class TraceLog;

/// The one shared clock of the views: `now` advances at the chosen rate while the panel is open and stands
/// still while it is closed.
class TickCoordinator : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the controller")
    Q_PROPERTY(QDateTime now READ now NOTIFY nowChanged)

public:
    TickCoordinator(Scheduler &scheduler, const TraceLog &log, QObject *parent = nullptr);

    QDateTime now() const { return m_now; }
    bool isActive() const { return m_isActive; }
    std::chrono::milliseconds interval() const { return m_interval; }

    void setActive(bool active);
    /// Takes effect at once while active, otherwise at the next start.
    void setInterval(std::chrono::milliseconds interval);

Q_SIGNALS:
    void nowChanged();

private:
    void start();
    void tick();

    Scheduler &m_scheduler;
    const TraceLog &m_log;
    QDateTime m_now;
    bool m_isActive = false;
    std::unique_ptr<Scheduled> m_timer;
    std::chrono::milliseconds m_interval{1000};
};

} // namespace brimlight
