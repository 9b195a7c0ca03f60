#pragma once

#include <QColor>

namespace brimlight {

/// The color at a share of its own opacity, 0 to 1.
inline QColor faded(QColor color, double opacity)
{
    color.setAlphaF(static_cast<float>(color.alphaF() * opacity));
    return color;
}

} // namespace brimlight
