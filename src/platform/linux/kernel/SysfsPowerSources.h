#pragma once

#include "platform/PowerSources.h"
#include "platform/linux/kernel/PowerSupply.h"
#include "platform/linux/process/KeptAnswer.h"

#include <QHash>

namespace brimlight {

/// The batteries and chargers of /sys/class/power_supply; several batteries are told as one. A driver that is
/// slow to answer, as those that talk to an embedded controller, leaves the last values standing.
class SysfsPowerSources : public PowerSources
{
public:
    explicit SysfsPowerSources(const QString &sys = QStringLiteral("/sys"),
                               std::chrono::milliseconds patience = BoundedRead::defaultPatience);

    std::optional<PowerSourceDescription> first() override;
    std::optional<SmartBattery> smartBattery() override;

private:
    /// Sorted by name.
    QList<PowerSupply> supplies();

    QString m_folder;
    BoundedRead m_reads;
    QHash<QString, KeptAnswer<PowerSupply>> m_kept;
};

} // namespace brimlight
