#include "sensors/IOHIDBridge.h"

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

template<typename Words>
bool containsAny(const QString &text, const Words &words)
{
    return std::any_of(words.begin(), words.end(),
                       [&text](const char *word) { return text.contains(QLatin1String(word)); });
}

} // namespace

std::unique_ptr<IOHIDBridge> IOHIDBridge::open(ThermalServices &services)
{
    const auto count = services.match();
    return count ? std::unique_ptr<IOHIDBridge>(new IOHIDBridge(services, *count)) : nullptr;
}

IOHIDBridge::IOHIDBridge(ThermalServices &services, int count)
    : m_services(services)
    , m_count(count)
{
}

bool IOHIDBridge::isCpuName(const QString &name)
{
    const QString lower = name.toLower();
    return !containsAny(lower, otherParts) && containsAny(lower, cpuParts);
}

std::optional<double> IOHIDBridge::readCpuMax()
{
    std::vector<double> values;
    for (int service = 0; service < m_count; ++service) {
        if (!isCpuName(m_services.name(service)))
            continue;
        const auto celsius = m_services.celsius(service);
        if (celsius && *celsius > lowestHidCelsius && *celsius < highestHidCelsius)
            values.push_back(*celsius);
    }
    return TemperatureOutlierFilter::maxRejectingOutliers(std::move(values));
}

} // namespace brimlight
