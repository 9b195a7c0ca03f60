// Any bytes at all as a theme file: what decodes is written and read the same, and whatever numbers it holds,
// colours that are drawn and strengths of the glass stay within their ranges.

#include "theme/Glass.h"
#include "theme/ThemeFile.h"

#include <cmath>
#include <cstdlib>

namespace brimlight {
namespace {

void require(bool holds)
{
    if (!holds)
        std::abort();
}

/// Written so that a number that is none fails as well.
bool isShare(double value)
{
    return value >= 0 && value <= 1;
}

void requireInRange(const QColor &color)
{
    require(color.isValid());
    require(isShare(color.redF()) && isShare(color.greenF()) && isShare(color.blueF()) &&
            isShare(color.alphaF()));
}

void requireSameAfterReading(const Theme &theme)
{
    const auto written = encodeTheme(theme);
    require(written.has_value());
    require(decodeTheme(*written) == theme);
}

/// A stored strength can be any number, as a stored channel can.
void requireKnownGlass(const Theme &theme, double strength)
{
    using namespace glass;
    const Material known = material(strength);
    require(known == Material::hudWindow || known == Material::menu || known == Material::popover);
    require(paneVeil(strength) >= 0.2 && paneVeil(strength) <= 1);
    require(tileVeil(strength, false) >= 0.58 - 0.26 && tileVeil(strength, false) <= 0.58);
    for (const Backdrop backdrop : {Backdrop::opaque, Backdrop::translucent, Backdrop::blurred}) {
        const PaneLook look{.theme = theme, .strength = strength, .tinted = true, .backdrop = backdrop};
        for (const double depth : {0.0, lightDepth}) {
            const Layer pane = paneColor(look, depth);
            require(std::isfinite(pane.red) && std::isfinite(pane.green) && std::isfinite(pane.blue));
            requireInRange(pane.toColor());
        }
    }
}

} // namespace
} // namespace brimlight

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    using namespace brimlight;
    const auto theme =
        decodeTheme(QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)));
    if (!theme)
        return 0;
    requireSameAfterReading(*theme);
    for (const QColor &color :
         {theme->accentColor(), theme->surfaceColor(), theme->surfaceElevatedColor(),
          theme->textPrimaryColor(), theme->textSecondaryColor(), theme->separatorColor()})
        requireInRange(color);
    for (const double strength : {theme->accent.red, theme->surface.opacity})
        requireKnownGlass(*theme, strength);
    return 0;
}
