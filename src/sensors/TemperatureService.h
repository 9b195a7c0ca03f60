#pragma once

#include "platform/WorkItem.h"
#include "sensors/CPUTemperatureSmoother.h"
#include "sensors/SMCBridge.h"
#include "sensors/Samplers.h"
#include "sensors/TemperatureSource.h"

#include <QObject>
#include <QtQmlIntegration>

namespace brimlight {

/// What the service reads through, borrowed.
struct TemperaturePorts
{
    SmcTransport &smc;
    ThermalServices &thermal;
    MachineInfo &machine;
    PowerSampler &power;
    UserDefaults &defaults;
    Log &log;
    Scheduler &scheduler;
};

/// The one object that is asked for temperatures. It prefers the controller, falls back on the thermal
/// services and steadies the processor's value. It reads when it is told to, and once by itself soon after
/// the start; sensors and battery are asked apart, so that neither waits for the other.
class TemperatureService : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the controller")

public:
    explicit TemperatureService(const TemperaturePorts &ports, QObject *parent = nullptr);

    /// Absent until the first successful reading. A failure leaves the last one, however old; its time tells.
    const std::optional<TemperatureReading> &latest() const { return m_latest; }

    /// Asks for one reading; `latestChanged` tells when it is there. Nothing while one is under way.
    void refresh();
    bool isAsking() const { return m_sampler.isAsking(); }

Q_SIGNALS:
    void latestChanged();

private:
    enum class SensorSource { smc, iohid };

    void take(const TemperatureSamples &samples);
    void takeBattery(const PowerState &state);
    std::optional<TemperatureReading> controllerReading(const TemperatureSamples &samples);
    std::optional<TemperatureReading> servicesReading(const TemperatureSamples::Services &services);
    void logServices(std::optional<int> count);
    TemperatureReading smoothCPUTemperature(TemperatureReading reading);

    TemperaturePorts m_ports;
    /// Shared with the thread that reads, which may hang in it for longer than this object lives.
    std::shared_ptr<TemperatureSource> m_source;
    Sampler<TemperatureSamples> m_sampler;
    Asker<TemperatureSamples> m_sensors;
    Asker<PowerState> m_battery;
    /// What the battery tells of itself.
    std::optional<double> m_smartBatteryC;
    /// Absent until there has been a controller.
    std::optional<SMCBridge> m_smcBridge;
    bool m_hasLoggedServices = false;
    CPUTemperatureSmoother m_smoother;
    std::optional<SensorSource> m_lastSource;
    std::optional<TemperatureReading> m_latest;
    /// The controller's own word comes first.
    bool m_latestIsOfSmartBattery = false;
    WorkItem m_firstRefresh;
};

} // namespace brimlight
