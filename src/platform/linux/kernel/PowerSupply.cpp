#include "platform/linux/kernel/PowerSupply.h"

#include "platform/linux/kernel/SmallFile.h"

#include <array>

namespace brimlight {
namespace {

constexpr std::array attributes{
    "type",
    "scope",
    "present",
    "online",
    "status",
    "capacity",
    "energy_now",
    "energy_full",
    "power_now",
    "energy_full_design",
    "charge_now",
    "charge_full",
    "current_now",
    "cycle_count",
    "charge_full_design",
    "temp",
    "voltage_now",
    "voltage_min_design",
};

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

} // namespace brimlight
