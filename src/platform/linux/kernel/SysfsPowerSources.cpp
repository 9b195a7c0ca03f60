#include "platform/linux/kernel/SysfsPowerSources.h"

#include <QDir>

#include <algorithm>

namespace brimlight {
namespace {

const PowerSupply *firstBattery(const QList<PowerSupply> &supplies)
{
    const auto battery = std::find_if(supplies.begin(), supplies.end(),
                                      [](const PowerSupply &supply) { return supply.isBattery(); });
    return battery == supplies.end() ? nullptr : &*battery;
}

} // namespace

SysfsPowerSources::SysfsPowerSources(const QString &sys, std::chrono::milliseconds patience)
    : m_folder(sys + QStringLiteral("/class/power_supply"))
    , m_reads(patience)
{
}

std::optional<PowerSourceDescription> SysfsPowerSources::first()
{
    const QList<PowerSupply> all = supplies();
    const PowerSupply *battery = firstBattery(all);
    return battery ? std::optional(describePowerSource(*battery, all)) : std::nullopt;
}

std::optional<SmartBattery> SysfsPowerSources::smartBattery()
{
    const QList<PowerSupply> all = supplies();
    const PowerSupply *battery = firstBattery(all);
    return battery ? std::optional(describeSmartBattery(*battery)) : std::nullopt;
}

QList<PowerSupply> SysfsPowerSources::supplies()
{
    const QStringList names = QDir(m_folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    m_kept.removeIf([&](const auto &entry) { return !names.contains(entry.key()); });
    QList<PowerSupply> supplies;
    for (const QString &name : names) {
        const QString folder = m_folder + u'/' + name;
        supplies.append(m_kept[name].ask(m_reads, folder, [folder] { return PowerSupply(folder); }));
    }
    return supplies;
}

} // namespace brimlight
