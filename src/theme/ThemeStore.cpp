#include "theme/ThemeStore.h"

#include "platform/Log.h"
#include "platform/UserDefaults.h"

#include <algorithm>

namespace brimlight {
namespace {

QString glassStrengthKey()
{
    return QStringLiteral("brimlight.glassStrength");
}

QString logCategory()
{
    return QStringLiteral("Theme");
}
QString failure()
{
    return QStringLiteral("Failed to save theme: ");
}

SavedFile withFailureWords(SavedFile file)
{
    file.setFailureWords({logCategory(), failure()});
    return file;
}

} // namespace

ThemeStore::ThemeStore(SavedFile file, UserDefaults &defaults, Log &log)
    : m_document(withFailureWords(std::move(file)))
    , m_defaults(defaults)
    , m_log(log)
    , m_current(m_document.load().value_or(Theme::defaultTheme()))
    , m_shown(m_current)
    , m_glassStrength(defaults.read<double>(glassStrengthKey()).value_or(defaultGlassStrength))
{
    m_fade.setStartValue(0.0);
    m_fade.setEndValue(1.0);
    connect(&m_fade, &QVariantAnimation::valueChanged, this, [this](const QVariant &progress) {
        show(Theme::mixed(m_fadeStart, m_current, progress.toDouble()));
    });
}

void ThemeStore::setCurrent(const Theme &theme)
{
    m_fade.stop();
    m_current = theme;
    Q_EMIT currentChanged();
    show(m_current);
    save();
}

void ThemeStore::selectPalette(const QString &id)
{
    const auto found = std::ranges::find(builtIns(), id, &Theme::id);
    if (found != builtIns().end())
        setCurrent(*found);
}

void ThemeStore::fadeToPalette(const QString &id, const MotionCurve &curve)
{
    const Theme start = m_shown;
    selectPalette(id);
    if (curve.duration == 0 || start == m_current)
        return;
    m_fadeStart = start;
    show(start);
    m_fade.setDuration(curve.duration);
    m_fade.setEasingCurve(curve.easing);
    m_fade.start();
}

void ThemeStore::show(const Theme &theme)
{
    m_shown = theme;
    Q_EMIT shownChanged();
}

void ThemeStore::reset()
{
    setCurrent(Theme::defaultTheme());
}

void ThemeStore::setGlassStrength(double strength)
{
    m_glassStrength = strength;
    Q_EMIT glassStrengthChanged();
    m_defaults.setValue(glassStrengthKey(), strength);
}

void ThemeStore::replace(ThemeColor Theme::*field, const QColor &color)
{
    Theme theme = m_current;
    theme.*field = ThemeColor(color);
    theme.id = Theme::customId();
    theme.name = Theme::customName();
    setCurrent(theme);
}

void ThemeStore::save()
{
    if (!m_document.save(m_current))
        m_log.write(LogLevel::error, logCategory(), failure() + QStringLiteral("a colour is not a number"));
}

} // namespace brimlight
