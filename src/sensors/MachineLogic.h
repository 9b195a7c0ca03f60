#pragma once

#include "grid/WidgetLogic.h"
#include "sensors/MachinePorts.h"

namespace brimlight {

/// The base of the widgets that read the machine's counters while they can be seen.
class MachineLogic : public brimlight::WidgetLogic
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("a base")
    Q_PROPERTY(brimlight::MachinePorts *machine READ machine WRITE setMachine NOTIFY machineChanged REQUIRED)

public:
    using WidgetLogic::WidgetLogic;

    MachinePorts *machine() const { return m_machine; }
    void setMachine(MachinePorts *machine);

Q_SIGNALS:
    void machineChanged();

protected:
    /// Once when the machine is known, before anything is shown.
    virtual void begin(MachinePorts &machine) = 0;
    virtual void read(MachinePorts &machine) = 0;
    void tick() override;

private:
    QPointer<MachinePorts> m_machine;
};

} // namespace brimlight
