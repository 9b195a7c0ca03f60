#include "sensors/BatteryHealthFace.h"

#include "core/Formats.h"
#include "theme/SignalColors.h"

namespace brimlight {

QColor healthTint(int percent, const QColor &accent)
{
    constexpr int good = 80;
    constexpr int fair = 60;
    return percent >= good ? accent : percent >= fair ? signalColors::orange : signalColors::red;
}

BatteryHealthFace::BatteryHealthFace(WidgetContext &context, PowerSampler &power)
    : WidgetLogic(context)
    , m_power(power, [this](const PowerState &state) { take(state); })
{
    m_power.takeLatest();
}

void BatteryHealthFace::take(const PowerState &state)
{
    m_snapshot = BatteryHealthReader::read(state);
    Q_EMIT changed();
}

QString BatteryHealthFace::percent() const
{
    return m_snapshot ? formats::percentNumber(m_snapshot->healthPercent) : QString();
}

QString BatteryHealthFace::cycles() const
{
    return m_snapshot ? QStringLiteral("%1 cycles").arg(m_snapshot->cycleCount) : QString();
}

QColor BatteryHealthFace::tint() const
{
    const QColor accent = theme().accentColor();
    return m_snapshot ? healthTint(m_snapshot->healthPercent, accent) : accent;
}

} // namespace brimlight
