#include "sensors/MachineLogic.h"

namespace brimlight {

void MachineLogic::setMachine(MachinePorts *machine)
{
    m_machine = machine;
    Q_EMIT machineChanged();
    if (!machine)
        return;
    begin(*machine);
    Q_EMIT changed();
}

void MachineLogic::tick()
{
    if (m_machine)
        read(*m_machine);
}

} // namespace brimlight
