#include "platform/linux/kernel/SysfsPowerSources.h"

#include "platform/linux/kernel/BatteryCharge.h"

#include <QDir>

namespace brimlight {
SysfsPowerSources::SysfsPowerSources(const QString &sys, std::chrono::milliseconds patience)
    : m_folder(sys + QStringLiteral("/class/power_supply"))
    , m_reads(patience)
{
}

std::optional<PowerSourceDescription> SysfsPowerSources::first()
{
    return describePowerSource(supplies());
}

std::optional<SmartBattery> SysfsPowerSources::smartBattery()
{
    return describeSmartBattery(supplies());
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
