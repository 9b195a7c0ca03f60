#pragma once

#include "grid/WidgetLogic.h"
#include "sensors/Samplers.h"
#include "sensors/SystemReader.h"

#include <QColor>

namespace brimlight {

QColor loadTint(double fraction, const QColor &accent);
/// "RAM 5.2 / 16 GB"; `total` in bytes.
QString ramDetail(double usedFraction, uint64_t total);

/// What the processor and memory widget shows. Every widget has a baseline of its own; when it appears it
/// measures the load at once, and never over the time that nobody saw it.
class SystemFace : public brimlight::WidgetLogic
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the definition of its kind")
    Q_PROPERTY(double cpu READ cpu NOTIFY changed)
    Q_PROPERTY(double ram READ ram NOTIFY changed)
    Q_PROPERTY(QString cpuText READ cpuText NOTIFY changed)
    Q_PROPERTY(QString ramText READ ramText NOTIFY changed)
    Q_PROPERTY(QColor cpuTint READ cpuTint NOTIFY changed)
    Q_PROPERTY(QColor ramTint READ ramTint NOTIFY changed)
    Q_PROPERTY(QString detail READ detail NOTIFY changed)

public:
    SystemFace(WidgetContext &context, SystemSampler &counters);

    double cpu() const { return m_snapshot.cpu; }
    double ram() const { return m_snapshot.memUsed; }
    QString cpuText() const;
    QString ramText() const;
    QColor cpuTint() const { return loadTint(cpu(), theme().accentColor()); }
    QColor ramTint() const { return loadTint(ram(), theme().accentColor()); }
    QString detail() const;

protected:
    void tick() override { m_counters.ask(); }
    void appear() override { m_counters.askForRate(); }

private:
    void take(const SystemCounters &counters);

    Asker<SystemCounters> m_counters;
    SystemReader m_reader;
    SystemSnapshot m_snapshot;
    uint64_t m_physicalMemory = 0;
};

} // namespace brimlight
