#pragma once

#include "platform/Log.h"
#include "platform/UserDefaults.h"
#include "sensors/HotSpotClassifier.h"
#include "sensors/SMCSensors.h"
#include "sensors/TemperatureReading.h"

namespace brimlight {

/// Makes one reading of what the controller's sensors say. For the first minute it watches all processor
/// sensors; those that run far hotter than the rest are left out from then on, and remembered per chip, model
/// and build in the user defaults. It asks nobody, so it never waits.
class SMCBridge
{
public:
    SMCBridge(const SmcInventory &inventory, UserDefaults &defaults, Log &log);

    /// The keys that do not count.
    const QSet<QString> &denylist() const { return m_denylist; }
    /// Whether those that do not count have to be read all the same.
    bool isWatching() const { return !m_calibrationDone; }

    /// `batteryC` stands in for a battery that the controller does not tell of. Absent when neither the
    /// processor nor the battery gives a value.
    std::optional<TemperatureReading> reading(SmcSamples samples, std::optional<double> batteryC,
                                              const QDateTime &now);

private:
    /// Returns how many keys were denied by the persisted list alone.
    int restoreDenylist();
    QString storageKey() const;
    void logReady(qsizetype preset, int restored);

    void updateCalibration(const SmcSamples &samples, const QDateTime &now);
    void completeCalibration();
    void persistDenylist();
    void logCalibration(const HotSpotClassifier::HotSpots &found);

    SmcInventory m_inventory;
    UserDefaults &m_defaults;
    Log &m_log;

    HotSpotClassifier::Peaks m_calibrationPeaks;
    std::optional<QDateTime> m_calibrationStart;
    QSet<QString> m_denylist;
    bool m_calibrationDone = false;
};

} // namespace brimlight
