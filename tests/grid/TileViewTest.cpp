#include "fakes/HandDriver.h"
#include "fakes/Scene.h"
#include "grid/GridDrag.h"
#include "grid/GridViewState.h"
#include "grid/TileModel.h"
#include "theme/GlassTileBackground.h"
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
    void setOpen(bool open) { view.rootObject()->setProperty("open", open); }
    void advance(std::chrono::milliseconds duration)
    {
        time.advanceBy(0ms);
        time.advanceBy(duration);
    }
    double entranceOf(const WidgetInstance &instance) const
    {
        return tileOf(instance) ? tileOf(instance)->property("entrance").toDouble() : 0;
    }
    QQuickItem *highlight() const
    {
        const QList<QQuickItem *> found = scene.ofType("DropHighlight");
        return found.isEmpty() ? nullptr : found.first();
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

TEST_F(TileView, APageFillsInTheOrderOfReading)
{
    const WidgetInstance first = tile(WidgetSize::small, 0, 0);
    const WidgetInstance last = tile(WidgetSize::small, 5, 0);
    show({first, last});
    setOpen(false);
    settle();
    EXPECT_EQ(entranceOf(first), 0);
    setOpen(true);
    advance(50ms);
    EXPECT_GT(entranceOf(first), 0);
    EXPECT_EQ(entranceOf(last), 0);
    time.advanceBy(120ms);
    EXPECT_GT(entranceOf(last), 0);
    EXPECT_LT(entranceOf(last), 1);
    settle();
    EXPECT_EQ(entranceOf(first), 1);
    EXPECT_EQ(entranceOf(last), 1);
}

TEST_F(TileView, TilesThatGoDoNotWaitForEachOther)
{
    const WidgetInstance first = tile(WidgetSize::small, 0, 0);
    const WidgetInstance last = tile(WidgetSize::small, 5, 2);
    show({first, last});
    setOpen(false);
    advance(60ms);
    EXPECT_LT(entranceOf(last), 1);
    EXPECT_EQ(entranceOf(last), entranceOf(first));
    time.advanceBy(120ms);
    EXPECT_EQ(entranceOf(last), 0) << "an ease-out of 0.18 s";
}

TEST_F(TileView, ATileThatIsAddedToThePageComesIn)
{
    const WidgetInstance first = tile(WidgetSize::small, 0, 0);
    const WidgetInstance added = tile(WidgetSize::small, 1, 0);
    show({first});
    grid.setLayout({.instances = {first, added}});
    EXPECT_EQ(entranceOf(added), 0);
    advance(100ms);
    EXPECT_GT(entranceOf(added), 0);
    EXPECT_LT(entranceOf(added), 1);
    EXPECT_LT(tileOf(added)->scale(), 1);
    EXPECT_EQ(entranceOf(first), 1);
    settle();
    EXPECT_EQ(entranceOf(added), 1);
}

TEST_F(TileView, ThePageThatFadesAsAWholeKeepsItsTilesUntilItHasGone)
{
    const WidgetInstance only = tile(WidgetSize::small, 0, 0);
    show({only});
    view.rootObject()->setProperty("fading", true);
    setOpen(false);
    settle();
    EXPECT_EQ(entranceOf(only), 1);
    EXPECT_FALSE(tileOf(only)->isEnabled());
    view.rootObject()->setProperty("fading", false);
    settle();
    EXPECT_EQ(entranceOf(only), 0);
}

TEST_F(TileView, TheGlassFadesBetweenItsLooksUnderThePointer)
{
    const WidgetInstance wide = tile(WidgetSize::wide, 0, 0);
    show({wide});
    ASSERT_TRUE(tileOf(wide));
    const auto *glass = tileOf(wide)->findChild<GlassTileBackground *>();
    ASSERT_TRUE(glass);
    EXPECT_EQ(glass->focusLevel(), 0);
    scene.moveTo({400, 200});
    scene.moveTo(Scene::middle(*tileOf(wide)));
    advance(40ms);
    EXPECT_GT(glass->focusLevel(), 0);
    EXPECT_LT(glass->focusLevel(), 1);
    settle();
    EXPECT_EQ(glass->focusLevel(), 1);
}

TEST_F(TileView, TheHighlightAppearsAtItsTargetAndThenGlides)
{
    const WidgetInstance dragged = tile(WidgetSize::small, 0, 0);
    show({dragged});
    drag.begin(dragged.id.toString(QUuid::WithoutBraces), 0);
    EXPECT_FALSE(highlight());
    drag.move({3 * gridMetrics::pitch + 5, 2 * gridMetrics::pitch + 5});
    ASSERT_TRUE(highlight());
    EXPECT_EQ(highlight()->position(), QPointF(3 * gridMetrics::pitch, 2 * gridMetrics::pitch));
    drag.move({4 * gridMetrics::pitch + 5, 2 * gridMetrics::pitch + 5});
    advance(40ms);
    EXPECT_GT(highlight()->x(), 3 * gridMetrics::pitch);
    EXPECT_LT(highlight()->x(), 4 * gridMetrics::pitch);
    drag.move({-50, -50});
    EXPECT_FALSE(highlight());
    drag.move({5, gridMetrics::pitch + 5});
    ASSERT_TRUE(highlight());
    EXPECT_EQ(highlight()->position(), QPointF(0, gridMetrics::pitch));
}

TEST_F(TileView, ATileThatShowsItsBackCanBeDragged)
{
    const WidgetInstance wide = tile(WidgetSize::wide, 0, 0);
    show({wide});
    flip(wide);
    settle();
    const QPoint from = Scene::middle(*tileOf(wide)).toPoint();
    QTest::mousePress(&view, Qt::LeftButton, {}, from);
    for (int step = 1; step <= 4; ++step)
        QTest::mouseMove(&view, from + QPoint(10 * step, 0));
    EXPECT_TRUE(drag.isActive());
    const QPoint to(3 * 86 + 20, 20);
    QTest::mouseMove(&view, to);
    QTest::mouseRelease(&view, Qt::LeftButton, {}, to);
    EXPECT_FALSE(drag.isActive());
    EXPECT_EQ(grid.instance(wide.id)->col, 3);
    EXPECT_EQ(state.flippedWidgetID(), wide.id);
}

TEST_F(TileView, TellsHowFarATileThatTurnsOverReaches)
{
    const WidgetInstance bottom = tile(WidgetSize::small, 0, 7);
    show({bottom});
    const auto reach = [&] { return view.rootObject()->property("turnedBottom").toDouble(); };
    EXPECT_EQ(reach(), 0);
    flip(bottom);
    settle();
    EXPECT_EQ(reach(), 7 * 86 + 2 + 70 + 110);
    EXPECT_GT(reach(), view.rootObject()->implicitHeight());
    flip(bottom);
    settle();
    EXPECT_LT(reach(), view.rootObject()->implicitHeight());
}

} // namespace brimlight::test
