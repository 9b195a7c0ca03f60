#include "notch/ControllerFixture.h"

namespace brimlight::test {

class State : public ControllerTest
{
};

TEST_F(State, StartsCollapsedUnpinnedOnTheFirstPage)
{
    start();
    EXPECT_FALSE(isExpanded());
    EXPECT_FALSE(model().isPinned());
    EXPECT_EQ(model().currentPage(), 0);
    EXPECT_TRUE(surface().isFront);
    EXPECT_TRUE(surface().outlines.empty()) << "nothing is drawn";
}

TEST_F(State, ConstructionPlacesNothingOnScreen)
{
    build(fakeSurface);
    EXPECT_FALSE(surface().isFront);
    EXPECT_TRUE(lines().isEmpty());
}

TEST_F(State, ShowPlacesThenOrdersFront)
{
    start();
    EXPECT_EQ(
        lines(),
        (QStringList{QStringLiteral("Repositioned on \"Fake\": hasNotch=false collapsed=200x32 "
                                    "frame=(620,868 200x32)"),
                     QStringLiteral("Notch panel ordered front (theme=Midnight, widgets=4, pages=1)")}));
}

TEST_F(State, ExpandingTraces)
{
    start();
    lines();
    controller->setExpanded(true);
    EXPECT_EQ(lines(), (QStringList{QStringLiteral("Ticker active=true interval=1.0"),
                                    QStringLiteral("Notch EXPANDED frame=(452,542 536x358)")}));
    controller->setExpanded(false);
    EXPECT_EQ(lines(), (QStringList{QStringLiteral("Ticker active=false interval=1.0"),
                                    QStringLiteral("Notch COLLAPSED frame=(620,868 200x32)")}));
}

TEST_F(State, SettingTheStateItHasChangesNothing)
{
    start();
    controller->setExpanded(true);
    lines();
    controller->setExpanded(true);
    EXPECT_TRUE(lines().isEmpty());
}

TEST_F(State, SettingTheStateItHasStillCancelsAPendingExpand)
{
    start();
    enter();
    EXPECT_TRUE(controller->isExpandPending());
    controller->setExpanded(false);
    EXPECT_FALSE(controller->isExpandPending());
}

TEST_F(State, SetExpandedTouchesNeitherPinNorSettings)
{
    start();
    controller->openSettings();
    controller->setExpanded(false);
    EXPECT_TRUE(model().isPinned());
    EXPECT_TRUE(model().showSettings());
}

TEST_F(State, CollapsingCancelsThePendingCollapse)
{
    start();
    openByHover();
    leave();
    EXPECT_TRUE(controller->isCollapsePending());
    controller->setExpanded(false);
    EXPECT_FALSE(controller->isCollapsePending());
}

TEST_F(State, TapOnTheStripPinsAndASecondTapCloses)
{
    start();
    lines();
    surface().events.tapped();
    EXPECT_TRUE(isExpanded());
    EXPECT_TRUE(model().isPinned());
    EXPECT_EQ(lines().last(), QStringLiteral("Tap toggle pin -> pinned=true"));
    pointer.where = farAway;
    scheduler.advance(5s);
    EXPECT_TRUE(isExpanded());
    controller->tap();
    EXPECT_FALSE(isExpanded());
    EXPECT_FALSE(model().isPinned());
    EXPECT_EQ(lines().last(), QStringLiteral("Notch COLLAPSED frame=(620,868 200x32)"))
        << "a tap on the open panel asks to close, it toggles nothing";
}

TEST_F(State, PinButtonUnpinsAndCollapsesWhereverThePointerIs)
{
    start();
    openByHover();
    controller->togglePin();
    EXPECT_TRUE(model().isPinned());
    EXPECT_TRUE(isExpanded());
    lines();
    controller->togglePin();
    EXPECT_FALSE(isExpanded());
    EXPECT_EQ(lines().last(), QStringLiteral("Tap toggle pin -> pinned=false"));
}

TEST_F(State, SettingsOpenPinnedAndShown)
{
    start();
    controller->openSettings();
    scheduler.runPosted();
    EXPECT_TRUE(isExpanded());
    EXPECT_TRUE(model().isPinned());
    EXPECT_TRUE(model().showSettings());
    EXPECT_EQ(panel().frame().height, 540);
}

TEST_F(State, DroppedFilesOpenAndPin)
{
    start();
    lines();
    controller->filesDropped({QUrl::fromLocalFile(QStringLiteral("/tmp/a")),
                              QUrl(QStringLiteral("https://example.org/")),
                              QUrl::fromLocalFile(QStringLiteral("/tmp/b c"))});
    EXPECT_TRUE(isExpanded());
    EXPECT_TRUE(model().isPinned());
    EXPECT_EQ(lines().last(), QStringLiteral("Files dropped on notch -> shelf (2 items)"));
}

TEST_F(State, TakesNothingThatIsNoLocalFile)
{
    start();
    const QUrl file = QUrl::fromLocalFile(QStringLiteral("/tmp/a"));
    const QUrl link(QStringLiteral("https://example.org/"));
    EXPECT_FALSE(controller->takesDrop({}));
    EXPECT_FALSE(controller->takesDrop({link}));
    EXPECT_TRUE(controller->takesDrop({link, file}));
    controller->filesDropped({link});
    EXPECT_FALSE(isExpanded());
    EXPECT_FALSE(model().isPinned());
}

TEST_F(State, ATileThatIsRemovedWhileItShowsItsBackLeavesNoOptionsOpen)
{
    start();
    const WidgetInstance kept{.kind = QStringLiteral("gone"), .col = 0, .row = 0};
    const WidgetInstance removed{.kind = QStringLiteral("gone"), .col = 1, .row = 0};
    stores->grid.setLayout({.instances = {kept, removed}});
    model().setFlippedWidgetID(removed.id);
    scheduler.runPosted();
    EXPECT_TRUE(model().optionsOpen());
    stores->grid.remove(kept.id);
    scheduler.runPosted();
    EXPECT_EQ(model().flippedWidgetID(), removed.id);
    stores->grid.remove(removed.id);
    scheduler.runPosted();
    EXPECT_FALSE(model().flippedWidgetID());
    EXPECT_FALSE(model().optionsOpen());
}

TEST_F(State, RequestCloseUnpinsAndCollapses)
{
    start();
    controller->open();
    controller->requestClose();
    EXPECT_FALSE(isExpanded());
    EXPECT_FALSE(model().isPinned());
}

TEST_F(State, CollapsedButPinnedExpandsOnEntryAndStaysOpen)
{
    start();
    controller->open();
    controller->setExpanded(false);
    EXPECT_TRUE(model().isPinned());
    openByHover();
    leave();
    scheduler.advance(5s);
    EXPECT_TRUE(isExpanded());
}

TEST_F(State, SwipeDownPinsOpenAndSwipeUpCloses)
{
    start();
    swipe(0, 40);
    EXPECT_TRUE(isExpanded());
    EXPECT_TRUE(model().isPinned());
    swipe(0, -40);
    EXPECT_FALSE(isExpanded());
    EXPECT_FALSE(model().isPinned());
}

TEST_F(State, SwipesDoNothingWhileAnOverlayOwnsThePanelButATapActs)
{
    start();
    setPages(3);
    controller->open();
    model().setOptionsOpen(true);
    swipe(-40, 0);
    EXPECT_EQ(model().currentPage(), 0);
    swipe(0, -40);
    EXPECT_TRUE(isExpanded());
    controller->tap();
    EXPECT_FALSE(isExpanded());
}

TEST_F(State, WithTheGalleryOpenASwipeDoesNothing)
{
    start();
    setPages(3);
    controller->setPage(1);
    openByHover();
    controller->openGallery();
    for (const auto &[dx, dy] : {std::pair{-40, 0}, std::pair{40, 0}, std::pair{0, 40}, std::pair{0, -40}})
        swipe(dx, dy);
    EXPECT_EQ(model().currentPage(), 1);
    EXPECT_TRUE(isExpanded());
    EXPECT_TRUE(model().isPinned());
    controller->closeGallery();
    swipe(-40, 0);
    EXPECT_EQ(model().currentPage(), 2);
}

TEST_F(State, WithTheGalleryOpenThePointerMayLeaveAndClosingItRestoresThePin)
{
    for (const bool pinned : {false, true}) {
        SCOPED_TRACE(pinned ? "pinned" : "not pinned");
        start();
        openByHover();
        model().setPinned(pinned);
        controller->openGallery();
        leave();
        scheduler.advance(5s);
        EXPECT_TRUE(isExpanded());
        controller->closeGallery();
        EXPECT_EQ(model().isPinned(), pinned);
        EXPECT_FALSE(model().optionsOpen());
        EXPECT_TRUE(isExpanded()) << "not before the next look at the pointer";
        scheduler.advance(350ms + 120ms);
        EXPECT_EQ(isExpanded(), pinned);
    }
}

TEST_F(State, UnderReducedTransparencyThePaneAsksForNoBlur)
{
    appearance.reducedTransparency = true;
    start();
    controller->open();
    panel().finishAnimation();
    ASSERT_EQ(surface().outlines.size(), 1u);
    EXPECT_FALSE(surface().outlines.front().blursBehind);
    appearance.set(false, false);
    EXPECT_TRUE(surface().outlines.front().blursBehind);
    appearance.set(false, true);
    EXPECT_FALSE(surface().outlines.front().blursBehind);
}

TEST_F(State, TickRunsOnlyWhileExpandedAtTheChosenRate)
{
    defaults.values.insert(QStringLiteral("brimlight.refreshRate"), QStringLiteral("saver"));
    start();
    EXPECT_FALSE(stores->ticker.isActive());
    EXPECT_EQ(stores->ticker.interval(), 5s);
    controller->setExpanded(true);
    EXPECT_TRUE(stores->ticker.isActive());
    stores->appSettings.setRefreshRate(RefreshRate::live);
    EXPECT_EQ(stores->ticker.interval(), 5s) << "subscribers work one turn later";
    scheduler.runPosted();
    EXPECT_EQ(stores->ticker.interval(), 500ms);
    controller->setExpanded(false);
    EXPECT_FALSE(stores->ticker.isActive());
}

TEST_F(State, WithoutAScreenExpandingOnlyFlipsTheFlag)
{
    screens.setNone();
    start();
    EXPECT_EQ(lines().first(), QStringLiteral("No screen available — skipping placement"));
    const Rect before = panel().frame();
    controller->setExpanded(true);
    EXPECT_TRUE(isExpanded());
    EXPECT_EQ(panel().frame(), before);
    EXPECT_FALSE(stores->ticker.isActive());
    EXPECT_TRUE(pointer.local.empty());
    EXPECT_TRUE(lines().isEmpty());
    controller->setExpanded(false);
    EXPECT_FALSE(isExpanded());
}

TEST_F(State, GoneControllerIsNotReachedByPostedWork)
{
    start();
    stores->appSettings.setRefreshRate(RefreshRate::saver);
    stores->viewModel.setShowSettings(true);
    notch.reset();
    stores.reset();
    scheduler.runPosted();
    SUCCEED() << "no crash";
}

TEST_F(State, TheLoadIsSampledWhileThePanelIsOpen)
{
    start();
    EXPECT_FALSE(stores->systemHistory.isActive());
    controller->setExpanded(true);
    EXPECT_TRUE(stores->systemHistory.isActive());
    controller->setExpanded(false);
    EXPECT_FALSE(stores->systemHistory.isActive());
}

TEST_F(State, AUsageGraphOnAnyPageIsSampledWhileThePanelIsClosedToo)
{
    start();
    const GridLayout without = stores->grid.layout();
    GridLayout with = without;
    with.pageCount = 2;
    with.instances.append({.kind = QStringLiteral("usagegraph"), .size = WidgetSize::large, .page = 1});
    stores->grid.setLayout(with);
    scheduler.runPosted();
    EXPECT_TRUE(stores->systemHistory.isActive());
    controller->setExpanded(true);
    controller->setExpanded(false);
    EXPECT_TRUE(stores->systemHistory.isActive());
    stores->grid.setLayout(without);
    scheduler.runPosted();
    EXPECT_FALSE(stores->systemHistory.isActive());
}

} // namespace brimlight::test
