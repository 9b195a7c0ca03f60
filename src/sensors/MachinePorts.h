#pragma once

#include "platform/HostStatistics.h"
#include "platform/MachineInfo.h"
#include "platform/PowerSources.h"

#include <QObject>
#include <QtQmlIntegration>

namespace brimlight {

/// The counters of this machine, for the widgets that read them by themselves.
class MachinePorts : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the controller")

public:
    MachinePorts(HostStatistics &statistics, PowerSources &power, MachineInfo &info,
                 QObject *parent = nullptr)
        : QObject(parent)
        , statistics(statistics)
        , power(power)
        , info(info)
    {
    }

    HostStatistics &statistics;
    PowerSources &power;
    MachineInfo &info;
};

} // namespace brimlight
