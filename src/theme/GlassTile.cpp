#include "theme/GlassTile.h"

#include "theme/GlassDither.h"
#include "theme/SoftShadow.h"
#include "theme/Superellipse.h"

#include <QLinearGradient>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace brimlight::glass {
namespace {

QColor withOpacity(QColor color, double factor)
{
    color.setAlphaF(std::clamp(color.alphaF() * static_cast<float>(factor), 0.0f, 1.0f));
    return color;
}

QColor white(double opacity)
{
    return QColor::fromRgbF(1, 1, 1, static_cast<float>(opacity));
}

QLinearGradient diagonal(QSizeF size, const QColor &first, const QColor &middle)
{
    QLinearGradient gradient(QPointF(), QPointF(size.width(), size.height()));
    gradient.setColorAt(0, first);
    gradient.setColorAt(0.5, middle);
    gradient.setColorAt(1, Qt::transparent);
    return gradient;
}

/// The five layers, painted with 16 bits per channel.
QImage paintLayers(const TileLook &look, QSize pixels)
{
    const TileStyle style = tileStyle(look.focused);
    const double ratio = look.devicePixelRatio;
    const QSizeF size = QSizeF(pixels) / ratio;
    const QRectF rect(QPointF(), size);
    const QPainterPath shape = superellipsePath(rect, look.radius);
    const QColor accent = look.theme.accentColor();

    QImage image(pixels, QImage::Format_RGBA64_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.scale(ratio, ratio);
    // The layers fill the whole rectangle; the shape is cut out once, so that its edge does not add up.
    if (look.solid) {
        ThemeColor ground = look.theme.surface;
        ground.opacity = 1;
        painter.fillRect(rect, ground.toColor());
    }
    painter.fillRect(rect, QColor::fromRgbF(0, 0, 0, tileVeil(look.strength, look.reduceTransparency)));
    painter.fillRect(rect, look.theme.surfaceElevatedColor());
    painter.fillRect(rect,
                     diagonal(size, white(style.gradientWhite), withOpacity(accent, style.gradientAccent)));
    if (style.overlayAccent > 0) {
        painter.setCompositionMode(QPainter::CompositionMode_Overlay);
        painter.fillRect(rect, withOpacity(accent, style.overlayAccent));
        painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    }
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath rim = shape;
    const double width = style.strokeWidth;
    rim.addPath(superellipsePath(rect.adjusted(width, width, -width, -width), look.radius - width));
    ThemeColor separator = look.theme.separator;
    // The rim's opacity takes the place of the colour's own.
    separator.opacity = style.strokeSeparator;
    painter.fillPath(rim, diagonal(size, white(style.strokeWhite), separator.toColor()));

    QImage mask(pixels, QImage::Format_RGBA64_Premultiplied);
    mask.fill(Qt::transparent);
    {
        QPainter cutter(&mask);
        cutter.setRenderHint(QPainter::Antialiasing);
        cutter.scale(ratio, ratio);
        cutter.fillPath(shape, Qt::black);
    }
    painter.resetTransform();
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.drawImage(0, 0, mask);
    return image;
}

/// To 8 bits per channel.
QImage reduced(const QImage &deep)
{
    QImage image(deep.size(), QImage::Format_ARGB32_Premultiplied);
    constexpr double full = 65535;
    for (int y = 0; y < deep.height(); ++y) {
        const auto *from = reinterpret_cast<const QRgba64 *>(deep.constScanLine(y));
        auto *to = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < deep.width(); ++x)
            to[x] = dithered(
                {from[x].red() / full, from[x].green() / full, from[x].blue() / full, from[x].alpha() / full},
                x, y);
    }
    return image;
}

} // namespace

int tileMargin(const TileLook &look)
{
    if (!look.shadows)
        return 0;
    const TileStyle style = tileStyle(look.focused);
    int margin = 0;
    for (const Shadow &shadow : {style.accentShadow, style.blackShadow})
        margin = std::max(margin, softshadow::reach(shadow.radius * look.devicePixelRatio) +
                                      static_cast<int>(std::ceil(shadow.y * look.devicePixelRatio)));
    return margin;
}

QImage paintTile(const TileLook &look, QSize pixels)
{
    QImage layers = reduced(paintLayers(look, pixels));
    if (!look.shadows)
        return layers;
    const TileStyle style = tileStyle(look.focused);
    const double ratio = look.devicePixelRatio;
    const int margin = tileMargin(look);
    QImage image(pixels + QSize(2 * margin, 2 * margin), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    const auto cast = [&](const Shadow &shadow, const QColor &color) {
        const softshadow::Caster caster{.cornerRadius = look.radius * ratio,
                                        .blurRadius = shadow.radius * ratio};
        const int offset = margin - softshadow::reach(caster.blurRadius);
        painter.drawImage(offset, offset + static_cast<int>(std::lround(shadow.y * ratio)),
                          softshadow::image(caster, pixels, withOpacity(color, shadow.opacity)));
    };
    cast(style.accentShadow, look.theme.accentColor());
    cast(style.blackShadow, Qt::black);
    // The shadows lie around the glass, not in it.
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    painter.fillPath(superellipsePath(QRectF(QPointF(margin, margin), QSizeF(pixels)), look.radius * ratio),
                     Qt::black);
    painter.setCompositionMode(QPainter::CompositionMode_Plus);
    painter.drawImage(margin, margin, layers);
    return image;
}

} // namespace brimlight::glass
