#include "grid/GridDrag.h"

#include "fakes/DirectFileWriter.h"
#include "grid/GridBackdrop.h"
#include "grid/GridLayoutCodec.h"
#include "grid/GridStore.h"
#include "grid/GridViewState.h"
#include "grid/TileModel.h"
#include "grid/WidgetRegistry.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>

namespace brimlight::test {

class Drag : public testing::Test
{
protected:
    WidgetInstance &add(WidgetSize size, int col, int row, int page = 0)
    {
        layout.instances.append(
            {.kind = QStringLiteral("clock"), .size = size, .page = page, .col = col, .row = row});
        return layout.instances.last();
    }
    void load()
    {
        const QString path = dir.filePath(QStringLiteral("grid.json"));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(encodeLayout(layout));
        file.close();
        grid.emplace(SavedFile(path, files), registry);
        drag.emplace(*grid, state);
    }
    static QString text(const WidgetInstance &instance) { return instance.id.toString(QUuid::WithoutBraces); }
    static QPointF centre(int col, int row)
    {
        return {col * gridMetrics::pitch + 37, row * gridMetrics::pitch + 37};
    }

    QTemporaryDir dir;
    DirectFileWriter files;
    WidgetRegistry registry{{}};
    GridLayout layout{.instances = {}, .pageCount = 1};
    GridViewState state;
    std::optional<GridStore> grid;
    std::optional<GridDrag> drag;
};

TEST_F(Drag, TheCellUnderThePointerIsLimitedToTheGrid)
{
    load();
    EXPECT_EQ(drag->cell({0, 0}), (GridCell{0, 0}));
    EXPECT_EQ(drag->cell({85.9, 86}), (GridCell{0, 1}));
    EXPECT_EQ(drag->cell({-50, 5000}), (GridCell{0, 7}));
    EXPECT_EQ(drag->cell({5000, -1}), (GridCell{5, 0}));
}

TEST_F(Drag, ALargeTileOverTheLastColumnGoesToTheFourth)
{
    const QString id = text(add(WidgetSize::large, 0, 0));
    load();
    drag->begin(id, 0);
    EXPECT_EQ(drag->cell(centre(5, 7)), (GridCell{4, 6}));
}

TEST_F(Drag, TellsThePanelWhileItLasts)
{
    const QString id = text(add(WidgetSize::small, 0, 0));
    load();
    drag->begin(id, 0);
    EXPECT_TRUE(state.isDragging());
    drag->move(centre(2, 1));
    EXPECT_TRUE(drag->hasTarget());
    EXPECT_TRUE(drag->drop(centre(2, 1)));
    EXPECT_FALSE(state.isDragging());
    EXPECT_FALSE(drag->isActive());
    EXPECT_EQ(grid->layout().instances.first().col, 2);
    EXPECT_EQ(grid->layout().instances.first().row, 1);
}

TEST_F(Drag, ADropWithoutADragIsRefused)
{
    load();
    EXPECT_FALSE(drag->drop(centre(0, 0)));
}

TEST_F(Drag, TheHighlightCoversTheWholeRectangleAndSaysWhetherItFits)
{
    const QString id = text(add(WidgetSize::wide, 0, 0));
    add(WidgetSize::small, 3, 1);
    load();
    drag->begin(id, 0);
    drag->move(centre(2, 0));
    EXPECT_EQ(drag->highlight(), QRectF(172, 0, 160, 74));
    EXPECT_TRUE(drag->fits());
    drag->move(centre(2, 1));
    EXPECT_FALSE(drag->fits());
    EXPECT_FALSE(drag->drop(centre(2, 1))) << "the tile stays where it was";
    EXPECT_EQ(grid->layout().instances.first().col, 0);
}

TEST_F(Drag, SmallExcursionsKeepTheHighlight)
{
    const QString id = text(add(WidgetSize::small, 0, 0));
    load();
    drag->begin(id, 0);
    drag->move(centre(0, 0));
    drag->move({-4, 10});
    EXPECT_TRUE(drag->hasTarget());
    drag->move({-4.5, 10});
    EXPECT_FALSE(drag->hasTarget());
    drag->move(centre(1, 1));
    EXPECT_TRUE(drag->hasTarget());
    drag->move({10, 3 * 86 + 5});
    EXPECT_FALSE(drag->hasTarget()) << "the page shows three rows";
}

TEST_F(Drag, ADropFarOutsideIsLimitedAndMaySucceed)
{
    const QString id = text(add(WidgetSize::small, 0, 0));
    load();
    drag->begin(id, 0);
    drag->move({900, 40});
    EXPECT_FALSE(drag->hasTarget());
    EXPECT_TRUE(drag->drop({900, 40}));
    EXPECT_EQ(grid->layout().instances.first().col, 5);
}

TEST_F(Drag, AHugeTileAtTheBottomShowsEightRowsAndNoCellsBelowIt)
{
    add(WidgetSize::huge, 0, 5);
    load();
    EXPECT_EQ(grid->displayRows(0), 8);
    const QList<GridCell> cells = freeCells(*grid, 0, 8);
    EXPECT_EQ(cells.size(), 48 - 9);
    for (const GridCell &cell : cells)
        EXPECT_FALSE(cell.col < 3 && cell.row >= 5);
}

TEST_F(Drag, UnplacedInstancesLeaveTheirCellsFree)
{
    load();
    for (const GridCell &cell : {GridCell{-1, -1}, GridCell{0, -1}, GridCell{-1, 0}}) {
        layout.instances = {{.size = WidgetSize::huge, .col = cell.col, .row = cell.row}};
        grid->setLayout(layout);
        EXPECT_EQ(freeCells(*grid, 0, 8).size(), 48);
        EXPECT_EQ(TileModel(*grid).rowCount(), 0);
    }
}

TEST_F(Drag, WhatFindsNoRoomHasNoTile)
{
    for (int row = 0; row < 8; ++row) {
        add(WidgetSize::wideTall, 0, row % 4 * 2);
        add(WidgetSize::wideTall, 3, row % 4 * 2);
    }
    load();
    const TileModel tiles(*grid);
    EXPECT_EQ(tiles.rowCount(), 8) << "of sixteen, eight find room";
    EXPECT_TRUE(freeCells(*grid, 0, 8).isEmpty());
}

class Tiles : public Drag
{
};

TEST_F(Tiles, AChangeOfTheLayoutIsNeverAReset)
{
    const QUuid first = add(WidgetSize::small, 0, 0).id;
    const QUuid second = add(WidgetSize::small, 1, 0).id;
    load();
    TileModel tiles(*grid);
    const QSignalSpy resets(&tiles, &QAbstractItemModel::modelReset);
    const QSignalSpy changes(&tiles, &QAbstractItemModel::dataChanged);
    const QSignalSpy removals(&tiles, &QAbstractItemModel::rowsRemoved);
    EXPECT_TRUE(grid->place(second, 4, 2));
    EXPECT_EQ(changes.size(), 1);
    EXPECT_EQ(tiles.data(tiles.index(1), TileModel::frameRole), QRectF(346, 174, 70, 70));
    grid->remove(first);
    EXPECT_TRUE(tiles.data(tiles.index(1), TileModel::leavingRole).toBool());
    EXPECT_TRUE(removals.isEmpty()) << "before the view has seen it off";
    tiles.forget(second.toString(QUuid::WithoutBraces));
    EXPECT_TRUE(removals.isEmpty()) << "it stays";
    tiles.forget(first.toString(QUuid::WithoutBraces));
    EXPECT_EQ(removals.size(), 1);
    EXPECT_EQ(tiles.rowCount(), 1);
    EXPECT_EQ(tiles.data(tiles.index(0), TileModel::instanceIdRole), second.toString(QUuid::WithoutBraces));
    EXPECT_TRUE(resets.isEmpty());
}

TEST_F(Tiles, StandInTheOrderOfReadingAndMoveWithTheirPlace)
{
    const QString onSecondPage = text(add(WidgetSize::small, 0, 0, 1));
    const QString right = text(add(WidgetSize::small, 3, 0));
    const WidgetInstance leftmost = add(WidgetSize::small, 1, 0);
    const QString below = text(add(WidgetSize::small, 0, 1));
    const QString left = text(leftmost);
    load();
    TileModel tiles(*grid);
    const auto order = [&] {
        QStringList ids;
        for (int row = 0; row < tiles.rowCount(); ++row)
            ids.append(tiles.data(tiles.index(row), TileModel::instanceIdRole).toString());
        return ids;
    };
    EXPECT_EQ(order(), (QStringList{left, right, below, onSecondPage}));
    const QSignalSpy removals(&tiles, &QAbstractItemModel::rowsRemoved);
    EXPECT_TRUE(grid->place(leftmost.id, 5, 0));
    EXPECT_EQ(order(), (QStringList{right, left, below, onSecondPage}));
    EXPECT_TRUE(removals.isEmpty()) << "its view lives on";
    grid->remove(QUuid::fromString(right));
    EXPECT_EQ(order(), (QStringList{left, below, onSecondPage, right})) << "what leaves is last";
}

TEST_F(Tiles, OfTwoInstancesWithOneIdOneIsDrawn)
{
    const QUuid id = add(WidgetSize::small, 0, 0).id;
    add(WidgetSize::small, 1, 0).id = id;
    load();
    EXPECT_EQ(TileModel(*grid).rowCount(), 1);
}

TEST_F(Tiles, NegativePagesAreNeverShown)
{
    add(WidgetSize::small, 0, 0, -1);
    load();
    EXPECT_EQ(TileModel(*grid).rowCount(), 0);
}

TEST_F(Tiles, APageBeyondThoseThatCanBeTurnedToIsNotTakenForAnEarlierOne)
{
    constexpr qint64 wrapsToTheFirst = qint64(1) << 32;
    add(WidgetSize::small, 0, 0).page = wrapsToTheFirst;
    load();
    EXPECT_EQ(grid->layout().instances.first().page, wrapsToTheFirst);
    EXPECT_EQ(TileModel(*grid).rowCount(), 0);
}

TEST(GridViewState, OneTileAtMostIsFlippedAndOwnsThePanel)
{
    GridViewState state;
    const QString first = QUuid::createUuid().toString(QUuid::WithoutBraces);
    const QString second = QUuid::createUuid().toString(QUuid::WithoutBraces);
    state.toggleFlip(first);
    EXPECT_EQ(state.flippedWidget(), first);
    EXPECT_TRUE(state.optionsOpen());
    state.toggleFlip(second);
    EXPECT_EQ(state.flippedWidget(), second);
    EXPECT_TRUE(state.optionsOpen());
    state.toggleFlip(second);
    EXPECT_EQ(state.flippedWidget(), QString());
    EXPECT_FALSE(state.optionsOpen());
}

} // namespace brimlight::test
