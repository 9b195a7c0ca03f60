#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

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

} // namespace brimlight
