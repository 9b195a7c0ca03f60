#pragma once

#include "core/Formats.h"
#include "grid/WidgetLogic.h"
#include "sensors/NetworkReader.h"

namespace brimlight {

/// What the network widget shows. Every widget has a baseline of its own, so its very first rates are zero;
/// when it appears it measures them at once, and never over the time that nobody saw it.
class NetworkFace : public brimlight::WidgetLogic
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the definition of its kind")
    Q_PROPERTY(QString down READ down NOTIFY changed)
    Q_PROPERTY(QString up READ up NOTIFY changed)
    Q_PROPERTY(QString compactDown READ compactDown NOTIFY changed)
    Q_PROPERTY(QString compactUp READ compactUp NOTIFY changed)
    Q_PROPERTY(QList<double> bars READ bars NOTIFY changed)

public:
    static constexpr qsizetype longestHistory = 24;

    NetworkFace(WidgetContext &context, NetworkSampler &counters);

    QString down() const { return formats::rate(m_snapshot.down); }
    QString up() const { return formats::rate(m_snapshot.up); }
    QString compactDown() const { return formats::compactRate(m_snapshot.down); }
    QString compactUp() const { return formats::compactRate(m_snapshot.up); }
    /// The rates of the last ticks, oldest first, from 0 to 1. What is below one byte per second stays flat.
    QList<double> bars() const;

protected:
    void tick() override;
    void appear() override { m_counters.askForRate(); }

private:
    void take(const NetworkCounters &counters);

    Asker<NetworkCounters> m_counters;
    NetworkReader m_reader;
    NetSnapshot m_snapshot;
    QList<double> m_history;
    /// The answer under way belongs to a tick, which makes one bar.
    bool m_isForTick = false;
};

} // namespace brimlight
