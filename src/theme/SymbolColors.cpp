#include "theme/SymbolColors.h"

namespace brimlight {
namespace {

constexpr QRgb sunColor = qRgb(255, 214, 10);
constexpr QRgb moonColor = qRgb(255, 233, 168);
constexpr QRgb rainColor = qRgb(100, 210, 255);
constexpr QRgb snowColor = qRgb(255, 255, 255);

/// What falls out of a cloud is narrow, what shines behind it less so; only clouds are wider than this on the
/// grid.
constexpr double cloudWidth = 10;
/// Drops are lower than lightning.
constexpr double lightningHeight = 4;

/// The closed outlines of a shape, one path each, with its fill rule.
std::vector<QPainterPath> subpaths(const QPainterPath &shape)
{
    std::vector<QPainterPath> result;
    for (int i = 0; i < shape.elementCount(); ++i) {
        const QPainterPath::Element element = shape.elementAt(i);
        if (element.isMoveTo()) {
            result.emplace_back();
            result.back().setFillRule(shape.fillRule());
            result.back().moveTo(element);
        } else if (element.isLineTo()) {
            result.back().lineTo(element);
        } else {
            result.back().cubicTo(element, shape.elementAt(i + 1), shape.elementAt(i + 2));
            i += 2;
        }
    }
    return result;
}

} // namespace

std::vector<SymbolPart> weatherParts(const QString &name, const std::vector<QPainterPath> &outline,
                                     const QColor &color)
{
    const auto shows = [&name](QLatin1StringView what) { return name.split(u'.').contains(what); };
    const bool cloud = shows(QLatin1StringView("cloud"));
    const bool lightning = shows(QLatin1StringView("bolt"));
    QColor extra = color;
    if (shows(QLatin1StringView("sun")) || shows(QLatin1StringView("sunrise")) ||
        shows(QLatin1StringView("sunset")))
        extra = sunColor;
    else if (shows(QLatin1StringView("moon")))
        extra = moonColor;
    else if (cloud && shows(QLatin1StringView("snow")))
        extra = snowColor;
    else if (cloud && (lightning || shows(QLatin1StringView("rain")) ||
                       shows(QLatin1StringView("heavyrain")) || shows(QLatin1StringView("drizzle"))))
        extra = rainColor;

    std::vector<SymbolPart> parts;
    for (const QPainterPath &shape : outline) {
        if (!cloud) {
            parts.push_back({shape, extra});
            continue;
        }
        for (const QPainterPath &subpath : subpaths(shape)) {
            const QRectF box = subpath.boundingRect();
            if (box.width() > cloudWidth)
                parts.push_back({subpath, color});
            else if (lightning && box.height() > lightningHeight)
                parts.push_back({subpath, QColor(sunColor)});
            else
                parts.push_back({subpath, extra});
        }
    }
    return parts;
}

} // namespace brimlight
