#include "platform/linux/kernel/HwmonSmc.h"

#include "platform/linux/kernel/SmallFile.h"
#include "platform/linux/kernel/SysfsValue.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <bit>
#include <cmath>
#include <tuple>

namespace brimlight {
namespace {

constexpr uint32_t countCode = SmcLayout::code("#KEY");
constexpr uint32_t packageCode = SmcLayout::code("TC0P");
constexpr uint32_t floatType = SmcLayout::code("flt ");
constexpr uint32_t integerType = SmcLayout::code("ui32");
/// Signed, 8 bits before the point and 8 after it.
constexpr uint32_t fixedPointType = SmcLayout::code("sp78");
constexpr uint32_t floatSize = 4;
constexpr uint32_t fixedPointSize = 2;

constexpr uint8_t resultBadCommand = 1;
constexpr uint8_t resultNotFound = 2;
constexpr uint8_t resultNotReadable = 3;

constexpr double milliPerUnit = 1000.0;

template<typename Words>
bool containsAny(const QString &text, const Words &words)
{
    return std::any_of(std::begin(words), std::end(words),
                       [&text](const char *word) { return text.contains(QLatin1String(word)); });
}

template<typename Names>
bool isAnyOf(const QString &name, const Names &names)
{
    return std::any_of(std::begin(names), std::end(names),
                       [&name](const char *other) { return name == QLatin1String(other); });
}

/// Chips that sit in the processor and nowhere else.
bool isCpuChip(const QString &name)
{
    constexpr std::array drivers{"coretemp", "k10temp", "k8temp", "zenpower", "via_cputemp"};
    constexpr std::array zones{"cpu", "bigcore", "littlecore"};
    const auto startsName = [&name](const char *zone) { return name.startsWith(QLatin1String(zone)); };
    return isAnyOf(name, drivers) ||
           (name.endsWith(QLatin1String("thermal")) && std::any_of(zones.begin(), zones.end(), startsName));
}

/// Firmware that speaks for the whole machine: the label says which part a sensor is in.
bool isMixedChip(const QString &name)
{
    constexpr std::array drivers{"scpi_sensors", "macsmc", "macsmc_hwmon"};
    return isAnyOf(name, drivers);
}

/// Whether a sensor of a processor's chip speaks for all of the processor, and not for one of its cores. The
/// better a label, the lower its rank; absent for a part.
std::optional<int> packageRank(const QString &chip, const QString &label)
{
    if (chip == QLatin1String("coretemp"))
        return label.startsWith(QLatin1String("Package id")) ? std::optional(0) : std::nullopt;
    // What the fan control goes by stands off the true value on some processors.
    constexpr std::array byTrueness{"Tdie", "Tctl"};
    const auto found = std::find_if(byTrueness.begin(), byTrueness.end(),
                                    [&label](const char *name) { return label == QLatin1String(name); });
    return found == byTrueness.end() ? std::nullopt : std::optional(int(found - byTrueness.begin()));
}

bool isCpuLabel(const QString &label)
{
    constexpr std::array words{"cpu", "core", "cluster", "soc", "thermal"};
    return containsAny(label.toLower(), words);
}

bool isAsleep(const QString &runtimeStatus)
{
    const QString status = sysfsText(smallFile(runtimeStatus));
    return status == QLatin1String("suspended") || status == QLatin1String("suspending");
}

std::optional<double> celsiusOf(const QString &input)
{
    const auto milli = sysfsNumber(smallFile(input));
    return milli ? std::optional(*milli / milliPerUnit) : std::nullopt;
}

/// A prefix of two characters and a number of two digits.
std::optional<uint32_t> numberedCode(std::string_view prefix, size_t number)
{
    constexpr std::string_view digits = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    if (number >= digits.size() * digits.size())
        return std::nullopt;
    const std::array text{prefix[0], prefix[1], digits[number / digits.size()],
                          digits[number % digits.size()]};
    return SmcLayout::code({text.data(), text.size()});
}

void storeFloat(SmcRecord &record, double value)
{
    SmcLayout::store(record, std::bit_cast<uint32_t>(static_cast<float>(value)), SmcLayout::bytes);
}

void storeFixedPoint(SmcRecord &record, double value)
{
    constexpr double unitsPerDegree = 256.0;
    const double units = std::clamp(std::round(value * unitsPerDegree), -32768.0, 32767.0);
    qToBigEndian(static_cast<int16_t>(units), record.data() + SmcLayout::bytes);
}

} // namespace

std::optional<double> HwmonSmc::hottest(const std::vector<Input> &inputs)
{
    std::optional<double> hottest;
    for (const Input &input : inputs) {
        if (isAsleep(input.runtimeStatus))
            continue;
        if (const auto value = celsiusOf(input.file))
            hottest = std::max(hottest.value_or(*value), *value);
    }
    return hottest;
}

struct HwmonSmc::Sensor
{
    QString chip;
    /// Below the root, where the device always is; the chip's own number changes from boot to boot.
    QString device;
    QString label;
    int number = 0;
    QString folder;
    bool isCpu = false;
    /// Speaks for its whole processor; then no other sensor counts as the processor's.
    bool isPackage = false;

