#pragma once

#include "platform/MachineInfo.h"

namespace brimlight {

/// "Linux" and the first three numbers of a kernel's release; missing ones are 0.
QString osVersionOfRelease(const QString &release);

/// What the kernel and the firmware say of this machine: its DMI tables or its device tree.
class LinuxMachineInfo : public MachineInfo
{
public:
    explicit LinuxMachineInfo(QString procRoot = QStringLiteral("/proc"),
                              QString sysRoot = QStringLiteral("/sys"));

    /// The model name, or what the device tree calls the chip.
    std::optional<QString> chip() override;
    std::optional<QString> model() override;
    /// The kernel's release.
    std::optional<QString> osBuild() override;
    QString osVersion() override;
    QString hostName() override;

private:
    QString m_proc;
    QString m_sys;
};

} // namespace brimlight
