#include "sensors/IOHIDBridge.h"

#include "sensors/BatteryTemperatureReader.h"
#include "sensors/TemperatureOutlierFilter.h"

#include <algorithm>
#include <array>

namespace brimlight {
namespace {

/// Both excluded. The second source is trusted less far up than the first.
constexpr double lowestHidCelsius = 0.0;
constexpr double highestHidCelsius = 120.0;

constexpr std::array otherParts{"battery", "nand", "ambient", "case", "skin",
                                "tcal",    "tdev", "charger", "wifi", "display"};
constexpr std::array cpuParts{"cpu", "pacc", "eacc", "tdie"};

const QString hidCategory = QStringLiteral("IOHIDBridge");

template<typename Words>
bool containsAny(const QString &text, const Words &words)
{
    return std::any_of(words.begin(), words.end(),
                       [&text](const char *word) { return text.contains(QLatin1String(word)); });
}

} // namespace

std::unique_ptr<IOHIDBridge> IOHIDBridge::open(ThermalServices &services, PowerSources &power, Log &log,
                                               Scheduler &scheduler)
{
    const auto count = services.match();
    if (!count) {
        log.write(LogLevel::error, hidCategory,
                  QStringLiteral("Thermal services cannot be listed — IOHID bridge disabled"));
        return nullptr;
    }
    log.write(LogLevel::info, hidCategory,
              QStringLiteral("IOHID temperature bridge ready (%1 services)").arg(*count));
    return std::unique_ptr<IOHIDBridge>(new IOHIDBridge(services, power, scheduler, *count));
}

IOHIDBridge::IOHIDBridge(ThermalServices &services, PowerSources &power, Scheduler &scheduler, int count)
    : m_services(services)
    , m_power(power)
    , m_scheduler(scheduler)
    , m_count(count)
{
}

bool IOHIDBridge::isCpuName(const QString &name)
{
    const QString lower = name.toLower();
    return !containsAny(lower, otherParts) && containsAny(lower, cpuParts);
}

TemperatureReading IOHIDBridge::readTemperatureReading()
{
    std::vector<double> values;
    for (int service = 0; service < m_count; ++service) {
        const auto celsius = m_services.celsius(service);
        if (celsius && *celsius > lowestHidCelsius && *celsius < highestHidCelsius &&
            isCpuName(m_services.name(service)))
            values.push_back(*celsius);
    }
    return {.cpuMaxC = TemperatureOutlierFilter::maxRejectingOutliers(std::move(values)),
            .batteryC = BatteryTemperatureReader::readFromSmartBattery(m_power),
            .timestamp = m_scheduler.now()};
}

} // namespace brimlight
