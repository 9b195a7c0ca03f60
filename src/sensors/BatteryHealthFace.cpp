#include "sensors/BatteryHealthFace.h"

#include "sensors/SignalColors.h"

namespace brimlight {

QColor healthTint(int percent, const QColor &accent)
{
    constexpr int good = 80;
    constexpr int fair = 60;
    return percent >= good ? accent : percent >= fair ? signalColors::orange : signalColors::red;
}

QString BatteryHealthFace::percent() const
{
    return m_snapshot ? QStringLiteral("%1%").arg(m_snapshot->healthPercent) : QString();
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

void BatteryHealthFace::appear()
{
    if (machine())
        begin(*machine());
}

} // namespace brimlight
