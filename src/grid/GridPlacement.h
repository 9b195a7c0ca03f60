#pragma once

#include "grid/GridLayout.h"

#include <bitset>
#include <optional>

namespace brimlight {

/// The cells of one page, row by row.
using CellSet = std::bitset<size_t{gridColumns} * gridRows>;

/// The cells of the grid that a tile covers; what stands out of the grid counts for nothing.
CellSet cellsCovered(const GridCell &corner, WidgetSize size);

/// Whether a tile with this corner lies within the grid as a whole.
bool liesWithinGrid(const GridCell &corner, WidgetSize size);

/// The nearest corner with which the tile lies within the grid.
GridCell limitedToGrid(const GridCell &corner, WidgetSize size);

/// The highest, then leftmost corner at which a tile covers no occupied cell.
std::optional<GridCell> freeSlot(const CellSet &occupied, WidgetSize size);

/// Moves instances that lie outside of the grid or overlap others to the first cells free so far, and leaves
/// those that find none without a cell. True when something changed, which an instance that stays without one
/// counts as.
bool normalizePlacements(GridLayout &layout);

} // namespace brimlight
