#include "platform/linux/kernel/ThermalZones.h"

#include "platform/linux/kernel/SmallFile.h"
#include "platform/linux/kernel/SysfsValue.h"

#include <QDir>

#include <algorithm>
#include <array>

namespace brimlight {
namespace {

constexpr double milliPerDegree = 1000.0;

/// Some types name the processor in words of their own.
QString nameOfType(const QString &type)
{
    constexpr std::array cpuTypes{"x86_pkg_temp", "bigcore", "littlecore"};
    const bool isCpu = std::any_of(cpuTypes.begin(), cpuTypes.end(),
                                   [&type](const char *cpu) { return type.startsWith(QLatin1String(cpu)); });
    return isCpu ? QStringLiteral("CPU ") + type : type;
}

} // namespace

ThermalZones::ThermalZones(QString root)
    : m_root(std::move(root))
{
}

std::optional<int> ThermalZones::match()
{
    m_zones.clear();
    const QDir folder(m_root + QStringLiteral("/class/thermal"));
    if (!folder.exists())
        return std::nullopt;
    const QString prefix = QStringLiteral("thermal_zone");
    QStringList zones = folder.entryList({prefix + u'*'}, QDir::Dirs);
    const auto number = [&prefix](const QString &zone) {
        return QStringView(zone).sliced(prefix.size()).toInt();
    };
    std::stable_sort(zones.begin(), zones.end(),
                     [&number](const QString &a, const QString &b) { return number(a) < number(b); });
    for (const QString &zone : std::as_const(zones)) {
        const QString path = folder.filePath(zone);
        m_zones.push_back({path, nameOfType(sysfsText(smallFile(path + QStringLiteral("/type"))))});
    }
    return static_cast<int>(m_zones.size());
}

std::optional<double> ThermalZones::celsius(int service)
{
    const auto milli = sysfsNumber(smallFile(m_zones.at(service).folder + QStringLiteral("/temp")));
    return milli ? std::optional(*milli / milliPerDegree) : std::nullopt;
}

QString ThermalZones::name(int service)
{
    return m_zones.at(service).name;
}

} // namespace brimlight
