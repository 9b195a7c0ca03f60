#pragma once

#include "platform/Log.h"
#include "platform/MachineInfo.h"
#include "platform/PowerSources.h"
#include "platform/Scheduler.h"
#include "platform/UserDefaults.h"
#include "sensors/HotSpotClassifier.h"
#include "sensors/SMCConnection.h"
#include "sensors/TemperatureReading.h"

#include <QSet>
#include <QStringList>

#include <vector>

namespace brimlight {

/// Finds the controller's temperature keys once, and turns one read of them into one reading. For the first
/// minute it watches all processor sensors; those that run far hotter than the rest are left out from then
/// on, and remembered per chip, model and build in the user defaults.
class SMCBridge
{
public:
    /// Nothing when the controller is not there. Discovers the keys, which can be thousands of transactions.
    /// Without any, the bridge may still read the battery.
    static std::unique_ptr<SMCBridge> open(SmcTransport &transport, MachineInfo &machine, PowerSources &power,
                                           UserDefaults &defaults, Log &log, Scheduler &scheduler);

    /// Whether a key of this name is a processor's sensor.
    static bool isCpuKey(const QString &key);

    std::optional<double> readBatteryTemperature();
    /// Absent when neither the processor nor the battery gives a value.
    std::optional<TemperatureReading> readTemperatureReading();

private:
    struct Sample
    {
        QString key;
        double temp = 0;
    };
    struct SensorKeys
    {
        /// In the controller's order.
        QStringList cpu;
        /// Stays empty: what the graphics processor reads says nothing about the processor.
        QStringList gpu;
    };

    SMCBridge(std::unique_ptr<SMCConnection> connection, MachineInfo &machine, PowerSources &power,
              UserDefaults &defaults, Log &log, Scheduler &scheduler);

    SensorKeys discoverSensorKeys();
    bool isFloatSensor(const QString &key);
    /// Returns how many keys were denied by the persisted list alone.
    int restoreDenylist();
    QString storageKey() const;
    void logReady(qsizetype preset, int restored);

    std::vector<Sample> readSamples();
    void updateCalibration(const std::vector<Sample> &samples);
    void completeCalibration();
    void persistDenylist();
    void logCalibration(const HotSpotClassifier::HotSpots &found);

    std::unique_ptr<SMCConnection> m_connection;
    PowerSources &m_power;
    UserDefaults &m_defaults;
    Log &m_log;
    Scheduler &m_scheduler;

    QString m_chip;
    QString m_model;
    QString m_osBuild;
    SensorKeys m_keys;

    HotSpotClassifier::Peaks m_calibrationPeaks;
    std::optional<QDateTime> m_calibrationStart;
    QSet<QString> m_denylist;
    bool m_calibrationDone = false;
};

} // namespace brimlight
