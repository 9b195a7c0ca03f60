#include "sensors/TemperatureService.h"

namespace brimlight {
namespace {

using namespace std::chrono_literals;

constexpr size_t smootherWindow = 3;
/// The service is built before the first frame, which discovering the sensors must not hold up.
constexpr auto firstRefreshDelay = 1s;

} // namespace

TemperatureService::TemperatureService(const TemperaturePorts &ports, QObject *parent)
    : QObject(parent)
    , m_ports(ports)
    , m_smoother(smootherWindow)
{
    m_firstRefresh.schedule(m_ports.scheduler, firstRefreshDelay, [this] { refresh(); });
}

SMCBridge *TemperatureService::smcBridge()
{
    if (!m_smcBridge)
        m_smcBridge = SMCBridge::open(m_ports.smc, m_ports.machine, m_ports.power, m_ports.defaults,
                                      m_ports.log, m_ports.scheduler);
    return m_smcBridge->get();
}

IOHIDBridge *TemperatureService::iohidBridge()
{
    if (!m_iohidBridge)
        m_iohidBridge = IOHIDBridge::open(m_ports.thermal, m_ports.power, m_ports.log, m_ports.scheduler);
    return m_iohidBridge->get();
}

void TemperatureService::refresh()
{
    // A view that asks earlier has taken the first reading.
    m_firstRefresh.cancel();

    std::optional<TemperatureReading> reading;
    auto source = SensorSource::smc;
    if (SMCBridge *bridge = smcBridge())
        reading = bridge->readTemperatureReading();
    if (!reading) {
        source = SensorSource::iohid;
        if (IOHIDBridge *bridge = iohidBridge())
            reading = bridge->readTemperatureReading();
    }
    if (!reading)
        return;
    // Values of two sources do not mix.
    if (m_lastSource && *m_lastSource != source)
        m_smoother.clear();
    m_lastSource = source;
    m_latest = smoothCPUTemperature(*reading);
    Q_EMIT latestChanged();
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
