#pragma once

#include <QByteArrayView>
#include <QPainterPath>

#include <optional>
#include <vector>

namespace brimlight {

/// The side of the square that the pictures of symbols are drawn on.
inline constexpr double symbolGrid = 16;

/// The path data of an SVG (the "d" attribute) as a path; empty when the data are malformed.
std::optional<QPainterPath> svgPath(QByteArrayView data);

/// The filled shapes of an SVG picture, in the order of drawing, each with its own fill rule. Knows paths,
/// circles and upright rectangles, which is all that one-coloured icons consist of: a tenth of the memory of
/// a general renderer. Empty when the picture cannot be read.
std::vector<QPainterPath> symbolOutline(const QByteArray &svg);

} // namespace brimlight
