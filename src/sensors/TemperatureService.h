#pragma once

#include "platform/WorkItem.h"
#include "sensors/CPUTemperatureSmoother.h"
#include "sensors/IOHIDBridge.h"
#include "sensors/SMCBridge.h"

#include <QObject>
#include <QtQmlIntegration>

namespace brimlight {

/// What the service reads through, borrowed.
struct TemperaturePorts
{
    SmcTransport &smc;
    ThermalServices &thermal;
    MachineInfo &machine;
    PowerSources &power;
    UserDefaults &defaults;
    Log &log;
    Scheduler &scheduler;
};

/// The one object that is asked for temperatures. It prefers the controller, falls back on the thermal
/// services and steadies the processor's value. It reads when it is told to, and once by itself soon after
/// the start.
class TemperatureService : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the controller")

public:
    explicit TemperatureService(const TemperaturePorts &ports, QObject *parent = nullptr);

    /// Absent until the first successful reading. A failure leaves the last one, however old; its time tells.
    const std::optional<TemperatureReading> &latest() const { return m_latest; }

    /// Takes one reading. Blocks for as long as the sensors take.
    void refresh();

Q_SIGNALS:
    void latestChanged();

private:
    enum class SensorSource { smc, iohid };

    SMCBridge *smcBridge();
    IOHIDBridge *iohidBridge();
    TemperatureReading smoothCPUTemperature(TemperatureReading reading);

    TemperaturePorts m_ports;
    /// Holds nothing until the bridge is first wanted, then for good a bridge or the failure to build one.
    std::optional<std::unique_ptr<SMCBridge>> m_smcBridge;
    std::optional<std::unique_ptr<IOHIDBridge>> m_iohidBridge;
    CPUTemperatureSmoother m_smoother;
    std::optional<SensorSource> m_lastSource;
    std::optional<TemperatureReading> m_latest;
    WorkItem m_firstRefresh;
};

} // namespace brimlight
