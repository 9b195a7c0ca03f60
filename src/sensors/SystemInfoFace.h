#pragma once

#include "sensors/MachineLogic.h"

namespace brimlight {

/// "3d 4h", "4h 12m" or "12m"; whole seconds.
QString uptimeString(int64_t seconds);

/// What the system info widget shows: four rows of label and value.
class SystemInfoFace : public brimlight::MachineLogic
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QStringList labels READ labels CONSTANT)
    Q_PROPERTY(QStringList values READ values NOTIFY changed)

public:
    using MachineLogic::MachineLogic;

    QStringList labels() const;
    QStringList values() const { return m_values; }

protected:
    void begin(MachinePorts &machine) override { read(machine); }
    void read(MachinePorts &machine) override;

private:
    QStringList m_values;
};

} // namespace brimlight
