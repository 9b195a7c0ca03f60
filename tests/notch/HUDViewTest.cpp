#include "notch/PanelViewFixture.h"

namespace brimlight::test {

class HUDView : public PanelView
{
protected:
    void start()
    {
        PanelView::start();
        audio.appear({.volume = 0.4});
        settle();
    }
    void setVolume(double volume)
    {
        audio.setVolume(volume);
        scheduler.runPosted();
        time.advanceBy(0ms);
    }
    OffscreenSurface &onScreen() { return static_cast<OffscreenSurface &>(window.surface()); }
    QQuickItem *view()
    {
        const QList<QQuickItem *> found = scene.ofType("NotchHUDView");
        return found.isEmpty() ? nullptr : found.first();
    }
    static constexpr Rect strip{620, 868, 200, 32};
    static constexpr Rect grown{620, 832, 200, 68};
};

TEST_F(HUDView, IsNotMadeBeforeItIsFirstShown)
{
    start();
    EXPECT_FALSE(view());
    EXPECT_EQ(onScreen().extent(), strip);
    EXPECT_TRUE(onScreen().outlines.empty());
}

TEST_F(HUDView, StandsUnderTheStripAndTakesNoPointer)
{
    start();
    setVolume(0.5);
    settle();
    ASSERT_TRUE(view());
    EXPECT_EQ(Scene::frameOf(*view()), QRectF(16, 38, 168, 24));
    EXPECT_EQ(view()->opacity(), 1);
    EXPECT_EQ(onScreen().extent(), grown);
    ASSERT_EQ(onScreen().outlines.size(), 1u);
    EXPECT_EQ(
        onScreen().outlines.front(),
        (SurfaceOutline{
            .frame = {636, 838, 168, 24}, .bottomRadius = 11.7, .topRadius = 11.7, .takesPointer = false}));
    EXPECT_EQ(panel().frame(), strip);
    EXPECT_TRUE(scene.texts().contains(QStringLiteral("50%")));
}

TEST_F(HUDView, ComesFromTheTopEdgeAndFadesIn)
{
    start();
    setVolume(0.5);
    time.advanceBy(50ms);
    ASSERT_TRUE(view());
    EXPECT_GT(view()->opacity(), 0);
    EXPECT_LT(view()->opacity(), 1);
    EXPECT_GT(view()->y(), 38 - 24);
    EXPECT_LT(view()->y(), 38);
}

TEST_F(HUDView, FadesAwayWhereItStandsAndLeavesNothing)
{
    start();
    setVolume(0.5);
    settle();
    scheduler.advance(1500ms);
    time.advanceBy(0ms);
    time.advanceBy(100ms);
    ASSERT_TRUE(view());
    EXPECT_LT(view()->opacity(), 1);
    EXPECT_EQ(view()->y(), 38);
    EXPECT_EQ(onScreen().extent(), grown);
    EXPECT_TRUE(scene.texts().contains(QStringLiteral("50%")));
    time.advanceBy(101ms);
    EXPECT_FALSE(view());
    EXPECT_EQ(onScreen().extent(), strip);
    EXPECT_TRUE(onScreen().outlines.empty());
}

TEST_F(HUDView, AChangeWhileItFadesBringsItBack)
{
    start();
    setVolume(0.5);
    settle();
    scheduler.advance(1500ms);
    time.advanceBy(0ms);
    time.advanceBy(100ms);
    setVolume(0.7);
    settle();
    ASSERT_TRUE(view());
    EXPECT_EQ(view()->opacity(), 1);
    EXPECT_TRUE(scene.texts().contains(QStringLiteral("70%")));
}

TEST_F(HUDView, OpeningThePanelTakesItAwayAtOnceAndGrowsTheSurfaceOnce)
{
    start();
    setVolume(0.5);
    settle();
    const size_t resizes = onScreen().extents.size();
    controller->open();
    EXPECT_EQ(onScreen().extents.size(), resizes + 1);
    time.advanceBy(0ms);
    EXPECT_FALSE(view());
    ASSERT_EQ(onScreen().outlines.size(), 1u);
    EXPECT_TRUE(onScreen().outlines.front().takesPointer);
}

TEST_F(HUDView, UnderReducedMotionItIsThereAndGoneAtOnce)
{
    appearance.reducedMotion = true;
    start();
    setVolume(0.5);
    time.advanceBy(0ms);
    ASSERT_TRUE(view());
    EXPECT_EQ(view()->opacity(), 1);
    EXPECT_EQ(view()->y(), 38);
    scheduler.advance(1500ms);
    time.advanceBy(0ms);
    EXPECT_FALSE(view());
    EXPECT_EQ(onScreen().extent(), strip);
}

TEST_F(HUDView, ALevelOfZeroShowsABarOfFourPoints)
{
    start();
    setVolume(0);
    settle();
    ASSERT_TRUE(view());
    EXPECT_TRUE(scene.texts().contains(QStringLiteral("0%")));
    const QColor accent = stores->theme.current().accentColor();
    QList<double> widths;
    for (const QQuickItem *item : scene.items()) {
        if (item->inherits("QQuickRectangle") && item->property("color").value<QColor>() == accent)
            widths.append(item->width());
    }
    EXPECT_EQ(widths, QList<double>{4});
}

TEST_F(HUDView, ItsTextFits)
{
    start();
    for (const double level : {1.0, 0.88, 1.5}) {
        setVolume(level);
        settle();
        for (const QQuickItem *item : scene.items()) {
            if (!item->inherits("QQuickText"))
                continue;
            EXPECT_LE(item->property("contentWidth").toDouble(), item->width()) << level;
        }
    }
}

} // namespace brimlight::test
