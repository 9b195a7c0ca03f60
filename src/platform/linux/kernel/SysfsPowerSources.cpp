#include "platform/linux/kernel/SysfsPowerSources.h"

#include "platform/linux/kernel/BatteryCharge.h"

#include <QDir>

namespace brimlight {

SysfsPowerSources::SysfsPowerSources(const QString &sys)
    : m_folder(sys + QStringLiteral("/class/power_supply"))
{
}

PowerState SysfsPowerSources::read()
{
    QList<PowerSupply> supplies;
    const QStringList names = QDir(m_folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString &name : names)
        supplies.append(PowerSupply(m_folder + u'/' + name));
    return {.source = describePowerSource(supplies), .battery = describeSmartBattery(supplies)};
}

} // namespace brimlight
