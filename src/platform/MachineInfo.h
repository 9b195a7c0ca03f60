#pragma once

#include <QString>

#include <optional>

namespace brimlight {

/// What this machine is; for any thread. Does not change while the process runs, but for the host name.
class MachineInfo
{
public:
    virtual ~MachineInfo() = default;
    /// The processor's name.
    virtual std::optional<QString> chip() = 0;
    /// The maker's name of the model.
    virtual std::optional<QString> model() = 0;
    /// Differs between builds of the operating system's kernel.
    virtual std::optional<QString> osBuild() = 0;
    /// "Linux" and the version's three numbers, joined by points.
    virtual QString osVersion() = 0;
    virtual QString hostName() = 0;
};

} // namespace brimlight
