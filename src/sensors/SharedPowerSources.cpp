#include "sensors/SharedPowerSources.h"

namespace brimlight {

SharedPowerSources::SharedPowerSources(PowerSources &sources, Scheduler &scheduler)
    : m_sources(sources)
    , m_scheduler(scheduler)
{
}

std::optional<PowerSourceDescription> SharedPowerSources::first()
{
    return once(m_first, &PowerSources::first);
}

std::optional<SmartBattery> SharedPowerSources::smartBattery()
{
    return once(m_smartBattery, &PowerSources::smartBattery);
}

template<typename T>
const T &SharedPowerSources::once(std::optional<T> &kept, T (PowerSources::*ask)())
{
    if (!kept) {
        kept = (m_sources.*ask)();
        m_scheduler.post(m_context, [&kept] { kept.reset(); });
    }
    return *kept;
}

} // namespace brimlight
