#pragma once

#include <QString>

#include <optional>

namespace brimlight {

/// Temperature sensors that have a name and a value each and nothing more.
class ThermalServices
{
public:
    virtual ~ThermalServices() = default;
    /// Finds the services that there are now and answers their number; absent when they cannot be listed.
    virtual std::optional<int> match() = 0;
    /// Degrees Celsius; absent when the service gives no event. `service` is below the number of `match`.
    virtual std::optional<double> celsius(int service) = 0;
    /// Empty without a name.
    virtual QString name(int service) = 0;
};

} // namespace brimlight
