#pragma once

#include "grid/WidgetLogic.h"
#include "sensors/Samplers.h"

namespace brimlight {

/// What the system info widget shows: four rows of label and value.
class SystemInfoFace : public brimlight::WidgetLogic
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the definition of its kind")
    Q_PROPERTY(QStringList labels READ labels CONSTANT)
    Q_PROPERTY(QStringList values READ values NOTIFY changed)

public:
    SystemInfoFace(WidgetContext &context, MachineSampler &facts);

    QStringList labels() const;
    QStringList values() const { return m_values; }

protected:
    void tick() override { m_facts.ask(); }
    void appear() override { m_facts.ask(); }

private:
    void take(const MachineFacts &facts);

    Asker<MachineFacts> m_facts;
    /// Empty until they are known.
    QStringList m_values;
};

} // namespace brimlight