    Input input() const
    {
        return {.file = QStringLiteral("%1/temp%2_input").arg(folder).arg(number),
                .runtimeStatus = folder + QStringLiteral("/device/power/runtime_status")};
    }
    auto order() const { return std::tie(chip, device, label, number); }
};

HwmonSmc::HwmonSmc(const QString &root)
    : m_root(QFileInfo(root).canonicalFilePath())
{
}

std::optional<uint32_t> HwmonSmc::open()
{
    std::vector<Sensor> found = sensors();
    m_keys.clear();
    if (std::none_of(found.begin(), found.end(), [](const Sensor &sensor) { return sensor.isCpu; }))
        return std::nullopt;
    Key package{.code = packageCode, .dataType = floatType, .dataSize = floatSize};
    for (const Sensor &sensor : found) {
        if (sensor.isPackage)
            package.inputs.push_back(sensor.input());
    }
    const bool hasPackage = !package.inputs.empty();
    if (hasPackage)
        m_keys.push_back(std::move(package));
    // The processor's first: its keys do not depend on what else there is.
    const auto isCpu = [hasPackage](const Sensor &sensor) { return sensor.isCpu && !hasPackage; };
    std::stable_partition(found.begin(), found.end(), isCpu);
    size_t cpuCount = 0;
    size_t otherCount = 0;
    for (const Sensor &sensor : found) {
        if (sensor.isPackage)
            continue;
        const bool counts = isCpu(sensor);
        const auto code = counts ? numberedCode("Tp", cpuCount++) : numberedCode("Ts", otherCount++);
        if (!code)
            continue;
        m_keys.push_back({.code = *code,
                          .dataType = counts ? floatType : fixedPointType,
                          .dataSize = counts ? floatSize : fixedPointSize,
                          .inputs = {sensor.input()}});
    }
    return ++m_connection;
}

void HwmonSmc::close(uint32_t connection)
{
    if (connection == m_connection)
        m_keys.clear();
}

std::vector<HwmonSmc::Sensor> HwmonSmc::sensors() const
{
    std::vector<Sensor> found;
    const QDir chips(m_root + QStringLiteral("/class/hwmon"));
    for (const QString &chip : chips.entryList({QStringLiteral("hwmon*")}, QDir::Dirs))
        addChip(QFileInfo(chips.filePath(chip)).canonicalFilePath(), found);
    std::sort(found.begin(), found.end(),
              [](const Sensor &a, const Sensor &b) { return a.order() < b.order(); });
    return found;
}

void HwmonSmc::addChip(const QString &folder, std::vector<Sensor> &sensors) const
{
    const QString chip = sysfsText(smallFile(folder + QStringLiteral("/name")));
    const QString device =
        QDir(m_root).relativeFilePath(QFileInfo(folder + QStringLiteral("/device")).canonicalFilePath());
    const QString suffix = QStringLiteral("_input");
    std::vector<Sensor> ofChip;
    // A folder or a pipe in the place of a file is listed too: reading it fails, and that is all.
    for (const QString &input :
         QDir(folder).entryList({QStringLiteral("temp*") + suffix}, QDir::AllEntries | QDir::System)) {
        bool isNumber = false;
        const int number = QStringView(input).sliced(4).chopped(suffix.size()).toInt(&isNumber);
        if (!isNumber)
            continue;
        const QString label = sysfsText(smallFile(QStringLiteral("%1/temp%2_label").arg(folder).arg(number)));
        ofChip.push_back({chip, device, label, number, folder,
                          isCpuChip(chip) || (isMixedChip(chip) && isCpuLabel(label))});
    }
    std::optional<int> best;
    for (const Sensor &sensor : ofChip) {
        if (const auto rank = packageRank(sensor.chip, sensor.label); sensor.isCpu && rank)
            best = std::min(best.value_or(*rank), *rank);
    }
    for (Sensor &sensor : ofChip)
        sensor.isPackage = best && packageRank(sensor.chip, sensor.label) == best;
    sensors.insert(sensors.end(), ofChip.begin(), ofChip.end());
}

const HwmonSmc::Key *HwmonSmc::find(uint32_t code) const
{
    // Can be asked for without being listed.
    static const Key count{.code = countCode, .dataType = integerType, .dataSize = sizeof(uint32_t)};
    if (code == countCode)
        return &count;
    const auto key =
        std::find_if(m_keys.begin(), m_keys.end(), [code](const Key &key) { return key.code == code; });
    return key == m_keys.end() ? nullptr : &*key;
}

SmcReply HwmonSmc::call(uint32_t connection, const SmcRecord &request)
{
    if (m_keys.empty() || connection != m_connection)
        return {.returnCode = -1};
    SmcReply reply{.size = sizeof(SmcRecord)};
    const uint8_t command = request[SmcLayout::command];
    if (command == SmcLayout::readIndex) {
        answerIndex(request, reply.record);
        return reply;
    }
    const Key *key = find(SmcLayout::load(request, SmcLayout::key));
    if (!key)
        reply.record[SmcLayout::result] = resultNotFound;
    else if (command == SmcLayout::readInfo)
        answerInfo(*key, reply.record);
    else if (command == SmcLayout::readValue)
        answerValue(*key, reply.record);
    else
        reply.record[SmcLayout::result] = resultBadCommand;
    return reply;
}

void HwmonSmc::answerIndex(const SmcRecord &request, SmcRecord &answer) const
{
    const uint32_t index = SmcLayout::load(request, SmcLayout::index);
    if (index < m_keys.size())
        SmcLayout::store(answer, m_keys[index].code, SmcLayout::key);
    else
        answer[SmcLayout::result] = resultNotFound;
}

void HwmonSmc::answerInfo(const Key &key, SmcRecord &answer) const
{
    SmcLayout::store(answer, key.dataSize, SmcLayout::dataSize);
    SmcLayout::store(answer, key.dataType, SmcLayout::dataType);
}

void HwmonSmc::answerValue(const Key &key, SmcRecord &answer) const
{
    if (key.code == countCode) {
        qToBigEndian(static_cast<uint32_t>(m_keys.size()), answer.data() + SmcLayout::bytes);
        return;
    }
    const auto value = hottest(key.inputs);
    if (!value)
        answer[SmcLayout::result] = resultNotReadable;
    else if (key.dataType == floatType)
        storeFloat(answer, *value);
    else
        storeFixedPoint(answer, *value);
}

} // namespace brimlight
