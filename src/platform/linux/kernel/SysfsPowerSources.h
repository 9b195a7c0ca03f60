#pragma once

#include "platform/PowerSources.h"

#include <QString>

namespace brimlight {

/// The batteries and chargers of /sys/class/power_supply; several batteries are told as one.
class SysfsPowerSources : public PowerSources
{
public:
    explicit SysfsPowerSources(const QString &sys = QStringLiteral("/sys"));

    PowerState read() override;

private:
    QString m_folder;
};

} // namespace brimlight
