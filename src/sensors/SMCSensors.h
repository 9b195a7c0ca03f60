#pragma once

#include "platform/MachineInfo.h"
#include "sensors/SMCConnection.h"

#include <QSet>
#include <QStringList>

#include <vector>

namespace brimlight {

/// The controller's temperature keys, and whose controller it is.
struct SmcInventory
{
    /// "unknown" when the system does not tell, as are the next two.
    QString chip;
    QString model;
    QString osBuild;
    /// In the controller's order.
    QStringList cpuKeys;
    /// Stays empty: what the graphics processor reads says nothing about the processor.
    QStringList gpuKeys;
};

/// What one look at the controller gives; degrees Celsius. What cannot be read or cannot be is missing.
struct SmcSamples
{
    struct Sample
    {
        QString key;
        double temp = 0;
    };
    /// In the order of the inventory.
    std::vector<Sample> cpu;
    std::optional<double> batteryC;
};

/// Finds the controller's temperature keys once, and reads them. Every call takes as long as the controller
/// does.
class SMCSensors
{
public:
    /// Nothing when the controller is not there. Discovers the keys, which can be thousands of transactions.
    /// Without any, the battery may still be read.
    static std::unique_ptr<SMCSensors> open(SmcTransport &transport, MachineInfo &machine);

    /// Whether a key of this name is a processor's sensor.
    static bool isCpuKey(const QString &key);

    const SmcInventory &inventory() const { return m_inventory; }

    SmcSamples read(const QSet<QString> &skippedKeys);
    std::optional<double> readBatteryTemperature();

private:
    SMCSensors(std::unique_ptr<SMCConnection> connection, MachineInfo &machine);

    void discoverKeys();
    bool isFloatSensor(const QString &key);

    std::unique_ptr<SMCConnection> m_connection;
    SmcInventory m_inventory;
};

} // namespace brimlight
