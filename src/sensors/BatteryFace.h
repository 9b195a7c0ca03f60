#pragma once

#include "grid/WidgetLogic.h"
#include "sensors/BatteryReader.h"
#include "sensors/Samplers.h"

#include <QColor>

namespace brimlight {

/// "1:05 to full", "3:20 left", "Fully charged" or "Battery".
QString batteryDetail(const BatterySnapshot &snapshot);
/// By the charge, unless the user wants the theme's colour or the battery is charging. `normal` stands for an
/// unknown and for a good charge.
QColor resolveTint(const BatterySnapshot &snapshot, bool followsTheme, const QColor &accent,
                   const QColor &normal);

/// What the battery widget shows.
class BatteryFace : public brimlight::WidgetLogic
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the definition of its kind")
    Q_PROPERTY(double fraction READ fraction NOTIFY changed)
    Q_PROPERTY(QString number READ number NOTIFY changed)
    Q_PROPERTY(QString percent READ percent NOTIFY changed)
    Q_PROPERTY(QString detail READ detail NOTIFY changed)
    Q_PROPERTY(QString status READ status NOTIFY changed)
    Q_PROPERTY(QString symbol READ symbol NOTIFY changed)
    Q_PROPERTY(bool charging READ isCharging NOTIFY changed)
    Q_PROPERTY(QColor tint READ tint NOTIFY changed)
    Q_PROPERTY(QString colorMode READ colorMode NOTIFY changed)

public:
    BatteryFace(WidgetContext &context, PowerSampler &power);

    double fraction() const { return std::max(m_snapshot.percent, 0) / 100.0; }
    /// The bare number, an em dash while it is unknown.
    QString number() const;
    /// With its sign.
    QString percent() const;
    QString detail() const { return batteryDetail(m_snapshot); }
    QString status() const;
    QString symbol() const;
    bool isCharging() const { return m_snapshot.isCharging; }
    QColor tint() const;
    /// "dynamic" or "theme".
    QString colorMode() const;

protected:
    void tick() override { m_power.ask(); }
    void appear() override { m_power.ask(); }

private:
    void take(const PowerState &state);

    Asker<PowerState> m_power;
    BatterySnapshot m_snapshot;
};

} // namespace brimlight
