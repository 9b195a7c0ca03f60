#include "sensors/SMCBridge.h"

#include "sensors/PersistentDenylistStore.h"
#include "sensors/TemperatureOutlierFilter.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace brimlight {
namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds calibrationWindow = 60s;

const QString category = QStringLiteral("SMCBridge");

/// Halves go to the even digit, as in C; Qt rounds them up.
QString oneDecimal(double value)
{
    std::array<char, 512> text{};
    std::snprintf(text.data(), text.size(), "%.1f", value);
    return QString::fromLatin1(text.data());
}

} // namespace

SMCBridge::SMCBridge(const SmcInventory &inventory, UserDefaults &defaults, Log &log)
    : m_inventory(inventory)
    , m_defaults(defaults)
    , m_log(log)
{
    const QSet<QString> preset = HotSpotClassifier::hardcodedHotSpotDenylist(m_inventory.chip);
    for (const QString &key : preset) {
        if (m_inventory.cpuKeys.contains(key))
            m_denylist.insert(key);
    }
    const int restored = restoreDenylist();
    logReady(preset.size(), restored);
}

QString SMCBridge::storageKey() const
{
    return PersistentDenylistStore::storageKey(m_inventory.chip, m_inventory.model, m_inventory.osBuild);
}

int SMCBridge::restoreDenylist()
{
    const auto persisted = m_defaults.read<QStringList>(storageKey());
    if (!persisted)
        return 0;
    // An empty list counts too: this machine has been watched and has no hot spots.
    m_calibrationDone = true;
    const qsizetype before = m_denylist.size();
    for (const QString &key : *persisted) {
        if (m_inventory.cpuKeys.contains(key))
            m_denylist.insert(key);
    }
    return static_cast<int>(m_denylist.size() - before);
}

void SMCBridge::logReady(qsizetype preset, int restored)
{
    if (m_inventory.cpuKeys.isEmpty() && m_inventory.gpuKeys.isEmpty()) {
        m_log.write(LogLevel::notice, category,
                    QStringLiteral("SMC bridge opened but no float temperature keys were discovered"));
        return;
    }
    m_log.write(LogLevel::info, category,
                QStringLiteral("SMC bridge ready (chip=%1, model=%2, build=%3, cpu=%4, gpu=%5, preset=%6, "
                               "restored=%7, calibration=%8)")
                    .arg(m_inventory.chip, m_inventory.model, m_inventory.osBuild,
                         QString::number(m_inventory.cpuKeys.size()),
                         QString::number(m_inventory.gpuKeys.size()), QString::number(preset),
                         QString::number(restored),
                         m_calibrationDone ? QStringLiteral("skipped") : QStringLiteral("pending")));
}

std::optional<TemperatureReading> SMCBridge::reading(SmcSamples samples, std::optional<double> batteryC,
                                                     const QDateTime &now)
{
    const auto isDenied = [this](const SmcSamples::Sample &sample) {
        return m_denylist.contains(sample.key);
    };
    // Whoever read them may not have known yet.
    if (m_calibrationDone)
        std::erase_if(samples.cpu, isDenied);
    else
        updateCalibration(samples, now);
    // On the one read that closes the window, what has just been found counts a last time.
    if (!m_calibrationDone)
        std::erase_if(samples.cpu, isDenied);
    std::vector<double> values;
    for (const SmcSamples::Sample &sample : samples.cpu)
        values.push_back(sample.temp);
    const TemperatureReading reading{.cpuMaxC =
                                         TemperatureOutlierFilter::maxRejectingOutliers(std::move(values)),
                                     .batteryC = samples.batteryC ? samples.batteryC : batteryC,
                                     .timestamp = now};
    return reading.cpuMaxC || reading.batteryC ? std::optional(reading) : std::nullopt;
}

void SMCBridge::updateCalibration(const SmcSamples &samples, const QDateTime &now)
{
    if (!m_calibrationStart)
        m_calibrationStart = now;
    for (const SmcSamples::Sample &sample : samples.cpu) {
        if (m_denylist.contains(sample.key))
            continue;
        double &peak = m_calibrationPeaks[sample.key];
        peak = std::max(peak, sample.temp);
    }
    // By the wall clock: when nobody asked for temperatures meanwhile, the peaks there are have to do.
    if (m_calibrationStart->msecsTo(now) >= calibrationWindow.count())
        completeCalibration();
}

void SMCBridge::completeCalibration()
{
    const auto found = HotSpotClassifier::classifyWithStats(m_calibrationPeaks);
    m_denylist.unite(found.denylist);
    persistDenylist();
    logCalibration(found);
    m_calibrationDone = true;
    m_calibrationPeaks.clear();
}

void SMCBridge::persistDenylist()
{
    QStringList keys = m_denylist.values();
    keys.sort();
    m_defaults.setValue(storageKey(), keys);
}

void SMCBridge::logCalibration(const HotSpotClassifier::HotSpots &found)
{
    const QString total = QString::number(m_denylist.size());
    if (found.denylist.isEmpty()) {
        m_log.write(
            LogLevel::info, category,
            QStringLiteral("CPU sensor calibration complete: %1 sensors, no hot-spots detected (40th-pct "
                           "peak %2 °C); persisted %3 total")
                .arg(QString::number(m_calibrationPeaks.size()), oneDecimal(found.baseline), total));
        return;
    }
    using Sample = SmcSamples::Sample;
    std::vector<Sample> hot;
    for (auto peak = m_calibrationPeaks.begin(); peak != m_calibrationPeaks.end(); ++peak) {
        if (found.denylist.contains(peak.key()))
            hot.push_back({peak.key(), peak.value()});
    }
    std::stable_sort(hot.begin(), hot.end(),
                     [](const Sample &a, const Sample &b) { return a.temp > b.temp; });
    QStringList peaks;
    for (const Sample &sample : hot)
        peaks.append(QStringLiteral("%1=%2°C").arg(sample.key, oneDecimal(sample.temp)));
    m_log.write(
        LogLevel::notice, category,
        QStringLiteral("CPU sensor calibration complete: denylisted %1 hot-spot sensors above %2 °C: %3; "
                       "persisted %4 total")
            .arg(QString::number(hot.size()), oneDecimal(found.cutoff), peaks.join(QStringLiteral(", ")),
                 total));
}

} // namespace brimlight
