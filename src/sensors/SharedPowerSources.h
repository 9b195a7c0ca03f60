#pragma once

#include "platform/PowerSources.h"
#include "platform/Scheduler.h"

#include <QObject>

namespace brimlight {

/// Power sources that several widgets ask at the same tick: what is asked more than once in a turn of the
/// loop is asked of the machine once, for a battery is a score of files.
class SharedPowerSources : public PowerSources
{
public:
    SharedPowerSources(PowerSources &sources, Scheduler &scheduler);

    std::optional<PowerSourceDescription> first() override;
    std::optional<SmartBattery> smartBattery() override;

private:
    /// Absent where nothing has been asked in this turn.
    template<typename T>
    const T &once(std::optional<T> &kept, T (PowerSources::*ask)());

    PowerSources &m_sources;
    Scheduler &m_scheduler;
    std::optional<std::optional<PowerSourceDescription>> m_first;
    std::optional<std::optional<SmartBattery>> m_smartBattery;
    /// Goes before what it empties.
    QObject m_context;
};

} // namespace brimlight
