#pragma once

#include "platform/Platform.h"
#include "sensors/MachinePorts.h"
#include "sensors/SharedPowerSources.h"
#include "sensors/SwitchPorts.h"
#include "sensors/SystemHistoryStore.h"
#include "sensors/TemperatureService.h"

#include <QHash>

namespace brimlight {

/// What the widgets of the machine share, by the names under which their views ask for it.
struct SensorStores
{
    explicit SensorStores(const Platform &platform)
        : power(platform.power, platform.scheduler)
        , history(platform.statistics, platform.scheduler)
        , temperature({platform.smc, platform.thermal, platform.machine, power, platform.defaults,
                       platform.log, platform.scheduler})
        , machine(platform.statistics, power, platform.machine)
        , switches(platform.scripts, platform.powerAssertions, platform.sounds, platform.appearance)
    {
    }

    QHash<QString, QObject *> named()
    {
        return {{QStringLiteral("machine"), &machine},
                {QStringLiteral("switches"), &switches},
                {QStringLiteral("systemHistory"), &history},
                {QStringLiteral("temperature"), &temperature}};
    }

    SharedPowerSources power;
    SystemHistoryStore history;
    TemperatureService temperature;
    MachinePorts machine;
    SwitchPorts switches;
};

} // namespace brimlight
