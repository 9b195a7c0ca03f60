#include "sensors/TemperatureSource.h"

#include <algorithm>

namespace brimlight {

TemperatureSource::TemperatureSource(SmcTransport &smc, ThermalServices &thermal, MachineInfo &machine)
    : m_smc(smc)
    , m_thermal(thermal)
    , m_machine(machine)
{
}

TemperatureSamples TemperatureSource::read(const QSet<QString> &denied, bool isWatching)
{
    TemperatureSamples samples;
    if (SMCSensors *sensors = controller()) {
        samples.controller = sensors->inventory();
        samples.ofController = sensors->read(isWatching ? QSet<QString>() : denied);
    }
    const auto &cpu = samples.ofController.cpu;
    const bool tellsNothing = std::all_of(
        cpu.begin(), cpu.end(), [&denied](const auto &sample) { return denied.contains(sample.key); });
    if (tellsNothing && !samples.ofController.batteryC)
        samples.services = readServices();
    return samples;
}

SMCSensors *TemperatureSource::controller()
{
    if (!m_controller)
        m_controller = SMCSensors::open(m_smc, m_machine);
    return m_controller->get();
}

TemperatureSamples::Services TemperatureSource::readServices()
{
    if (!m_services)
        m_services = IOHIDBridge::open(m_thermal);
    IOHIDBridge *bridge = m_services->get();
    return bridge ? TemperatureSamples::Services{.count = bridge->count(), .cpuMaxC = bridge->readCpuMax()}
                  : TemperatureSamples::Services{};
}

} // namespace brimlight
