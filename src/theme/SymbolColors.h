#pragma once

#include <QColor>
#include <QPainterPath>

#include <vector>

namespace brimlight {

/// A part of a symbol in its own colour.
struct SymbolPart
{
    QPainterPath shape;
    QColor color;
};

/// The parts of a weather symbol in the colours of what they show: suns and lightning yellow, moons pale,
/// rain blue, snow white. Clouds, and every symbol that shows no weather, take `color`.
std::vector<SymbolPart> weatherParts(const QString &name, const std::vector<QPainterPath> &outline,
                                     const QColor &color);

} // namespace brimlight
