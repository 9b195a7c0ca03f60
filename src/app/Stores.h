#pragma once

#include "core/AppPaths.h"
#include "core/AppSettings.h"
#include "core/LoginItemService.h"
#include "core/TickCoordinator.h"
#include "core/TraceLog.h"
#include "grid/GridStore.h"
#include "grid/WidgetEnvironment.h"
#include "grid/WidgetRegistry.h"
#include "notch/HUDController.h"
#include "notch/NotchViewModel.h"
#include "notch/SystemBrightnessMonitor.h"
#include "notch/SystemStatusMonitor.h"
#include "notch/SystemVolumeMonitor.h"
#include "platform/Platform.h"
#include "sensors/HistorySampling.h"
#include "sensors/Samplers.h"
#include "sensors/SystemHistoryStore.h"
#include "sensors/TemperatureService.h"
#include "theme/Motion.h"
#include "theme/ThemeStore.h"
#include "update/UpdateService.h"

namespace brimlight {

/// Every store of the program, built from the ports in one place and in one order: a later one takes the
/// state of earlier ones. They live from the launch to the exit and are handed on by reference.
class Stores
{
public:
    Stores(const Platform &platform, const TraceLog &log);

    const Platform platform;
    const TraceLog &log;
    /// First, since the layout is repaired by what its kinds allow.
    const WidgetRegistry registry;
    Motion motion;
    NotchViewModel viewModel;
    ThemeStore theme;
    GridStore grid;
    TickCoordinator ticker;
    SystemSampler systemSampler;
    NetworkSampler networkSampler;
    DiskSampler diskSampler;
    PowerSampler powerSampler;
    ThermalStateSampler thermalStateSampler;
    MachineSampler machineSampler;
    SystemHistoryStore systemHistory;
    TemperatureService temperature;
    LoginItemService loginItem;
    AppSettings appSettings;
    UpdateService updater;
    SystemVolumeMonitor volumeMonitor;
    SystemBrightnessMonitor brightnessMonitor;
    SystemStatusMonitor statusMonitor;

    HUDController hud;
    HistorySampling historySampling;
    const WidgetEnvironment widgets;

private:
    void subscribe();
};

} // namespace brimlight
