#pragma once

#include "grid/WidgetLogic.h"
#include "sensors/TemperatureService.h"

#include <QColor>

namespace brimlight {

/// Empty at 30 degrees Celsius, full at 100.
double temperatureFraction(double celsius);
QColor temperatureTint(double celsius, const QColor &accent);
/// "Nominal", "Fair", "Serious" or "Critical".
QString thermalStateText(ThermalState state);

/// What the temperature widget shows. Every tick takes a reading; without one of the processor the machine's
/// own word of its state stands in.
class TemperatureFace : public brimlight::WidgetLogic
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the definition of its kind")
    Q_PROPERTY(bool hasCpu READ hasCpu NOTIFY changed)
    Q_PROPERTY(double fraction READ fraction NOTIFY changed)
    Q_PROPERTY(QString cpuText READ cpuText NOTIFY changed)
    Q_PROPERTY(bool hasBattery READ hasBattery NOTIFY changed)
    Q_PROPERTY(QString batteryText READ batteryText NOTIFY changed)
    Q_PROPERTY(QString unit READ unit NOTIFY changed)
    Q_PROPERTY(QColor tint READ tint NOTIFY changed)
    Q_PROPERTY(QString stateText READ stateText NOTIFY changed)

public:
    TemperatureFace(WidgetContext &context, TemperatureService &temperature, ThermalStateSampler &state);

    bool hasCpu() const { return cpu().has_value(); }
    double fraction() const { return temperatureFraction(cpu().value_or(0)); }
    /// "57°".
    QString cpuText() const;
    bool hasBattery() const { return battery().has_value(); }
    /// "30".
    QString batteryText() const { return number(battery()); }
    /// "°C" or "°F".
    QString unit() const;
    QColor tint() const { return temperatureTint(cpu().value_or(0), theme().accentColor()); }
    QString stateText() const { return thermalStateText(m_state); }

protected:
    void tick() override { refresh(); }
    void appear() override { refresh(); }

private:
    void refresh();
    std::optional<double> cpu() const;
    std::optional<double> battery() const;
    QString number(std::optional<double> celsius) const;

    TemperatureService &m_temperature;
    Asker<ThermalState> m_thermalState;
    ThermalState m_state = ThermalState::nominal;
};

} // namespace brimlight
