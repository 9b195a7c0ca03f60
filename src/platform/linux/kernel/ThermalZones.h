#pragma once

#include "platform/ThermalServices.h"

#include <vector>

namespace brimlight {

/// The kernel's thermal zones. A zone is named by its type; what is the processor's is named so that this
/// shows.
class ThermalZones : public ThermalServices
{
public:
    explicit ThermalZones(QString root = QStringLiteral("/sys"));

    std::optional<int> match() override;
    std::optional<double> celsius(int service) override;
    QString name(int service) override;

private:
    struct Zone
    {
        QString folder;
        QString name;
    };

    QString m_root;
    /// In the order of their numbers.
    std::vector<Zone> m_zones;
};

} // namespace brimlight
