#include "sensors/TemperatureService.h"

#include "sensors/BatteryTemperatureReader.h"

namespace brimlight {
namespace {

using namespace std::chrono_literals;

constexpr size_t smootherWindow = 3;
/// The service is built before the first frame, which has the processor to itself.
constexpr auto firstRefreshDelay = 1s;

} // namespace

TemperatureService::TemperatureService(const TemperaturePorts &ports, QObject *parent)
    : QObject(parent)
    , m_ports(ports)
    , m_source(std::make_shared<TemperatureSource>(ports.smc, ports.thermal, ports.machine))
    , m_sampler(ports.scheduler, {})
    , m_sensors(m_sampler, [this](const TemperatureSamples &samples) { take(samples); })
    , m_battery(ports.power, [this](const PowerState &state) { takeBattery(state); })
    , m_smoother(smootherWindow)
{
    m_firstRefresh.schedule(m_ports.scheduler, firstRefreshDelay, [this] { refresh(); });
}

void TemperatureService::refresh()
{
    // A view that asks earlier has taken the first reading.
    m_firstRefresh.cancel();
    m_battery.ask();
    const auto denied = m_smcBridge ? m_smcBridge->denylist() : QSet<QString>();
    const bool isWatching = !m_smcBridge || m_smcBridge->isWatching();
    m_sampler.setQuestion(
        [source = m_source, denied, isWatching] { return source->read(denied, isWatching); });
    m_sensors.ask();
}

void TemperatureService::take(const TemperatureSamples &samples)
{
    auto source = SensorSource::smc;
    std::optional<TemperatureReading> reading = controllerReading(samples);
    if (!reading && samples.services) {
        source = SensorSource::iohid;
        reading = servicesReading(*samples.services);
    }
    if (!reading)
        return;
    // Values of two sources do not mix.
    if (m_lastSource && *m_lastSource != source)
        m_smoother.clear();
    m_lastSource = source;
    m_latest = smoothCPUTemperature(*reading);
    m_latestIsOfSmartBattery = !samples.ofController.batteryC;
    Q_EMIT latestChanged();
}

void TemperatureService::takeBattery(const PowerState &state)
{
    m_smartBatteryC = BatteryTemperatureReader::readFromSmartBattery(state.battery);
    if (!m_latest || !m_latestIsOfSmartBattery || m_latest->batteryC == m_smartBatteryC)
        return;
    m_latest->batteryC = m_smartBatteryC;
    Q_EMIT latestChanged();
}

std::optional<TemperatureReading> TemperatureService::controllerReading(const TemperatureSamples &samples)
{
    if (!samples.controller)
        return std::nullopt;
    if (!m_smcBridge)
        m_smcBridge.emplace(*samples.controller, m_ports.defaults, m_ports.log);
    return m_smcBridge->reading(samples.ofController, m_smartBatteryC, m_ports.scheduler.now());
}

std::optional<TemperatureReading>
TemperatureService::servicesReading(const TemperatureSamples::Services &services)
{
    logServices(services.count);
    if (!services.count)
        return std::nullopt;
    return TemperatureReading{
        .cpuMaxC = services.cpuMaxC, .batteryC = m_smartBatteryC, .timestamp = m_ports.scheduler.now()};
}

void TemperatureService::logServices(std::optional<int> count)
{
    if (std::exchange(m_hasLoggedServices, true))
        return;
    const QString category = QStringLiteral("IOHIDBridge");
    if (count)
        m_ports.log.write(LogLevel::info, category,
                          QStringLiteral("IOHID temperature bridge ready (%1 services)").arg(*count));
    else
        m_ports.log.write(LogLevel::error, category,
                          QStringLiteral("Thermal services cannot be listed — IOHID bridge disabled"));
}

TemperatureReading TemperatureService::smoothCPUTemperature(TemperatureReading reading)
{
    if (reading.cpuMaxC)
        reading.cpuMaxC = m_smoother.push(*reading.cpuMaxC);
    else
        m_smoother.clear();
    return reading;
}

} // namespace brimlight
