#include "sensors/TemperatureFace.h"

#include "core/EnumTexts.h"
#include "core/Formats.h"
#include "theme/SignalColors.h"

#include <algorithm>

namespace brimlight {
namespace {

constexpr EnumTexts<ThermalState, 4> stateTexts{{{{ThermalState::nominal, u"Nominal"},
                                                  {ThermalState::fair, u"Fair"},
                                                  {ThermalState::serious, u"Serious"},
                                                  {ThermalState::critical, u"Critical"}}}};

} // namespace

double temperatureFraction(double celsius)
{
    constexpr double empty = 30;
    constexpr double full = 100;
    return std::clamp((celsius - empty) / (full - empty), 0.0, 1.0);
}

QColor temperatureTint(double celsius, const QColor &accent)
{
    constexpr double orangeFrom = 55;
    constexpr double redFrom = 75;
    return signalColors::byLevel(celsius, orangeFrom, redFrom, accent);
}

QString thermalStateText(ThermalState state)
{
    return stateTexts.text(state);
}

TemperatureFace::TemperatureFace(WidgetContext &context, TemperatureService &temperature,
                                 ThermalStateSampler &state)
    : WidgetLogic(context)
    , m_temperature(temperature)
    , m_thermalState(state, [this](ThermalState answer) {
        m_state = answer;
        Q_EMIT changed();
    })
{
    connect(&temperature, &TemperatureService::latestChanged, this, &TemperatureFace::changed);
    m_thermalState.takeLatest();
}

QString TemperatureFace::unit() const
{
    return settings().celsius() ? QStringLiteral("°C") : QStringLiteral("°F");
}

void TemperatureFace::refresh()
{
    m_temperature.refresh();
    // It stands in for a temperature, and asking for it is dear: every zone and every fan has to answer.
    if (!cpu())
        m_thermalState.ask();
}

std::optional<double> TemperatureFace::cpu() const
{
    const auto &latest = m_temperature.latest();
    return latest ? latest->cpuMaxC : std::nullopt;
}

std::optional<double> TemperatureFace::battery() const
{
    const auto &latest = m_temperature.latest();
    return latest ? latest->batteryC : std::nullopt;
}

QString TemperatureFace::cpuText() const
{
    return hasCpu() ? settings().temperature(*cpu()) : QString();
}

QString TemperatureFace::number(std::optional<double> celsius) const
{
    return celsius ? QString::number(formats::wholeDegrees(*celsius, settings().celsius())) : QString();
}

} // namespace brimlight
