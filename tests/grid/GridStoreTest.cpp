#include "grid/GridStore.h"

#include <gtest/gtest.h>

namespace brimlight::test {
namespace {

WidgetInstance tile(WidgetSize size, int row, int page = 0)
{
    WidgetInstance instance;
    instance.kind = QStringLiteral("clock");
    instance.size = size;
    instance.page = page;
    instance.col = 0;
    instance.row = row;
    return instance;
}

int rowsWith(const QList<WidgetInstance> &instances, int page = 0)
{
    GridStore store;
    store.setLayout({.instances = instances, .pageCount = 1});
    return store.displayRows(page);
}

} // namespace

TEST(GridStore, DisplayRowsLeaveAnEmptyRowAndStayBetweenThreeAndEight)
{
    EXPECT_EQ(rowsWith({}), 3);
    EXPECT_EQ(rowsWith({tile(WidgetSize::tall, 0)}), 3);
    EXPECT_EQ(rowsWith({tile(WidgetSize::large, 1)}), 4);
    EXPECT_EQ(rowsWith({tile(WidgetSize::small, 7)}), 8);
    EXPECT_EQ(rowsWith({tile(WidgetSize::huge, 5)}), 8);
}

TEST(GridStore, DisplayRowsCountOnlyPlacedTilesOfThePage)
{
    WidgetInstance unplaced = tile(WidgetSize::small, 6);
    unplaced.col = -1;
    EXPECT_EQ(rowsWith({unplaced, tile(WidgetSize::small, 6, 1)}), 3);
    EXPECT_EQ(rowsWith({tile(WidgetSize::small, 6, 1)}, 1), 8);
}

TEST(GridStore, TheDefaultLayoutHasFourTilesInOneRow)
{
    const GridLayout layout = GridLayout::defaultLayout();
    ASSERT_EQ(layout.instances.size(), 4);
    EXPECT_EQ(layout.pageCount, 1);
    int col = 0;
    for (const WidgetInstance &instance : layout.instances) {
        EXPECT_EQ(instance.col, col);
        EXPECT_EQ(instance.row, 0);
        EXPECT_FALSE(instance.settings);
        col += columnSpan(instance.size);
    }
    EXPECT_EQ(col, gridColumns);
    EXPECT_NE(GridLayout::defaultLayout().instances[0].id, layout.instances[0].id);
}

} // namespace brimlight::test
