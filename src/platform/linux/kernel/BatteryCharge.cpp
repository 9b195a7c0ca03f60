#include "platform/linux/kernel/BatteryCharge.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>

namespace brimlight {
namespace {

/// Microwatts and hours, or microamperes and hours.
enum class Unit { energy, charge };

QList<PowerSupply> batteriesOf(const QList<PowerSupply> &supplies)
{
    QList<PowerSupply> batteries;
    std::copy_if(supplies.begin(), supplies.end(), std::back_inserter(batteries),
                 [](const PowerSupply &supply) { return supply.isBattery(); });
    return batteries;
}

/// What the cells have on average, so that a charge becomes an energy.
std::optional<double> volts(const PowerSupply &battery)
{
    constexpr double microvoltsPerVolt = 1e6;
    for (const char *attribute : {"voltage_min_design", "voltage_now"}) {
        if (const auto microvolts = battery.number(attribute); microvolts && *microvolts > 0)
            return *microvolts / microvoltsPerVolt;
    }
    return std::nullopt;
}

std::optional<double> inUnit(const PowerSupply &battery, Unit unit, const QByteArray &energy,
                             const QByteArray &charge)
{
    if (unit == Unit::charge)
        return battery.number(charge);
    if (const auto value = battery.number(energy))
        return value;
    const auto value = battery.number(charge);
    const auto factor = volts(battery);
    return value && factor ? std::optional(*value * *factor) : std::nullopt;
}

/// `what` is "now", "full" or "full_design".
std::optional<double> amount(const PowerSupply &battery, Unit unit, const QByteArray &what)
{
    return inUnit(battery, unit, "energy_" + what, "charge_" + what);
}

/// Absent unless every battery tells.
std::optional<double> sumOfAmounts(const QList<PowerSupply> &batteries, Unit unit, const QByteArray &what)
{
    double sum = 0;
    for (const PowerSupply &battery : batteries) {
        const auto own = amount(battery, unit, what);
        if (!own)
            return std::nullopt;
        sum += *own;
    }
    return sum;
}

/// The unit in which all batteries can be added up. One alone keeps its own.
Unit commonUnit(const QList<PowerSupply> &batteries, Unit ownUnitOfOne)
{
    if (batteries.size() == 1)
        return ownUnitOfOne;
    const bool allTellEnergy =
        std::all_of(batteries.begin(), batteries.end(), [](const PowerSupply &battery) {
            return battery.number("energy_full") || volts(battery);
        });
    return allTellEnergy ? Unit::energy : Unit::charge;
}

Unit gaugeUnit(const QList<PowerSupply> &batteries)
{
    return commonUnit(batteries, batteries.first().number("energy_now") ? Unit::energy : Unit::charge);
}

Unit capacityUnit(const QList<PowerSupply> &batteries)
{
    return commonUnit(batteries, batteries.first().number("charge_full") ? Unit::charge : Unit::energy);
}

/// The mean of what the drivers say, of those that say it.
std::optional<double> toldPercent(const QList<PowerSupply> &batteries)
{
    double sum = 0;
    int count = 0;
    for (const PowerSupply &battery : batteries) {
        if (const auto own = battery.number("capacity"); own && *own >= 0) {
            sum += *own;
            ++count;
        }
    }
    return count > 0 ? std::optional(sum / count) : std::nullopt;
}

std::optional<int> percent(const QList<PowerSupply> &batteries, std::optional<double> now,
                           std::optional<double> full)
{
    std::optional<double> counted;
    if (now && full && *full > 0)
        counted = *now / *full * 100;
    const auto told = toldPercent(batteries);
    // A driver knows its one battery better than its gauge; of several, the larger one counts for more.
    const auto best = batteries.size() == 1 ? (told ? told : counted) : (counted ? counted : told);
    return best ? std::optional(static_cast<int>(std::clamp(std::round(*best), 0.0, 100.0))) : std::nullopt;
}

/// The kernel's text says "Unknown" while the driver makes up its mind.
bool hasStatus(const PowerSupply &battery)
{
    return !battery.text("status").isEmpty() && battery.text("status") != "Unknown";
}

std::optional<double> rate(const PowerSupply &battery, Unit unit)
{
    return inUnit(battery, unit, "power_now", "current_now");
}

/// Most drivers give the rate without a sign; a negative one always leaves the battery.
bool hasNegativeRate(const PowerSupply &battery)
{
    const auto own = battery.number(battery.number("power_now") ? "power_now" : "current_now");
    return own && *own < 0;
}

std::optional<bool> isPluggedIn(const QList<PowerSupply> &batteries, const QList<PowerSupply> &supplies)
{
    std::optional<bool> online;
    for (const PowerSupply &supply : supplies) {
        const auto value = supply.isExternalPower() ? supply.number("online") : std::nullopt;
        if (value)
            online = online.value_or(false) || *value > 0;
    }
    if (online)
        return online;
    const auto any = [&batteries](auto &&holds) {
        return std::any_of(batteries.begin(), batteries.end(), holds);
    };
    const auto says = [](const char *status) {
        return [status](const PowerSupply &battery) { return battery.text("status") == status; };
    };
    if (any(says("Charging")))
        return true;
    if (any(says("Discharging")))
        return false;
    if (any(&hasStatus))
        return true;
    return any(&hasNegativeRate) ? std::optional(false) : std::nullopt;
}

struct Flow
{
    bool isCharging = false;
    bool isDischarging = false;
    /// What goes in, below 0 what goes out, per hour; 0 when no battery tells.
    double rate = 0;
};

Flow flowOf(const QList<PowerSupply> &batteries, Unit unit, std::optional<bool> pluggedIn)
{
    Flow flow;
    for (const PowerSupply &battery : batteries) {
        const double own = std::abs(rate(battery, unit).value_or(0));
        const bool fills = battery.text("status") == "Charging";
        const bool empties = hasStatus(battery) ? battery.text("status") == "Discharging"
                                                : hasNegativeRate(battery) || pluggedIn == false;
        flow.isCharging = flow.isCharging || fills;
        flow.isDischarging = flow.isDischarging || empties;
        flow.rate += fills ? own : empties ? -own : 0;
    }
    // One fills from the other: what comes of it is what counts.
    if (flow.isCharging && flow.isDischarging) {
        flow.isCharging = flow.rate > 0;
        flow.isDischarging = flow.rate < 0;
    }
    return flow;
}

/// -1 for what cannot be told or would be longer than any battery lasts.
int minutes(double amount, double rate)
{
    constexpr double longest = 10 * 24 * 60;
    if (rate == 0)
        return -1;
    const double minutes = std::round(std::max(amount, 0.0) / std::abs(rate) * 60);
    return minutes <= longest ? static_cast<int>(minutes) : -1;
}

std::optional<int> wholeUnits(const std::optional<double> &value, double unit)
{
    if (!value || *value < 0 || *value / unit > std::numeric_limits<int>::max())
        return std::nullopt;
    return static_cast<int>(std::lround(*value / unit));
}

std::optional<double> largest(const QList<PowerSupply> &batteries, const QByteArray &attribute)
{
    std::optional<double> largest;
    for (const PowerSupply &battery : batteries) {
        if (const auto own = battery.number(attribute))
            largest = std::max(largest.value_or(*own), *own);
    }
    return largest;
}

} // namespace

std::optional<PowerSourceDescription> describePowerSource(const QList<PowerSupply> &supplies)
{
    const QList<PowerSupply> batteries = batteriesOf(supplies);
    if (batteries.isEmpty())
        return std::nullopt;
    const Unit unit = gaugeUnit(batteries);
    const auto now = sumOfAmounts(batteries, unit, "now");
    const auto full = sumOfAmounts(batteries, unit, "full");
    const auto pluggedIn = isPluggedIn(batteries, supplies);
    const Flow flow = flowOf(batteries, unit, pluggedIn);
    PowerSourceDescription source{.currentCapacity = percent(batteries, now, full),
                                  .maxCapacity = 100,
                                  .isCharging = flow.isCharging,
                                  .timeToEmpty = -1,
                                  .timeToFullCharge = -1};
    if (pluggedIn)
        source.powerSourceState = *pluggedIn ? QStringLiteral("AC Power") : QStringLiteral("Battery Power");
    if (flow.isDischarging && now)
        source.timeToEmpty = minutes(*now, flow.rate);
    if (flow.isCharging && now && full)
        source.timeToFullCharge = minutes(*full - *now, flow.rate);
    return source;
}

std::optional<SmartBattery> describeSmartBattery(const QList<PowerSupply> &supplies)
{
    constexpr double hundredthsPerTenth = 10;
    const QList<PowerSupply> batteries = batteriesOf(supplies);
    if (batteries.isEmpty())
        return std::nullopt;
    const Unit unit = capacityUnit(batteries);
    const double perWhole = unit == Unit::charge ? 1000 : 10'000;
    SmartBattery smart{.cycleCount = wholeUnits(largest(batteries, "cycle_count"), 1),
                       .designCapacity = wholeUnits(sumOfAmounts(batteries, unit, "full_design"), perWhole),
                       .rawMaxCapacity = wholeUnits(sumOfAmounts(batteries, unit, "full"), perWhole)};
    if (const auto tenths = largest(batteries, "temp"))
        smart.temperature = *tenths * hundredthsPerTenth;
    return smart;
}

} // namespace brimlight
