#include "fakes/HandDriver.h"
#include "fakes/Scene.h"
#include "grid/GridDrag.h"
#include "grid/GridViewState.h"
#include "grid/TileModel.h"
#include "widgets/WidgetFixture.h"

#include <QQmlEngine>
#include <QQuickView>

namespace brimlight::test {
namespace {

using namespace std::chrono_literals;

/// A page of the grid in a window. Nobody knows the kinds, so the tiles show their placeholder.
class TileView : public WidgetTest
{
protected:
    WidgetInstance tile(WidgetSize size, int col, int row) const
    {
        return {.kind = QStringLiteral("gone"), .size = size, .col = col, .row = row};
    }
    void show(const QList<WidgetInstance> &instances)
    {
        grid.setLayout({.instances = instances});
        motion.installOn(*view.engine());
        view.engine()->addImportPath(QStringLiteral("qrc:/qt/qml"));
        view.setInitialProperties({{QStringLiteral("catalog"), QVariant::fromValue(&catalog)},
                                   {QStringLiteral("grid"), QVariant::fromValue(&grid)},
                                   {QStringLiteral("tiles"), QVariant::fromValue(&tiles)},
                                   {QStringLiteral("drag"), QVariant::fromValue(&drag)},
                                   {QStringLiteral("viewState"), QVariant::fromValue(&state)},
                                   {QStringLiteral("theme"), QVariant::fromValue(&theme)},
                                   {QStringLiteral("page"), 0},
                                   {QStringLiteral("open"), true}});
        view.setSource(QUrl(QStringLiteral("qrc:/qt/qml/Brimlight/Grid/WidgetGridView.qml")));
        view.show();
        settle();
    }
    void settle()
    {
        time.advanceBy(0ms);
        time.advanceBy(5s);
    }
    QQuickItem *tileOf(const WidgetInstance &instance) const
    {
        for (QQuickItem *item : scene.ofType("WidgetTile")) {
            if (item->property("instanceId") == instance.id.toString(QUuid::WithoutBraces))
                return item;
        }
        return nullptr;
    }
    void flip(const WidgetInstance &instance)
    {
        state.toggleFlip(instance.id.toString(QUuid::WithoutBraces));
    }

    HandDriver time;
    FakeAppearance appearance;
    Motion motion{&appearance};
    GridViewState state;
    TileModel tiles{grid};
    GridDrag drag{grid, state};
    WidgetCatalog catalog{environment};
    QQuickView view;
    Scene scene{view};
};

QRectF layoutOf(const QQuickItem &item)
{
    return {item.position(), item.size()};
}

} // namespace

TEST_F(TileView, AnUnplacedInstanceHasNoTile)
{
    const WidgetInstance placed = tile(WidgetSize::small, 0, 0);
    const WidgetInstance unplaced = tile(WidgetSize::small, -1, -1);
    show({placed, unplaced});
    EXPECT_TRUE(tileOf(placed));
    EXPECT_FALSE(tileOf(unplaced));
    EXPECT_EQ(scene.ofType("WidgetTile").size(), 1);
}

TEST_F(TileView, AFlippedTileOfOneRowGrowsOverWhatLiesBelowAndNothingElseMoves)
{
    const WidgetInstance wide = tile(WidgetSize::wide, 0, 0);
    const WidgetInstance below = tile(WidgetSize::large, 0, 1);
    const WidgetInstance beside = tile(WidgetSize::small, 2, 0);
    show({wide, below, beside});
    ASSERT_TRUE(tileOf(wide) && tileOf(below) && tileOf(beside));
    const QRectF front = layoutOf(*tileOf(wide));
    const QRectF belowBefore = layoutOf(*tileOf(below));
    const QRectF besideBefore = layoutOf(*tileOf(beside));
    const double gridBefore = view.rootObject()->implicitHeight();
    flip(wide);
    settle();
    const QRectF back = layoutOf(*tileOf(wide));
    EXPECT_EQ(back, front.adjusted(0, 0, 0, 110));
    EXPECT_TRUE(back.intersects(belowBefore));
    EXPECT_GT(tileOf(wide)->z(), tileOf(below)->z());
    EXPECT_EQ(layoutOf(*tileOf(below)), belowBefore);
    EXPECT_EQ(layoutOf(*tileOf(beside)), besideBefore);
    EXPECT_EQ(view.rootObject()->implicitHeight(), gridBefore);
    flip(wide);
    settle();
    EXPECT_EQ(layoutOf(*tileOf(wide)), front);
}

TEST_F(TileView, AFlippedTileOfMoreRowsKeepsItsHeight)
{
    const WidgetInstance tall = tile(WidgetSize::tall, 0, 0);
    show({tall});
    ASSERT_TRUE(tileOf(tall));
    const QRectF front = layoutOf(*tileOf(tall));
    flip(tall);
    settle();
    EXPECT_EQ(layoutOf(*tileOf(tall)), front);
}

TEST_F(TileView, ATileGrowsUnderThePointerAndTurnsOverInTime)
{
    const WidgetInstance wide = tile(WidgetSize::wide, 0, 0);
    show({wide});
    ASSERT_TRUE(tileOf(wide));
    scene.moveTo(Scene::middle(*tileOf(wide)));
    settle();
    EXPECT_DOUBLE_EQ(tileOf(wide)->scale(), 1.02);
    flip(wide);
    time.advanceBy(0ms);
    time.advanceBy(30ms);
    EXPECT_GT(tileOf(wide)->property("angle").toDouble(), 0);
    EXPECT_LT(tileOf(wide)->property("angle").toDouble(), 180);
    settle();
    EXPECT_EQ(tileOf(wide)->property("angle").toDouble(), 180);
}

TEST_F(TileView, UnderReducedMotionATileDoesNotGrowUnderThePointerAndTurnsOverAtOnce)
{
    appearance.set(true, false);
    const WidgetInstance wide = tile(WidgetSize::wide, 0, 0);
    show({wide});
    ASSERT_TRUE(tileOf(wide));
    scene.moveTo(Scene::middle(*tileOf(wide)));
    EXPECT_EQ(tileOf(wide)->scale(), 1);
    settle();
    EXPECT_EQ(tileOf(wide)->scale(), 1);
    flip(wide);
    EXPECT_EQ(tileOf(wide)->property("angle").toDouble(), 180);
    EXPECT_DOUBLE_EQ(tileOf(wide)->scale(), 0.98);
    flip(wide);
    EXPECT_EQ(tileOf(wide)->property("angle").toDouble(), 0);
    EXPECT_EQ(tileOf(wide)->scale(), 1);
    // The pointer is over it all the same.
    appearance.set(false, false);
    settle();
    EXPECT_DOUBLE_EQ(tileOf(wide)->scale(), 1.02);
}

} // namespace brimlight::test
