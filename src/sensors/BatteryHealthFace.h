#pragma once

#include "grid/WidgetLogic.h"
#include "sensors/BatteryHealthReader.h"
#include "sensors/Samplers.h"

#include <QColor>

namespace brimlight {

/// `accent` from 80 percent up, orange from 60, red below.
QColor healthTint(int percent, const QColor &accent);

/// What the battery health widget shows; read each time it appears.
class BatteryHealthFace : public brimlight::WidgetLogic
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the definition of its kind")
    Q_PROPERTY(bool hasBattery READ hasBattery NOTIFY changed)
    Q_PROPERTY(double fraction READ fraction NOTIFY changed)
    Q_PROPERTY(QString percent READ percent NOTIFY changed)
    Q_PROPERTY(QString cycles READ cycles NOTIFY changed)
    Q_PROPERTY(QColor tint READ tint NOTIFY changed)

public:
    BatteryHealthFace(WidgetContext &context, PowerSampler &power);

    bool hasBattery() const { return m_snapshot.has_value(); }
    double fraction() const { return m_snapshot ? m_snapshot->healthPercent / 100.0 : 0; }
    QString percent() const;
    /// "312 cycles".
    QString cycles() const;
    QColor tint() const;

protected:
    void appear() override { m_power.ask(); }

private:
    void take(const PowerState &state);

    Asker<PowerState> m_power;
    std::optional<BatteryHealthSnapshot> m_snapshot;
};

} // namespace brimlight
