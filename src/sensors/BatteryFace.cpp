#include "sensors/BatteryFace.h"

#include "core/Formats.h"
#include "theme/SignalColors.h"

namespace brimlight {
namespace {

constexpr int redBelow = 21;
constexpr int normalAbove = 40;

} // namespace

QString batteryDetail(const BatterySnapshot &snapshot)
{
    if (snapshot.isCharging && snapshot.timeToFull >= 1)
        return formats::hoursAndMinutes(snapshot.timeToFull) + QStringLiteral(" to full");
    if (!snapshot.isCharging && snapshot.timeToEmpty >= 1)
        return formats::hoursAndMinutes(snapshot.timeToEmpty) + QStringLiteral(" left");
    if (snapshot.isPluggedIn && snapshot.percent >= 100)
        return QStringLiteral("Fully charged");
    return QStringLiteral("Battery");
}

QColor resolveTint(const BatterySnapshot &snapshot, bool followsTheme, const QColor &accent,
                   const QColor &normal)
{
    if (followsTheme || snapshot.isCharging)
        return accent;
    if (snapshot.percent < 0 || snapshot.percent > normalAbove)
        return normal;
    return snapshot.percent < redBelow ? signalColors::red : signalColors::orange;
}

BatteryFace::BatteryFace(WidgetContext &context, PowerSampler &power)
    : WidgetLogic(context)
    , m_power(power, [this](const PowerState &state) { take(state); })
{
    m_power.takeLatest();
}

void BatteryFace::take(const PowerState &state)
{
    m_snapshot = BatteryReader::read(state);
    Q_EMIT changed();
}

QString BatteryFace::number() const
{
    return m_snapshot.percent < 0 ? QStringLiteral("—") : QString::number(m_snapshot.percent);
}

QString BatteryFace::percent() const
{
    return m_snapshot.percent < 0 ? number() : formats::percentNumber(m_snapshot.percent);
}

QString BatteryFace::status() const
{
    return m_snapshot.isPluggedIn ? QStringLiteral("Plugged in") : QStringLiteral("On battery");
}

QString BatteryFace::symbol() const
{
    return m_snapshot.isCharging ? QStringLiteral("bolt.fill") : QStringLiteral("battery.100");
}

QColor BatteryFace::tint() const
{
    const Theme theme = this->theme();
    return resolveTint(m_snapshot, colorMode() == QLatin1String("theme"), theme.accentColor(),
                       theme.textPrimaryColor());
}

QString BatteryFace::colorMode() const
{
    const QString theme = QStringLiteral("theme");
    return option(QStringLiteral("colorMode")) == theme ? theme : QStringLiteral("dynamic");
}

} // namespace brimlight
