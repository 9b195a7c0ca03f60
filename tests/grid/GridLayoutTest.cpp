#include "grid/GridLayout.h"

#include <gtest/gtest.h>

#include <QSet>

namespace brimlight::test {

TEST(WidgetSizes, TextAndSpansInMenuOrder)
{
    struct Row
    {
        WidgetSize size;
        const char *text;
        int columns;
        int rows;
    };
    const Row rows[] = {{WidgetSize::small, "small", 1, 1},   {WidgetSize::tall, "tall", 1, 2},
                        {WidgetSize::wide, "wide", 2, 1},     {WidgetSize::large, "large", 2, 2},
                        {WidgetSize::banner, "banner", 3, 1}, {WidgetSize::wideTall, "wideTall", 3, 2},
                        {WidgetSize::huge, "huge", 3, 3}};
    ASSERT_EQ(std::size(rows), allWidgetSizes.size());
    for (size_t i = 0; i < allWidgetSizes.size(); ++i) {
        const auto &[size, text, columns, rowCount] = rows[i];
        SCOPED_TRACE(text);
        EXPECT_EQ(allWidgetSizes.at(i), size);
        EXPECT_EQ(rawValue(size), QLatin1String(text));
        EXPECT_EQ(widgetSizeFromRawValue(QLatin1String(text)), size);
        EXPECT_EQ(columnSpan(size), columns);
        EXPECT_EQ(rowSpan(size), rowCount);
    }
}

TEST(WidgetSizes, AnyOtherTextIsNoSize)
{
    for (const char *text : {"", "medium", "Small", "small ", "widetall"})
        EXPECT_FALSE(widgetSizeFromRawValue(QLatin1String(text))) << text;
}

TEST(GridLayouts, TheDefaultLayoutHasFourTilesInOneRow)
{
    struct Row
    {
        const char *kind;
        WidgetSize size;
        int order;
        int col;
    };
    const Row rows[] = {{"clock", WidgetSize::wide, 0, 0},
                        {"weather", WidgetSize::wide, 1, 2},
                        {"battery", WidgetSize::small, 2, 4},
                        {"temperature", WidgetSize::small, 3, 5}};
    const GridLayout layout = GridLayout::defaultLayout();
    EXPECT_EQ(layout.pageCount, 1);
    ASSERT_EQ(layout.instances.size(), std::ssize(rows));
    for (qsizetype i = 0; i < layout.instances.size(); ++i) {
        const WidgetInstance &instance = layout.instances[i];
        EXPECT_FALSE(instance.id.isNull());
        EXPECT_EQ(instance, (WidgetInstance{.id = instance.id,
                                            .kind = QLatin1String(rows[i].kind),
                                            .size = rows[i].size,
                                            .order = rows[i].order,
                                            .page = 0,
                                            .col = rows[i].col,
                                            .row = 0}));
    }
}

TEST(GridLayouts, TheDefaultLayoutIsMadeAfresh)
{
    EXPECT_NE(GridLayout::defaultLayout().instances[0].id, GridLayout::defaultLayout().instances[0].id);
}

TEST(GridLayouts, CellsMakeASet)
{
    const QSet<GridCell> cells{{0, 1}, {1, 0}, {0, 1}};
    EXPECT_EQ(cells.size(), 2);
    EXPECT_TRUE(cells.contains({1, 0}));
}

TEST(GridLayouts, TilesCollideWhenTheyShareACellOfAPage)
{
    struct Row
    {
        WidgetSize size;
        qint64 page;
        qint64 col;
        qint64 row;
        bool collides;
    };
    constexpr qint64 largest = std::numeric_limits<qint64>::max();
    const WidgetInstance tile{.size = WidgetSize::large, .col = 2, .row = 2};
    for (const Row &row : {Row{WidgetSize::small, 0, 2, 2, true}, Row{WidgetSize::small, 0, 3, 3, true},
                           Row{WidgetSize::small, 0, 4, 2, false}, Row{WidgetSize::small, 0, 2, 4, false},
                           Row{WidgetSize::small, 0, 1, 2, false}, Row{WidgetSize::wide, 0, 1, 2, true},
                           Row{WidgetSize::tall, 0, 2, 1, true}, Row{WidgetSize::small, 1, 2, 2, false},
                           Row{WidgetSize::huge, 0, -1, 0, false}, Row{WidgetSize::huge, 0, 0, -1, false},
                           Row{WidgetSize::huge, 0, largest, largest, false}}) {
        const WidgetInstance other{.size = row.size, .page = row.page, .col = row.col, .row = row.row};
        EXPECT_EQ(collide(tile, other), row.collides) << row.page << ' ' << row.col << ' ' << row.row;
        EXPECT_EQ(collide(other, tile), row.collides) << row.page << ' ' << row.col << ' ' << row.row;
    }
}

} // namespace brimlight::test
