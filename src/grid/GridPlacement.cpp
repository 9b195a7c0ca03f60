#include "grid/GridPlacement.h"

#include <algorithm>
#include <tuple>
#include <vector>

namespace brimlight {
namespace {

size_t index(qint64 col, qint64 row)
{
    return static_cast<size_t>(row * gridColumns + col);
}

/// Page by page; there placed before unplaced, placed by row, column, order and unplaced by order.
auto repairRank(const WidgetInstance &instance)
{
    const bool placed = instance.isPlaced();
    return std::tuple(instance.page, !placed, placed ? instance.row : 0, placed ? instance.col : 0,
                      instance.order);
}

} // namespace

CellSet cellsCovered(const GridCell &corner, WidgetSize size)
{
    CellSet cells;
    for (qint64 r = 0; r < rowSpan(size); ++r) {
        for (qint64 c = 0; c < columnSpan(size); ++c) {
            // The corner is tested first: a stored one can be so large that the sum would overflow.
            if (corner.row < gridRows && corner.col < gridColumns && corner.row + r >= 0 &&
                corner.row + r < gridRows && corner.col + c >= 0 && corner.col + c < gridColumns)
                cells.set(index(corner.col + c, corner.row + r));
        }
    }
    return cells;
}

bool liesWithinGrid(const GridCell &corner, WidgetSize size)
{
    return corner == limitedToGrid(corner, size);
}

GridCell limitedToGrid(const GridCell &corner, WidgetSize size)
{
    return {std::clamp<qint64>(corner.col, 0, gridColumns - columnSpan(size)),
            std::clamp<qint64>(corner.row, 0, gridRows - rowSpan(size))};
}

std::optional<GridCell> freeSlot(const CellSet &occupied, WidgetSize size)
{
    const CellSet atOrigin = cellsCovered({}, size);
    for (qint64 row = 0; row <= gridRows - rowSpan(size); ++row) {
        for (qint64 col = 0; col <= gridColumns - columnSpan(size); ++col) {
            if ((occupied & atOrigin << index(col, row)).none())
                return GridCell{col, row};
        }
    }
    return std::nullopt;
}

bool normalizePlacements(GridLayout &layout)
{
    std::vector<WidgetInstance *> ranked;
    ranked.reserve(static_cast<size_t>(layout.instances.size()));
    for (WidgetInstance &instance : layout.instances)
        ranked.push_back(&instance);
    std::stable_sort(ranked.begin(), ranked.end(), [](const WidgetInstance *a, const WidgetInstance *b) {
        return repairRank(*a) < repairRank(*b);
    });
    bool changed = false;
    CellSet occupied;
    const WidgetInstance *previous = nullptr;
    for (WidgetInstance *instance : ranked) {
        if (previous && previous->page != instance->page)
            occupied.reset();
        previous = instance;
        const GridCell corner{instance->col, instance->row};
        const CellSet cells = cellsCovered(corner, instance->size);
        if (liesWithinGrid(corner, instance->size) && (cells & occupied).none()) {
            occupied |= cells;
            continue;
        }
        // Only cells claimed so far count: a moved tile may take the place of a later one, which then moves.
        const GridCell found = freeSlot(occupied, instance->size).value_or(GridCell{-1, -1});
        instance->col = found.col;
        instance->row = found.row;
        if (instance->isPlaced())
            occupied |= cellsCovered(found, instance->size);
        changed = true;
    }
    return changed;
}

} // namespace brimlight
