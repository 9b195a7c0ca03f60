#include "grid/GridPlacement.h"

#include <gtest/gtest.h>

#include <limits>

namespace brimlight::test {
namespace {

constexpr qint64 largest = std::numeric_limits<qint64>::max();
constexpr qint64 smallest = std::numeric_limits<qint64>::min();

WidgetInstance tile(WidgetSize size, qint64 col, qint64 row, qint64 order = 0, qint64 page = 0)
{
    return {.size = size, .order = order, .page = page, .col = col, .row = row};
}

GridCell corner(const WidgetInstance &instance)
{
    return {instance.col, instance.row};
}

/// The corners after a repair, in the order of the instances.
QList<GridCell> repaired(const QList<WidgetInstance> &instances)
{
    GridLayout layout{.instances = instances};
    normalizePlacements(layout);
    QList<GridCell> corners;
    for (const WidgetInstance &instance : layout.instances)
        corners.append(corner(instance));
    return corners;
}

} // namespace

TEST(FreeSlot, TheHighestRowThenTheLeftmostColumnWins)
{
    CellSet occupied;
    EXPECT_EQ(freeSlot(occupied, WidgetSize::huge), (GridCell{0, 0}));
    occupied = cellsCovered({0, 0}, WidgetSize::huge);
    EXPECT_EQ(freeSlot(occupied, WidgetSize::huge), (GridCell{3, 0}));
    EXPECT_EQ(freeSlot(occupied, WidgetSize::small), (GridCell{3, 0}));
    occupied |= cellsCovered({3, 0}, WidgetSize::small);
    EXPECT_EQ(freeSlot(occupied, WidgetSize::wide), (GridCell{4, 0}));
    EXPECT_EQ(freeSlot(occupied, WidgetSize::banner), (GridCell{3, 1}));
    EXPECT_EQ(freeSlot(occupied, WidgetSize::huge), (GridCell{3, 1}));
}

TEST(FreeSlot, TheLastCellIsFoundAndAFullPageHasNone)
{
    CellSet occupied;
    occupied.set();
    occupied.reset(occupied.size() - 1);
    EXPECT_EQ(freeSlot(occupied, WidgetSize::small), (GridCell{5, 7}));
    EXPECT_FALSE(freeSlot(occupied, WidgetSize::wide));
    occupied.set();
    for (const WidgetSize size : allWidgetSizes)
        EXPECT_FALSE(freeSlot(occupied, size));
}

TEST(FreeSlot, ATileNeverWrapsAroundTheRightEdge)
{
    CellSet occupied;
    occupied.set();
    occupied.reset(5).reset(6); // the end of row 0 and the start of row 1
    EXPECT_FALSE(freeSlot(occupied, WidgetSize::wide));
}

TEST(CellsCovered, OnlyWhatLiesWithinTheGridCounts)
{
    EXPECT_EQ(cellsCovered({4, 6}, WidgetSize::huge).count(), 4U);
    EXPECT_EQ(cellsCovered({-1, 0}, WidgetSize::wide).count(), 1U);
    EXPECT_EQ(cellsCovered({largest, largest}, WidgetSize::huge).count(), 0U);
    EXPECT_EQ(cellsCovered({smallest, smallest}, WidgetSize::huge).count(), 0U);
}

TEST(Repair, AValidLayoutIsLeftAlone)
{
    GridLayout layout = GridLayout::defaultLayout();
    const GridLayout before = layout;
    EXPECT_FALSE(normalizePlacements(layout));
    EXPECT_EQ(layout, before);
}

TEST(Repair, OfTwoTilesOnOneCellTheLowerOrderKeepsIt)
{
    EXPECT_EQ(repaired({tile(WidgetSize::small, 2, 2, 9), tile(WidgetSize::small, 2, 2, 4)}),
              (QList<GridCell>{{0, 0}, {2, 2}}));
}

TEST(Repair, TilesEqualInAllKeepTheirOrderInTheFile)
{
    EXPECT_EQ(repaired({tile(WidgetSize::small, 2, 2), tile(WidgetSize::small, 2, 2)}),
              (QList<GridCell>{{2, 2}, {0, 0}}));
}

TEST(Repair, ATileThatStandsOutIsMovedToTheFirstFreeSlotNotClamped)
{
    struct Row
    {
        WidgetSize size;
        qint64 col;
        qint64 row;
    };
    for (const Row &row :
         {Row{WidgetSize::tall, 3, 7}, Row{WidgetSize::wide, 5, 3}, Row{WidgetSize::small, 6, 0},
          Row{WidgetSize::small, 0, 8}, Row{WidgetSize::huge, largest, largest},
          Row{WidgetSize::huge, largest, 0}, Row{WidgetSize::huge, 0, largest}}) {
        EXPECT_EQ(repaired({tile(row.size, row.col, row.row)}), (QList<GridCell>{{0, 0}}))
            << row.col << ' ' << row.row;
    }
}

TEST(Repair, ANegativeCoordinateIsUnplaced)
{
    // Unplaced ones go last, by order, however small their rows are.
    EXPECT_EQ(repaired({tile(WidgetSize::small, smallest, 0, 2), tile(WidgetSize::small, 0, -5, 1),
                        tile(WidgetSize::small, 0, 0, 9)}),
              (QList<GridCell>{{2, 0}, {1, 0}, {0, 0}}));
}

TEST(Repair, AFileFromBeforeTheCellsFillsThePageInItsOrder)
{
    EXPECT_EQ(repaired({tile(WidgetSize::large, -1, -1), tile(WidgetSize::banner, -1, -1),
                        tile(WidgetSize::small, -1, -1), tile(WidgetSize::banner, -1, -1)}),
              (QList<GridCell>{{0, 0}, {2, 0}, {5, 0}, {2, 1}}));
}

TEST(Repair, AMovedTileMayTakeTheCellOfALaterOne)
{
    // Sorted: the large tile, the one that overlaps it, the last. The second takes (2, 0) before the last is
    // asked.
    EXPECT_EQ(repaired({tile(WidgetSize::large, 0, 0, 0), tile(WidgetSize::small, 1, 0, 1),
                        tile(WidgetSize::small, 2, 0, 2)}),
              (QList<GridCell>{{0, 0}, {2, 0}, {3, 0}}));
}

TEST(Repair, ATileThatFindsNoPlaceLosesItsCellAndCountsAsChangedEachTime)
{
    GridLayout layout;
    for (int n = 0; n < gridColumns * gridRows; ++n)
        layout.instances.append(tile(WidgetSize::small, n % gridColumns, n / gridColumns));
    layout.instances.append(tile(WidgetSize::small, 0, 0, 99));
    EXPECT_TRUE(normalizePlacements(layout));
    // Each tile takes the cell of the next; the last one is left without.
    EXPECT_EQ(corner(layout.instances.last()), (GridCell{1, 0}));
    EXPECT_EQ(corner(layout.instances[gridColumns * gridRows - 1]), (GridCell{-1, -1}));
    const GridLayout after = layout;
    EXPECT_TRUE(normalizePlacements(layout));
    EXPECT_EQ(layout, after);
}

TEST(Repair, PagesAreIndependentAndNegativeOnesAreRepairedToo)
{
    EXPECT_EQ(repaired({tile(WidgetSize::small, 1, 1, 0, 0), tile(WidgetSize::small, 1, 1, 1, largest),
                        tile(WidgetSize::small, 1, 1, 2, -1), tile(WidgetSize::small, 1, 1, 3, -1),
                        tile(WidgetSize::small, 9, 9, 4, smallest)}),
              (QList<GridCell>{{1, 1}, {1, 1}, {1, 1}, {0, 0}, {0, 0}}));
}

TEST(Repair, ThousandsOfInstancesOnOnePageFillItWithoutOverlap)
{
    GridLayout layout;
    for (int n = 0; n < 5000; ++n)
        layout.instances.append(tile(allWidgetSizes.at(static_cast<size_t>(n) % allWidgetSizes.size()),
                                     n % 7 - 1, n % 9 - 1, 5000 - n));
    EXPECT_TRUE(normalizePlacements(layout));
    CellSet occupied;
    for (const WidgetInstance &instance : layout.instances) {
        if (!instance.isPlaced())
            continue;
        const CellSet cells = cellsCovered(corner(instance), instance.size);
        EXPECT_TRUE(liesWithinGrid(corner(instance), instance.size));
        EXPECT_TRUE((cells & occupied).none());
        occupied |= cells;
    }
    EXPECT_TRUE(occupied.all());
}

} // namespace brimlight::test
