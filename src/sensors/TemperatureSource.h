#pragma once

#include "sensors/IOHIDBridge.h"
#include "sensors/SMCSensors.h"

namespace brimlight {

/// What one look at all temperature sensors gives.
struct TemperatureSamples
{
    /// Absent without a controller.
    std::optional<SmcInventory> controller;
    SmcSamples ofController;
    struct Services
    {
        /// Absent when they cannot be listed.
        std::optional<int> count;
        std::optional<double> cpuMaxC;
    };
    /// Absent while the controller tells anything.
    std::optional<Services> services;
};

/// The machine's temperature sensors: the controller's, and the thermal services where it tells nothing.
/// Every call waits for drivers.
class TemperatureSource
{
public:
    TemperatureSource(SmcTransport &smc, ThermalServices &thermal, MachineInfo &machine);

    /// Keys of the controller that are denied count for nothing; they are read only if somebody watches them.
    TemperatureSamples read(const QSet<QString> &denied, bool isWatching);

private:
    SMCSensors *controller();
    TemperatureSamples::Services readServices();

    SmcTransport &m_smc;
    ThermalServices &m_thermal;
    MachineInfo &m_machine;
    /// Holds nothing until the source is first wanted, then for good the source or the failure to open it.
    std::optional<std::unique_ptr<SMCSensors>> m_controller;
    std::optional<std::unique_ptr<IOHIDBridge>> m_services;
};

} // namespace brimlight
