#include "settings/ThemeChoices.h"

#include "core/Formats.h"

#include <algorithm>
#include <array>

namespace brimlight {
namespace {

struct Field
{
    const char *label;
    QColor (Theme::*color)() const;
    void (ThemeStore::*set)(const QColor &);
};

constexpr std::array fields{
    Field{"Accent Highlight", &Theme::accentColor, &ThemeStore::setAccent},
    Field{"Notch Surface", &Theme::surfaceColor, &ThemeStore::setSurface},
    Field{"Widget Tiles Background", &Theme::surfaceElevatedColor, &ThemeStore::setSurfaceElevated},
    Field{"Primary Text", &Theme::textPrimaryColor, &ThemeStore::setTextPrimary},
    Field{"Secondary Text", &Theme::textSecondaryColor, &ThemeStore::setTextSecondary},
    Field{"Separators & Rims", &Theme::separatorColor, &ThemeStore::setSeparator},
};

QString percent(double fraction)
{
    return formats::percent(std::clamp(fraction, 0.0, 1.0));
}

} // namespace

void ThemeChoices::setTheme(ThemeStore *theme)
{
    m_theme = theme;
    connect(theme, &ThemeStore::currentChanged, this, &ThemeChoices::changed);
    connect(theme, &ThemeStore::glassStrengthChanged, this, &ThemeChoices::changed);
    Q_EMIT changed();
}

int ThemeChoices::marked() const
{
    if (!m_theme)
        return -1;
    const QList<Theme> &presets = m_theme->builtIns();
    const auto found = std::ranges::find(presets, m_theme->current().id, &Theme::id);
    return found == presets.end() ? -1 : static_cast<int>(found - presets.begin());
}

QString ThemeChoices::strengthText() const
{
    return m_theme ? percent(m_theme->glassStrength()) : QString();
}

QStringList ThemeChoices::colorLabels()
{
    QStringList labels;
    for (const Field &field : fields)
        labels.append(QLatin1String(field.label));
    return labels;
}

QList<QColor> ThemeChoices::colors() const
{
    QList<QColor> list;
    if (m_theme) {
        for (const Field &field : fields)
            list.append((m_theme->current().*field.color)());
    }
    return list;
}

QStringList ThemeChoices::colorTexts() const
{
    QStringList texts;
    for (const QColor &color : colors()) {
        const QString hex = color.name(QColor::HexRgb).toUpper();
        texts.append(color.alpha() == 255 ? hex : hex + QStringLiteral(" · ") + percent(color.alphaF()));
    }
    return texts;
}

void ThemeChoices::setColor(int index, const QColor &color)
{
    if (m_theme && index >= 0 && static_cast<size_t>(index) < fields.size())
        (m_theme->*fields[static_cast<size_t>(index)].set)(color);
}

} // namespace brimlight
