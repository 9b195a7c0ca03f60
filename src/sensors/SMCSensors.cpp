#include "sensors/SMCSensors.h"

#include "sensors/BatteryTemperatureReader.h"
#include "sensors/PersistentDenylistStore.h"
#include "sensors/TemperatureValueDecoder.h"

namespace brimlight {
namespace {

/// A sensor outside of these, both excluded, is broken or absent; degrees Celsius.
constexpr double lowestCelsius = 0.0;
constexpr double highestCelsius = 150.0;

std::optional<double> plausibleCelsius(const std::optional<SMCConnection::Value> &value)
{
    if (!value)
        return std::nullopt;
    const auto celsius =
        TemperatureValueDecoder::decodeSMCFloat(value->data, value->info.dataSize, value->info.dataType);
    const bool isPlausible = celsius && *celsius > lowestCelsius && *celsius < highestCelsius;
    return isPlausible ? celsius : std::nullopt;
}

} // namespace

std::unique_ptr<SMCSensors> SMCSensors::open(SmcTransport &transport, MachineInfo &machine)
{
    auto connection = SMCConnection::open(transport);
    if (!connection)
        return nullptr;
    return std::unique_ptr<SMCSensors>(new SMCSensors(std::move(connection), machine));
}

SMCSensors::SMCSensors(std::unique_ptr<SMCConnection> connection, MachineInfo &machine)
    : m_connection(std::move(connection))
    , m_inventory{.chip = machine.chip().value_or(QStringLiteral("unknown")),
                  .model = machine.model().value_or(QStringLiteral("unknown")),
                  .osBuild = PersistentDenylistStore::currentOSBuild(machine)}
{
    discoverKeys();
}

bool SMCSensors::isCpuKey(const QString &key)
{
    if (key.startsWith(QLatin1String("TC")))
        return true;
    constexpr qsizetype keyLength = 4;
    return key.size() == keyLength &&
           (key.startsWith(QLatin1String("Tp")) || key.startsWith(QLatin1String("Te")) ||
            key.startsWith(QLatin1String("Tf")));
}

void SMCSensors::discoverKeys()
{
    const uint32_t count = m_connection->keyCount().value_or(0);
    for (uint32_t index = 0; index < count; ++index) {
        const auto key = m_connection->keyAt(index);
        if (key && isFloatSensor(*key) && isCpuKey(*key))
            m_inventory.cpuKeys.append(*key);
    }
}

bool SMCSensors::isFloatSensor(const QString &key)
{
    constexpr uint32_t singleSize = 4;
    const auto info = m_connection->readKeyInfo(SMCConnection::keyCode(key));
    if (!info || info->dataSize != singleSize || info->dataType != TemperatureValueDecoder::smcFloatType)
        return false;
    // A key that has an info but no value is no sensor.
    return m_connection->readValue(key).has_value();
}

SmcSamples SMCSensors::read(const QSet<QString> &skippedKeys)
{
    SmcSamples samples;
    for (const QString &key : std::as_const(m_inventory.cpuKeys)) {
        if (skippedKeys.contains(key))
            continue;
        if (const auto celsius = plausibleCelsius(m_connection->readValue(key)))
            samples.cpu.push_back({key, *celsius});
    }
    samples.batteryC = readBatteryTemperature();
    return samples;
}

std::optional<double> SMCSensors::readBatteryTemperature()
{
    const auto celsius = plausibleCelsius(m_connection->readValue(QStringLiteral("B0AT")));
    const bool isBattery = celsius && *celsius > BatteryTemperatureReader::lowestCelsius &&
                           *celsius < BatteryTemperatureReader::highestCelsius;
    return isBattery ? celsius : std::nullopt;
}

} // namespace brimlight
