#include "platform/linux/kernel/PowerSupply.h"

#include "platform/linux/process/BoundedRead.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace brimlight {
namespace {

constexpr std::array attributes{
    "type",       "scope",       "present",     "online",      "status",
    "capacity",   "energy_now",  "energy_full", "power_now",   "energy_full_design",
    "charge_now", "charge_full", "current_now", "cycle_count", "charge_full_design",
    "temp",
};

/// What is in a battery and how fast that changes, in microwatts and hours or in microamperes and hours.
struct Gauge
{
    std::optional<double> now;
    std::optional<double> full;
    std::optional<double> rate;
};

Gauge gauge(const PowerSupply &battery)
{
    if (const auto energy = battery.number("energy_now"))
        return {energy, battery.number("energy_full"), battery.number("power_now")};
    return {battery.number("charge_now"), battery.number("charge_full"), battery.number("current_now")};
}

std::optional<int> percent(const PowerSupply &battery, const Gauge &gauge)
{
    auto percent = battery.number("capacity");
    const bool isUsable = percent && *percent >= 0;
    if (!isUsable && gauge.now && gauge.full && *gauge.full > 0)
        percent = std::round(*gauge.now / *gauge.full * 100);
    else if (!isUsable)
        return std::nullopt;
    return static_cast<int>(std::clamp(*percent, 0.0, 100.0));
}

/// The kernel's text says "Unknown" while the driver makes up its mind.
bool hasStatus(const PowerSupply &battery)
{
    return !battery.text("status").isEmpty() && battery.text("status") != "Unknown";
}

/// Most drivers give the rate without a sign; a negative one always leaves the battery.
bool isLeaving(const Gauge &gauge)
{
    return gauge.rate && *gauge.rate < 0;
}

std::optional<bool> isPluggedIn(const PowerSupply &battery, const Gauge &gauge,
                                const QList<PowerSupply> &supplies)
{
    std::optional<bool> online;
    for (const PowerSupply &supply : supplies) {
        const auto value = supply.isExternalPower() ? supply.number("online") : std::nullopt;
        if (value)
            online = online.value_or(false) || *value > 0;
    }
    if (online)
        return online;
    if (hasStatus(battery))
        return battery.text("status") != "Discharging";
    return isLeaving(gauge) ? std::optional(false) : std::nullopt;
}

/// -1 for what cannot be told or would be longer than any battery lasts.
int minutes(double amount, const Gauge &gauge)
{
    constexpr double longest = 10 * 24 * 60;
    if (!gauge.rate || *gauge.rate == 0)
        return -1;
    const double minutes = std::round(std::max(amount, 0.0) / std::abs(*gauge.rate) * 60);
    return minutes <= longest ? static_cast<int>(minutes) : -1;
}

std::optional<int> wholeUnits(const std::optional<double> &value, double unit)
{
    if (!value || *value < 0 || *value / unit > std::numeric_limits<int>::max())
        return std::nullopt;
    return static_cast<int>(std::lround(*value / unit));
}

} // namespace

PowerSupply::PowerSupply(const QString &folder)
{
    constexpr qsizetype longest = 4096;
    for (const char *attribute : attributes) {
        if (const auto content = smallFile(folder + u'/' + QLatin1String(attribute), longest))
            m_attributes.insert(attribute, content->trimmed());
    }
}

bool PowerSupply::isBattery() const
{
    return text("type") == "Battery" && !belongsToDevice() && text("present") != "0";
}

bool PowerSupply::isExternalPower() const
{
    const QByteArray type = text("type");
    // USB has a type for each of its ways to charge.
    return (type == "Mains" || type == "Wireless" || type.startsWith("USB")) && !belongsToDevice();
}

std::optional<double> PowerSupply::number(const QByteArray &attribute) const
{
    bool ok = false;
    const qlonglong value = text(attribute).toLongLong(&ok);
    return ok ? std::optional(static_cast<double>(value)) : std::nullopt;
}

PowerSourceDescription describePowerSource(const PowerSupply &battery, const QList<PowerSupply> &supplies)
{
    const Gauge state = gauge(battery);
    const auto pluggedIn = isPluggedIn(battery, state, supplies);
    const bool isCharging = battery.text("status") == "Charging";
    const bool isDischarging =
        hasStatus(battery) ? battery.text("status") == "Discharging" : isLeaving(state) || pluggedIn == false;
    PowerSourceDescription source{.currentCapacity = percent(battery, state),
                                  .maxCapacity = 100,
                                  .isCharging = isCharging,
                                  .timeToEmpty = -1,
                                  .timeToFullCharge = -1};
    if (pluggedIn)
        source.powerSourceState = *pluggedIn ? QStringLiteral("AC Power") : QStringLiteral("Battery Power");
    if (isDischarging && state.now)
        source.timeToEmpty = minutes(*state.now, state);
    if (isCharging && state.now && state.full)
        source.timeToFullCharge = minutes(*state.full - *state.now, state);
    return source;
}

SmartBattery describeSmartBattery(const PowerSupply &battery)
{
    SmartBattery smart{.cycleCount = wholeUnits(battery.number("cycle_count"), 1)};
    if (const auto tenths = battery.number("temp"))
        smart.temperature = *tenths * 10;
    const bool countsCharge = battery.number("charge_full").has_value();
    const double unit = countsCharge ? 1000 : 10'000;
    smart.rawMaxCapacity = wholeUnits(battery.number(countsCharge ? "charge_full" : "energy_full"), unit);
    smart.designCapacity =
        wholeUnits(battery.number(countsCharge ? "charge_full_design" : "energy_full_design"), unit);
    return smart;
}

} // namespace brimlight
