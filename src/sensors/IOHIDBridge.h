#pragma once

#include "platform/ThermalServices.h"

#include <memory>
#include <optional>

namespace brimlight {

/// The second source of temperatures: sensors that have a name and a value. Which of them are the processor's
/// is told by the name. Every call waits for drivers.
class IOHIDBridge
{
public:
    /// Nothing when the services cannot be listed. Later ones are not noticed.
    static std::unique_ptr<IOHIDBridge> open(ThermalServices &services);

    /// Whether a sensor of this name belongs to the processor.
    static bool isCpuName(const QString &name);

    int count() const { return m_count; }
    /// Degrees Celsius; absent when no sensor of the processor can be read.
    std::optional<double> readCpuMax();

private:
    IOHIDBridge(ThermalServices &services, int count);

    ThermalServices &m_services;
    int m_count;
};

} // namespace brimlight
