#include "sensors/SMCBridge.h"

#include "sensors/BatteryTemperatureReader.h"
#include "sensors/PersistentDenylistStore.h"
#include "sensors/TemperatureOutlierFilter.h"
#include "sensors/TemperatureValueDecoder.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace brimlight {
namespace {

using namespace std::chrono_literals;

/// A sensor outside of these, both excluded, is broken or absent; degrees Celsius.
constexpr double lowestCelsius = 0.0;
constexpr double highestCelsius = 150.0;
constexpr std::chrono::milliseconds calibrationWindow = 60s;

const QString category = QStringLiteral("SMCBridge");

std::optional<double> plausibleCelsius(const std::optional<SMCConnection::Value> &value)
{
    if (!value)
        return std::nullopt;
    const auto celsius =
        TemperatureValueDecoder::decodeSMCFloat(value->data, value->info.dataSize, value->info.dataType);
    const bool isPlausible = celsius && *celsius > lowestCelsius && *celsius < highestCelsius;
    return isPlausible ? celsius : std::nullopt;
}

/// Halves go to the even digit, as in C; Qt rounds them up.
QString oneDecimal(double value)
{
    std::array<char, 512> text{};
    std::snprintf(text.data(), text.size(), "%.1f", value);
    return QString::fromLatin1(text.data());
}

} // namespace

std::unique_ptr<SMCBridge> SMCBridge::open(SmcTransport &transport, MachineInfo &machine, PowerSources &power,
                                           UserDefaults &defaults, Log &log, Scheduler &scheduler)
{
    auto connection = SMCConnection::open(transport);
    if (!connection)
        return nullptr;
    return std::unique_ptr<SMCBridge>(
        new SMCBridge(std::move(connection), machine, power, defaults, log, scheduler));
}

SMCBridge::SMCBridge(std::unique_ptr<SMCConnection> connection, MachineInfo &machine, PowerSources &power,
                     UserDefaults &defaults, Log &log, Scheduler &scheduler)
    : m_connection(std::move(connection))
    , m_power(power)
    , m_defaults(defaults)
    , m_log(log)
    , m_scheduler(scheduler)
    , m_chip(machine.chip().value_or(QStringLiteral("unknown")))
    , m_model(machine.model().value_or(QStringLiteral("unknown")))
    , m_osBuild(PersistentDenylistStore::currentOSBuild(machine))
    , m_keys(discoverSensorKeys())
{
    const QSet<QString> preset = HotSpotClassifier::hardcodedHotSpotDenylist(m_chip);
    for (const QString &key : preset) {
        if (m_keys.cpu.contains(key))
            m_denylist.insert(key);
    }
    const int restored = restoreDenylist();
    logReady(preset.size(), restored);
}

bool SMCBridge::isCpuKey(const QString &key)
{
    if (key.startsWith(QLatin1String("TC")))
        return true;
    constexpr qsizetype keyLength = 4;
    return key.size() == keyLength &&
           (key.startsWith(QLatin1String("Tp")) || key.startsWith(QLatin1String("Te")) ||
            key.startsWith(QLatin1String("Tf")));
}

SMCBridge::SensorKeys SMCBridge::discoverSensorKeys()
{
    SensorKeys found;
    const uint32_t count = m_connection->keyCount().value_or(0);
    for (uint32_t index = 0; index < count; ++index) {
        const auto key = m_connection->keyAt(index);
        if (key && isFloatSensor(*key) && isCpuKey(*key))
            found.cpu.append(*key);
    }
    return found;
}

bool SMCBridge::isFloatSensor(const QString &key)
{
    constexpr uint32_t singleSize = 4;
    const auto info = m_connection->readKeyInfo(SMCConnection::keyCode(key));
    if (!info || info->dataSize != singleSize || info->dataType != TemperatureValueDecoder::smcFloatType)
        return false;
    // A key that has an info but no value is no sensor.
    return m_connection->readValue(key).has_value();
}

QString SMCBridge::storageKey() const
{
    return PersistentDenylistStore::storageKey(m_chip, m_model, m_osBuild);
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
        if (m_keys.cpu.contains(key))
            m_denylist.insert(key);
    }
    return static_cast<int>(m_denylist.size() - before);
}

void SMCBridge::logReady(qsizetype preset, int restored)
{
    if (m_keys.cpu.isEmpty() && m_keys.gpu.isEmpty()) {
        m_log.write(LogLevel::notice, category,
                    QStringLiteral("SMC bridge opened but no float temperature keys were discovered"));
        return;
    }
    m_log.write(LogLevel::info, category,
                QStringLiteral("SMC bridge ready (chip=%1, model=%2, build=%3, cpu=%4, gpu=%5, preset=%6, "
                               "restored=%7, calibration=%8)")
                    .arg(m_chip, m_model, m_osBuild, QString::number(m_keys.cpu.size()),
                         QString::number(m_keys.gpu.size()), QString::number(preset),
                         QString::number(restored),
                         m_calibrationDone ? QStringLiteral("skipped") : QStringLiteral("pending")));
}

std::optional<double> SMCBridge::readBatteryTemperature()
{
    const auto celsius = plausibleCelsius(m_connection->readValue(QStringLiteral("B0AT")));
    const bool isBattery = celsius && *celsius > BatteryTemperatureReader::lowestCelsius &&
                           *celsius < BatteryTemperatureReader::highestCelsius;
    return isBattery ? celsius : std::nullopt;
}

std::optional<TemperatureReading> SMCBridge::readTemperatureReading()
{
    const std::vector<Sample> samples = readSamples();
    if (!m_calibrationDone)
        updateCalibration(samples);
    // Once the window has closed, the samples hold no denied key but on this one read: what has just been
    // found counts a last time.
    std::vector<double> values;
    for (const Sample &sample : samples) {
        if (m_calibrationDone || !m_denylist.contains(sample.key))
            values.push_back(sample.temp);
    }
    TemperatureReading reading;
    reading.batteryC = readBatteryTemperature();
    if (!reading.batteryC)
        reading.batteryC = BatteryTemperatureReader::readFromSmartBattery(m_power);
    reading.cpuMaxC = TemperatureOutlierFilter::maxRejectingOutliers(std::move(values));
    reading.timestamp = m_scheduler.now();
    return reading.cpuMaxC || reading.batteryC ? std::optional(reading) : std::nullopt;
}

std::vector<SMCBridge::Sample> SMCBridge::readSamples()
{
    std::vector<Sample> samples;
    for (const QString &key : m_keys.cpu) {
        if (m_calibrationDone && m_denylist.contains(key))
            continue;
        if (const auto celsius = plausibleCelsius(m_connection->readValue(key)))
            samples.push_back({key, *celsius});
    }
    return samples;
}

void SMCBridge::updateCalibration(const std::vector<Sample> &samples)
{
    const QDateTime now = m_scheduler.now();
    if (!m_calibrationStart)
        m_calibrationStart = now;
    for (const Sample &sample : samples) {
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
