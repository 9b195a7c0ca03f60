#pragma once

#include "platform/PowerSources.h"

#include <QByteArray>
#include <QHash>
#include <QList>

#include <optional>

namespace brimlight {

/// What the kernel shows of one battery or charger: the attributes that could be read, by file name.
class PowerSupply
{
public:
    PowerSupply() = default;
    /// Reads a folder of /sys/class/power_supply; waits for the driver behind it.
    explicit PowerSupply(const QString &folder);

    /// One of the machine's own, in its place.
    bool isBattery() const;
    /// A charger or a socket. Others, as a mouse's battery, have nothing to do with the machine.
    bool isExternalPower() const;

    /// Empty when missing.
    QByteArray text(const QByteArray &attribute) const { return m_attributes.value(attribute); }
    /// Absent when missing or no whole number.
    std::optional<double> number(const QByteArray &attribute) const;

private:
    bool belongsToDevice() const { return text("scope") == "Device"; }

    QHash<QByteArray, QByteArray> m_attributes;
};

/// `supplies` are all that there are.
PowerSourceDescription describePowerSource(const PowerSupply &battery, const QList<PowerSupply> &supplies);

/// The capacities are mAh, or mWh / 10 from a driver that counts energy.
SmartBattery describeSmartBattery(const PowerSupply &battery);

} // namespace brimlight
