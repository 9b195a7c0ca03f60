#pragma once

#include "grid/WidgetLogic.h"

namespace brimlight {

class HostStatistics;
class MachineInfo;

/// What the system info widget shows: four rows of label and value.
class SystemInfoFace : public brimlight::WidgetLogic
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the definition of its kind")
    Q_PROPERTY(QStringList labels READ labels CONSTANT)
    Q_PROPERTY(QStringList values READ values NOTIFY changed)

public:
    SystemInfoFace(WidgetContext &context, HostStatistics &statistics, MachineInfo &info);

    QStringList labels() const;
    QStringList values() const { return m_values; }

protected:
    void tick() override { read(); }

private:
    void read();

    HostStatistics &m_statistics;
    MachineInfo &m_info;
    QStringList m_values;
};

} // namespace brimlight
