#include "theme/Theme.h"

#include <QHash>

#include <algorithm>
#include <array>
#include <cmath>

namespace brimlight {
namespace {

struct Hex
{
    const char16_t *digits;
    double opacity;
};

struct Preset
{
    const char16_t *id;
    const char16_t *name;
    Hex accent;
    Hex surface;
    Hex surfaceElevated;
    Hex textPrimary;
    Hex textSecondary;
    Hex separator;
};

constexpr std::array presets{std::to_array<Preset>({
    {u"midnight",
     u"Midnight",
     {u"#0A84FF", 1.0},
     {u"#0B0B0F", 0.96},
     {u"#FFFFFF", 0.08},
     {u"#FFFFFF", 0.92},
     {u"#FFFFFF", 0.55},
     {u"#FFFFFF", 0.1}},
    {u"graphite",
     u"Graphite",
     {u"#5E5CE6", 1.0},
     {u"#17171A", 0.96},
     {u"#FFFFFF", 0.07},
     {u"#FFFFFF", 0.92},
     {u"#FFFFFF", 0.55},
     {u"#FFFFFF", 0.1}},
    {u"ocean",
     u"Ocean",
     {u"#32D0E0", 1.0},
     {u"#0A1A24", 0.96},
     {u"#64D2FF", 0.09},
     {u"#EAFBFF", 0.95},
     {u"#EAFBFF", 0.55},
     {u"#64D2FF", 0.14}},
    {u"sand",
     u"Sand",
     {u"#FF9F0A", 1.0},
     {u"#1F1813", 0.96},
     {u"#FFFFFF", 0.07},
     {u"#FFF8F0", 0.92},
     {u"#FFF8F0", 0.55},
     {u"#FFFFFF", 0.1}},
    {u"rose",
     u"Rose",
     {u"#FF375F", 1.0},
     {u"#1B0E13", 0.96},
     {u"#FFFFFF", 0.08},
     {u"#FFF0F3", 0.93},
     {u"#FFF0F3", 0.55},
     {u"#FFFFFF", 0.1}},
    {u"forest",
     u"Forest",
     {u"#30D158", 1.0},
     {u"#0C1710", 0.96},
     {u"#9BE6B0", 0.08},
     {u"#F0FFF4", 0.93},
     {u"#F0FFF4", 0.55},
     {u"#FFFFFF", 0.1}},
    {u"grape",
     u"Grape",
     {u"#BF5AF2", 1.0},
     {u"#15101F", 0.96},
     {u"#D9B8FF", 0.08},
     {u"#F7F0FF", 0.93},
     {u"#F7F0FF", 0.55},
     {u"#FFFFFF", 0.1}},
    {u"slate",
     u"Slate",
     {u"#A0A0A8", 1.0},
     {u"#141416", 0.96},
     {u"#FFFFFF", 0.06},
     {u"#FFFFFF", 0.9},
     {u"#FFFFFF", 0.5},
     {u"#FFFFFF", 0.1}},
    {u"sunset",
     u"Sunset Glow",
     {u"#FF5E62", 1.0},
     {u"#1A0F2E", 0.96},
     {u"#E0C3FC", 0.08},
     {u"#FFF0FA", 0.93},
     {u"#D0BBD0", 0.6},
     {u"#E0C3FC", 0.12}},
    {u"aurora",
     u"Aurora Green",
     {u"#00F2FE", 1.0},
     {u"#051C1A", 0.96},
     {u"#00F2FE", 0.07},
     {u"#E6F9F8", 0.93},
     {u"#9BE6E1", 0.6},
     {u"#00F2FE", 0.12}},
    {u"solar",
     u"Solar Amber",
     {u"#FFB300", 1.0},
     {u"#1F140C", 0.96},
     {u"#FFD54F", 0.08},
     {u"#FFFDEE", 0.93},
     {u"#D1C3B2", 0.6},
     {u"#FFB300", 0.12}},
    {u"cyber",
     u"Cyber Neon",
     {u"#FF007F", 1.0},
     {u"#09090C", 0.97},
     {u"#00FFFF", 0.09},
     {u"#FFFFFF", 0.95},
     {u"#8C92AC", 0.6},
     {u"#00FFFF", 0.15}},
    {u"frosty",
     u"Glacier Blue",
     {u"#00D2FF", 1.0},
     {u"#0A1521", 0.96},
     {u"#E6F4F8", 0.08},
     {u"#F0F8FF", 0.93},
     {u"#A5C3D6", 0.6},
     {u"#00D2FF", 0.12}},
    {u"vaporwave",
     u"Vaporwave",
     {u"#FF71CE", 1.0},
     {u"#160B2E", 0.97},
     {u"#B967FF", 0.1},
     {u"#FFF0FC", 0.94},
     {u"#C9A0DC", 0.6},
     {u"#FF71CE", 0.14}},
    {u"obsidian",
     u"Obsidian",
     {u"#E8E8E8", 1.0},
     {u"#050505", 0.98},
     {u"#FFFFFF", 0.05},
     {u"#FAFAFA", 0.92},
     {u"#808080", 0.58},
     {u"#FFFFFF", 0.07}},
    {u"tokyo_drift",
     u"Tokyo Drift",
     {u"#FE4365", 1.0},
     {u"#0D0221", 0.97},
     {u"#0ABDC6", 0.1},
     {u"#EAFFFF", 0.95},
     {u"#0ABDC6", 0.55},
     {u"#FE4365", 0.16}},
    {u"arctic_haze",
     u"Arctic Haze",
     {u"#88C8F7", 1.0},
     {u"#101820", 0.96},
     {u"#C5E4FF", 0.07},
     {u"#E8F4FD", 0.93},
     {u"#7DA8C4", 0.58},
     {u"#88C8F7", 0.1}},
    {u"lava_flow",
     u"Lava Flow",
     {u"#FF4500", 1.0},
     {u"#1A0800", 0.97},
     {u"#FF6B35", 0.1},
     {u"#FFF0E6", 0.94},
     {u"#CC7A5C", 0.58},
     {u"#FF4500", 0.15}},
    {u"phantom",
     u"Phantom",
     {u"#7B68EE", 1.0},
     {u"#0C0C14", 0.97},
     {u"#9B89F5", 0.08},
     {u"#F0EEFF", 0.93},
     {u"#8E84B8", 0.58},
     {u"#7B68EE", 0.12}},
    {u"sakura",
     u"Sakura",
     {u"#FFB7C5", 1.0},
     {u"#1A0F14", 0.96},
     {u"#FFD6E0", 0.08},
     {u"#FFF5F7", 0.93},
     {u"#D4A0B0", 0.6},
     {u"#FFB7C5", 0.12}},
    {u"emerald_city",
     u"Emerald City",
     {u"#50C878", 1.0},
     {u"#071210", 0.97},
     {u"#50C878", 0.09},
     {u"#E8FFF0", 0.93},
     {u"#78B898", 0.6},
     {u"#50C878", 0.12}},
    {u"moondust",
     u"Moondust",
     {u"#C0C0D0", 1.0},
     {u"#0E0E16", 0.97},
     {u"#D0D0E0", 0.06},
     {u"#EEEEF5", 0.9},
     {u"#8888A0", 0.55},
     {u"#C0C0D0", 0.1}},
    {u"infrared",
     u"Infrared",
     {u"#FF1744", 1.0},
     {u"#120508", 0.97},
     {u"#FF1744", 0.08},
     {u"#FFE8EC", 0.94},
     {u"#B05060", 0.6},
     {u"#FF1744", 0.14}},
    {u"deep_space",
     u"Deep Space",
     {u"#6C63FF", 1.0},
     {u"#020215", 0.98},
     {u"#4840BB", 0.1},
     {u"#E6E4FF", 0.93},
     {u"#7A75B0", 0.58},
     {u"#6C63FF", 0.12}},
    {u"caramel",
     u"Caramel",
     {u"#D4A06A", 1.0},
     {u"#1A140E", 0.97},
     {u"#E8C89C", 0.08},
     {u"#FFF8EF", 0.93},
     {u"#B8A088", 0.58},
     {u"#D4A06A", 0.12}},
})};

ThemeColor color(const Hex &hex)
{
    return ThemeColor::fromHex(QString::fromUtf16(hex.digits), hex.opacity);
}

Theme theme(const Preset &preset)
{
    Theme theme;
    theme.id = QString::fromUtf16(preset.id);
    theme.name = QString::fromUtf16(preset.name);
    theme.accent = color(preset.accent);
    theme.surface = color(preset.surface);
    theme.surfaceElevated = color(preset.surfaceElevated);
    theme.textPrimary = color(preset.textPrimary);
    theme.textSecondary = color(preset.textSecondary);
    theme.separator = color(preset.separator);
    return theme;
}

/// Of a preset that is known to exist.
const Theme &builtIn(QStringView id)
{
    return *std::ranges::find(Theme::builtIns(), id, &Theme::id);
}

} // namespace

ThemeColor::ThemeColor(const QColor &color)
{
    if (!color.isValid()) {
        *this = {1, 1, 1, 1};
        return;
    }
    if (color.spec() == QColor::ExtendedRgb) {
        *this = {color.redF(), color.greenF(), color.blueF(), color.alphaF()};
        return;
    }
    // Sixteen bits divided in doubles: the float getters would make another number of a channel than
    // fromHex().
    constexpr double whole = 0xFFFF;
    const QRgba64 channels = color.rgba64();
    *this = {channels.red() / whole, channels.green() / whole, channels.blue() / whole,
             channels.alpha() / whole};
}

ThemeColor ThemeColor::fromHex(const QString &hex, double opacity)
{
    QString digits = hex.trimmed();
    if (digits.startsWith(QLatin1Char('#')))
        digits.remove(0, 1);
    const qulonglong number = digits.toULongLong(nullptr, 16);
    return {((number >> 16) & 0xFF) / 255.0, ((number >> 8) & 0xFF) / 255.0, (number & 0xFF) / 255.0,
            opacity};
}

QColor ThemeColor::toColor() const
{
    const auto channel = [](double value) { return static_cast<float>(std::clamp(value, 0.0, 1.0)); };
    return QColor::fromRgbF(channel(red), channel(green), channel(blue), channel(opacity));
}

size_t qHash(const ThemeColor &color, size_t seed)
{
    return qHashMulti(seed, color.red, color.green, color.blue, color.opacity);
}

QColor Theme::textOnAccent() const
{
    // WCAG 2.1: relative luminance, and the contrast of two luminances.
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    const QColor over = accent.toColor();
    const QColor under = surface.toColor();
    const auto seen = [&](double channel, double below) {
        return linear(below + (channel - below) * over.alphaF());
    };
    const double luminance = 0.2126 * seen(over.redF(), under.redF()) +
                             0.7152 * seen(over.greenF(), under.greenF()) +
                             0.0722 * seen(over.blueF(), under.blueF());
    constexpr double enough = 3;
    return (1 + 0.05) / (luminance + 0.05) >= enough ? Qt::white : Qt::black;
}

Theme Theme::mixed(const Theme &from, const Theme &to, double progress)
{
    Theme mixed = to;
    for (ThemeColor Theme::*field : {&Theme::accent, &Theme::surface, &Theme::surfaceElevated,
                                     &Theme::textPrimary, &Theme::textSecondary, &Theme::separator}) {
        const ThemeColor &a = from.*field;
        const ThemeColor &b = to.*field;
        mixed.*field = {std::lerp(a.red, b.red, progress), std::lerp(a.green, b.green, progress),
                        std::lerp(a.blue, b.blue, progress), std::lerp(a.opacity, b.opacity, progress)};
    }
    return mixed;
}

const QList<Theme> &Theme::builtIns()
{
    static const QList<Theme> themes = [] {
        QList<Theme> list;
        list.reserve(presets.size());
        std::ranges::transform(presets, std::back_inserter(list), theme);
        return list;
    }();
    return themes;
}

// clang-format off
const Theme &Theme::midnight() { return builtIn(u"midnight"); }
const Theme &Theme::graphite() { return builtIn(u"graphite"); }
const Theme &Theme::ocean() { return builtIn(u"ocean"); }
const Theme &Theme::sand() { return builtIn(u"sand"); }
const Theme &Theme::rose() { return builtIn(u"rose"); }
const Theme &Theme::forest() { return builtIn(u"forest"); }
const Theme &Theme::grape() { return builtIn(u"grape"); }
const Theme &Theme::slate() { return builtIn(u"slate"); }
const Theme &Theme::sunset() { return builtIn(u"sunset"); }
const Theme &Theme::aurora() { return builtIn(u"aurora"); }
const Theme &Theme::solar() { return builtIn(u"solar"); }
const Theme &Theme::cyber() { return builtIn(u"cyber"); }
const Theme &Theme::frosty() { return builtIn(u"frosty"); }
const Theme &Theme::vaporwave() { return builtIn(u"vaporwave"); }
const Theme &Theme::obsidian() { return builtIn(u"obsidian"); }
const Theme &Theme::tokyoDrift() { return builtIn(u"tokyo_drift"); }
const Theme &Theme::arcticHaze() { return builtIn(u"arctic_haze"); }
const Theme &Theme::lavaFlow() { return builtIn(u"lava_flow"); }
const Theme &Theme::phantom() { return builtIn(u"phantom"); }
const Theme &Theme::sakura() { return builtIn(u"sakura"); }
const Theme &Theme::emeraldCity() { return builtIn(u"emerald_city"); }
const Theme &Theme::moondust() { return builtIn(u"moondust"); }
const Theme &Theme::infrared() { return builtIn(u"infrared"); }
const Theme &Theme::deepSpace() { return builtIn(u"deep_space"); }
const Theme &Theme::caramel() { return builtIn(u"caramel"); }
// clang-format on

} // namespace brimlight
