#include "platform/linux/kernel/ThermalZone.h"

#include "platform/linux/kernel/SmallFile.h"

#include <algorithm>
#include <array>

namespace brimlight {
namespace {

constexpr qsizetype longestAttribute = 4096;

QByteArray text(const QString &file)
{
    return smallFile(file, longestAttribute).value_or(QByteArray()).trimmed();
}

std::optional<int> number(const QString &file)
{
    bool ok = false;
    const int value = text(file).toInt(&ok);
    return ok ? std::optional(value) : std::nullopt;
}

/// Others, as "active" for fans, are part of the ordinary course.
ThermalState stateOfTrip(const QByteArray &type)
{
    if (type == "critical")
        return ThermalState::critical;
    if (type == "hot")
        return ThermalState::serious;
    return type == "passive" ? ThermalState::fair : ThermalState::nominal;
}

bool slowsProcessor(const QByteArray &type)
{
    constexpr std::array prefixes{"Processor", "cpufreq-",      "thermal-cpufreq-",
                                  "idle-",     "thermal-idle-", "intel_powerclamp"};
    return std::any_of(prefixes.begin(), prefixes.end(),
                       [&](const char *prefix) { return type.startsWith(prefix); });
}

} // namespace

ThermalState thermalZoneState(const QString &folder)
{
    const auto temperature = number(folder + QStringLiteral("/temp"));
    if (!temperature)
        return ThermalState::nominal;
    ThermalState worst = ThermalState::nominal;
    for (int trip = 0;; ++trip) {
        const QString prefix = folder + QStringLiteral("/trip_point_%1_").arg(trip);
        const QByteArray type = text(prefix + QStringLiteral("type"));
        if (type.isEmpty())
            return worst;
        const auto limit = number(prefix + QStringLiteral("temp"));
        // Drivers show 0 and less for a trip point that nobody has set.
        if (limit && *limit > 0 && *temperature >= *limit)
            worst = std::max(worst, stateOfTrip(type));
    }
}

ThermalState coolingDeviceState(const QString &folder)
{
    if (!slowsProcessor(text(folder + QStringLiteral("/type"))))
        return ThermalState::nominal;
    const int current = number(folder + QStringLiteral("/cur_state")).value_or(0);
    if (current <= 0)
        return ThermalState::nominal;
    const auto most = number(folder + QStringLiteral("/max_state"));
    return most && current >= *most ? ThermalState::serious : ThermalState::fair;
}

} // namespace brimlight
