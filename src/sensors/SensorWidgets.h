#pragma once

#include "grid/WidgetDefinition.h"
#include "sensors/BatteryFace.h"
#include "sensors/BatteryHealthFace.h"
#include "sensors/DiskFace.h"
#include "sensors/NetworkFace.h"
#include "sensors/QuickTogglesStore.h"
#include "sensors/SystemFace.h"
#include "sensors/SystemInfoFace.h"
#include "sensors/TemperatureFace.h"
#include "sensors/UsageGraphFace.h"

#include <vector>

namespace brimlight {

/// The kinds of widget for what the machine measures and switches. A template, since the program's stores are
/// gathered above this folder; of them it takes what its rows name.
template<typename Stores>
std::vector<WidgetDefinition> sensorWidgets([[maybe_unused]] Stores &stores)
{
    return {
        // The charge of the battery.
        {.metadata = {.kind = QStringLiteral("battery"),
                      .displayName = QStringLiteral("Battery"),
                      .symbol = QStringLiteral("battery.100"),
                      .allowedSizes = {WidgetSize::small, WidgetSize::wide, WidgetSize::large},
                      .defaultSize = WidgetSize::small,
                      .refresh = RefreshCadence::seconds(30),
                      .hasSettings = true},
         .view = widgetView("Sensors", "BatteryView"),
         .settingsView = widgetView("Sensors", "BatterySettings"),
         .makeLogic = makes<BatteryFace>(stores.powerSampler)},
        // The wear of the battery.
        {.metadata = {.kind = QStringLiteral("batteryhealth"),
                      .displayName = QStringLiteral("Battery Health"),
                      .symbol = QStringLiteral("cross.case.fill"),
                      .allowedSizes = {WidgetSize::small, WidgetSize::wide, WidgetSize::large},
                      .defaultSize = WidgetSize::small,
                      .refresh = RefreshCadence::never()},
         .view = widgetView("Sensors", "BatteryHealthView"),
         .makeLogic = makes<BatteryHealthFace>(stores.powerSampler)},
        // The load of processor and memory.
        {.metadata = {.kind = QStringLiteral("system"),
                      .displayName = QStringLiteral("CPU / RAM"),
                      .symbol = QStringLiteral("cpu"),
                      .allowedSizes = {WidgetSize::small, WidgetSize::wide, WidgetSize::large},
                      .defaultSize = WidgetSize::wide,
                      .refresh = RefreshCadence::seconds(2)},
         .view = widgetView("Sensors", "SystemView"),
         .makeLogic = makes<SystemFace>(stores.systemSampler)},
        // The load of processor and memory over time.
        {.metadata = {.kind = QStringLiteral("usagegraph"),
                      .displayName = QStringLiteral("CPU / RAM Graph"),
                      .symbol = QStringLiteral("chart.xyaxis.line"),
                      .allowedSizes = {WidgetSize::wide, WidgetSize::large, WidgetSize::banner,
                                       WidgetSize::wideTall, WidgetSize::huge},
                      .defaultSize = WidgetSize::large,
                      .refresh = RefreshCadence::seconds(2)},
         .view = widgetView("Sensors", "UsageGraphView"),
         .makeLogic = makes<UsageGraphFace>(stores.systemHistory)},
        // What machine this is and how it fares.
        {.metadata = {.kind = QStringLiteral("sysinfo"),
                      .displayName = QStringLiteral("System Info"),
                      .symbol = QStringLiteral("macbook"),
                      .allowedSizes = {WidgetSize::wide, WidgetSize::large, WidgetSize::tall,
                                       WidgetSize::huge},
                      .defaultSize = WidgetSize::large,
                      .refresh = RefreshCadence::seconds(5)},
         .view = widgetView("Sensors", "SystemInfoView"),
         .makeLogic = makes<SystemInfoFace>(stores.machineSampler)},
        // The temperature of the processor.
        {.metadata = {.kind = QStringLiteral("temperature"),
                      .displayName = QStringLiteral("Temperature"),
                      .symbol = QStringLiteral("thermometer.medium"),
                      .allowedSizes = {WidgetSize::small, WidgetSize::wide},
                      .defaultSize = WidgetSize::small,
                      .refresh = RefreshCadence::seconds(2)},
         .view = widgetView("Sensors", "TemperatureView"),
         .makeLogic = makes<TemperatureFace>(stores.temperature, stores.thermalStateSampler)},
        // The traffic of the network.
        {.metadata = {.kind = QStringLiteral("network"),
                      .displayName = QStringLiteral("Network"),
                      .symbol = QStringLiteral("network"),
                      .allowedSizes = {WidgetSize::small, WidgetSize::wide, WidgetSize::large,
                                       WidgetSize::banner},
                      .defaultSize = WidgetSize::wide,
                      .refresh = RefreshCadence::seconds(1)},
         .view = widgetView("Sensors", "NetworkView"),
         .makeLogic = makes<NetworkFace>(stores.networkSampler)},
        // The space on the disk.
        {.metadata = {.kind = QStringLiteral("disk"),
                      .displayName = QStringLiteral("Disk"),
                      .symbol = QStringLiteral("internaldrive"),
                      .allowedSizes = {WidgetSize::small, WidgetSize::wide, WidgetSize::large},
                      .defaultSize = WidgetSize::small,
                      .refresh = RefreshCadence::seconds(10)},
         .view = widgetView("Sensors", "DiskView"),
         .makeLogic = makes<DiskFace>(stores.diskSampler)},
        // The spectrum of the microphone.
        {.metadata = {.kind = QStringLiteral("audio"),
                      .displayName = QStringLiteral("Audio Visualizer"),
                      .symbol = QStringLiteral("waveform"),
                      .allowedSizes = {WidgetSize::wide, WidgetSize::large},
                      .defaultSize = WidgetSize::wide,
                      .refresh = RefreshCadence::never(),
                      .permissions = {WidgetPermission::microphone}}},
        // Switches of the system.
        {.metadata = {.kind = QStringLiteral("quicktoggles"),
                      .displayName = QStringLiteral("System Toggles"),
                      .symbol = QStringLiteral("switch.2"),
                      .allowedSizes = {WidgetSize::small, WidgetSize::wide, WidgetSize::large},
                      .defaultSize = WidgetSize::wide,
                      .refresh = RefreshCadence::never()},
         .view = widgetView("Sensors", "QuickTogglesView"),
         .makeLogic = makes<QuickTogglesStore>(stores.platform.scripts, stores.platform.powerAssertions,
                                               stores.platform.sounds, stores.platform.appearance)},
        // The loudness at the microphone.
        {.metadata = {.kind = QStringLiteral("sound_meter"),
                      .displayName = QStringLiteral("Sound Meter"),
                      .symbol = QStringLiteral("waveform"),
                      .allowedSizes = {WidgetSize::small, WidgetSize::wide, WidgetSize::large},
                      .defaultSize = WidgetSize::wide,
                      .refresh = RefreshCadence::never(),
                      .permissions = {WidgetPermission::microphone}}},
    };
}

} // namespace brimlight
