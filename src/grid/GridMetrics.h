#pragma once

#include "grid/GridLayout.h"

#include <QRectF>

namespace brimlight {

/// Where tiles stand within the grid, in points from its upper left corner.
namespace gridMetrics {

inline constexpr double cellSize = 74;
inline constexpr double gap = 12;
inline constexpr double pitch = cellSize + gap;
inline constexpr double width = gridColumns * cellSize + (gridColumns - 1) * gap;
/// Each tile stands this far inside its rectangle on all sides.
inline constexpr double tileInset = 2;
inline constexpr double tileRadius = 22;
inline constexpr double highlightRadius = 15;
/// What a tile of one row gains while its back is showing.
inline constexpr double flippedExtraHeight = 110;

/// The extent of so many cells and the gaps between them.
constexpr double extent(int cells)
{
    return cells * cellSize + (cells - 1) * gap;
}

/// The whole rectangle of a size, without inset.
inline QSizeF rectangle(WidgetSize size)
{
    return {extent(columnSpan(size)), extent(rowSpan(size))};
}

/// The tile of a size at a cell.
inline QRectF tile(WidgetSize size, double col, double row)
{
    const QSizeF whole = rectangle(size);
    return {col * pitch + tileInset, row * pitch + tileInset, whole.width() - 2 * tileInset,
            whole.height() - 2 * tileInset};
}

} // namespace gridMetrics
} // namespace brimlight
