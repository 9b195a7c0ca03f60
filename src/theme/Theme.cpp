#include "theme/Theme.h"

namespace brimlight {

ThemeColor ThemeColor::fromHex(const QString &hex, double opacity)
{
    QString digits = hex.trimmed();
    if (digits.startsWith(QLatin1Char('#')))
        digits.remove(0, 1);
    const uint number = digits.toUInt(nullptr, 16);
    return {((number >> 16) & 0xFF) / 255.0, ((number >> 8) & 0xFF) / 255.0, (number & 0xFF) / 255.0,
            opacity};
}

Theme Theme::midnight()
{
    const auto color = [](const char16_t *hex, double opacity) {
        return ThemeColor::fromHex(QString::fromUtf16(hex), opacity);
    };
    Theme theme;
    theme.id = QStringLiteral("midnight");
    theme.name = QStringLiteral("Midnight");
    theme.accent = color(u"#0A84FF", 1.0);
    theme.surface = color(u"#0B0B0F", 0.96);
    theme.surfaceElevated = color(u"#FFFFFF", 0.08);
    theme.textPrimary = color(u"#FFFFFF", 0.92);
    theme.textSecondary = color(u"#FFFFFF", 0.55);
    theme.separator = color(u"#FFFFFF", 0.1);
    return theme;
}

} // namespace brimlight
