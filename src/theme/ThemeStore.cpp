#include "theme/ThemeStore.h"

#include "platform/Log.h"
#include "platform/UserDefaults.h"
#include "theme/ThemeFile.h"

#include <algorithm>

namespace brimlight {
namespace {

QString glassStrengthKey()
{
    return QStringLiteral("brimlight.glassStrength");
}

std::optional<Theme> load(WholeFile &file)
{
    const std::optional<QByteArray> content = file.read();
    if (!content)
        return std::nullopt;
    std::optional<Theme> theme = decodeTheme(*content);
    if (!theme)
        file.markUnusable();
    return theme;
}

} // namespace

ThemeStore::ThemeStore(const QString &filePath, UserDefaults &defaults, Log &log)
    : m_file(filePath)
    , m_defaults(defaults)
    , m_log(log)
    , m_current(load(m_file).value_or(Theme::defaultTheme()))
    , m_glassStrength(defaults.read<double>(glassStrengthKey()).value_or(defaultGlassStrength))
{
}

void ThemeStore::setCurrent(const Theme &theme)
{
    m_current = theme;
    Q_EMIT currentChanged();
    save();
}

void ThemeStore::selectPalette(const QString &id)
{
    const auto found = std::ranges::find(builtIns(), id, &Theme::id);
    if (found != builtIns().end())
        setCurrent(*found);
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
    const std::optional<QByteArray> content = encodeTheme(m_current);
    if (content && m_file.write(*content))
        return;
    const QString reason = content ? m_file.errorString() : QStringLiteral("a colour is not a number");
    m_log.write(LogLevel::error, QStringLiteral("Theme"),
                QStringLiteral("Failed to save theme: %1").arg(reason));
}

} // namespace brimlight
