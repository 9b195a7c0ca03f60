#pragma once

#include <QColor>

namespace brimlight::signalColors {

/// What is well, what asks for attention and what asks for action, the same in every theme.
inline const QColor green(48, 209, 88);
inline const QColor orange(255, 159, 10);
inline const QColor red(255, 69, 58);

/// `calm` below `first`, orange below `second`, else red.
inline QColor byLevel(double value, double first, double second, const QColor &calm)
{
    return value < first ? calm : value < second ? orange : red;
}

} // namespace brimlight::signalColors
