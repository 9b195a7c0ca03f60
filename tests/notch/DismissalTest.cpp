#include "notch/PanelViewFixture.h"

#include <QFile>

namespace brimlight::test {
namespace {

/// One tile on the first of two pages.
class Passing : public PanelView
{
protected:
    void start()
    {
        PanelView::start();
        // A tile of no known kind has a menu, too.
        stores->grid.setLayout(
            {.instances = {{.kind = QStringLiteral("gone"), .col = 1, .row = 1}}, .pageCount = 2});
        scheduler.runPosted();
        pointer.where = inOpenPanel;
        controller->setExpanded(true);
        settle();
    }
    FakeSurface &onScreen() { return static_cast<OffscreenSurface &>(window.surface()); }
    QPoint onTile() { return Scene::middle(*scene.ofType("WidgetTile").first()).toPoint(); }
    void openMenu()
    {
        QTest::mouseClick(&window.view(), Qt::RightButton, {}, onTile());
        settle();
        ASSERT_FALSE(scene.withRole(QAccessible::PopupMenu).isEmpty());
        ASSERT_EQ(onScreen().outlines.size(), 2u);
    }
    void swipe(double dx, double dy)
    {
        using Phase = ScrollEvent::Phase;
        onScreen().events.scrolled({.phase = Phase::began});
        onScreen().events.scrolled({.phase = Phase::changed, .deltaX = dx, .deltaY = dy});
        onScreen().events.scrolled({.phase = Phase::ended});
    }
    /// Takes the tile two cells to the right and one down, and holds it there.
    void drag()
    {
        const QPoint from = onTile();
        QTest::mousePress(&window.view(), Qt::LeftButton, {}, from);
        pointer.pressed = true;
        for (int step = 1; step <= 8; ++step)
            QTest::mouseMove(&window.view(), from + QPoint(172, 86) * step / 8);
        m_held = from + QPoint(172, 86);
        ASSERT_TRUE(notch->scene.gridDrag()->hasTarget());
    }
    void release()
    {
        pointer.pressed = false;
        const QPoint within = isExpanded() ? m_held : QPoint(5, 5);
        QTest::mouseRelease(&window.view(), Qt::LeftButton, {}, within);
        settle();
    }
    GridCell cell()
    {
        const WidgetInstance &instance = stores->grid.layout().instances.first();
        return {instance.col, instance.row};
    }
    QByteArray stored() const
    {
        QFile file(support.filePath(QStringLiteral("grid.json")));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    QPoint m_held;
};

} // namespace

class MenuGoes : public Passing
{
protected:
    /// However the panel closes, it opens without the menu.
    void expectGone()
    {
        settle();
        EXPECT_TRUE(scene.withRole(QAccessible::PopupMenu).isEmpty());
        EXPECT_LE(onScreen().outlines.size(), 1u);
        controller->setExpanded(true);
        settle();
        EXPECT_TRUE(scene.withRole(QAccessible::PopupMenu).isEmpty());
        EXPECT_EQ(onScreen().outlines.size(), 1u);
        EXPECT_FALSE(onScreen().wantsKeyboard);
    }
};

TEST_F(MenuGoes, WhenThePointerLeavesThePanel)
{
    start();
    openMenu();
    pointer.where = farAway;
    onScreen().events.exited();
    scheduler.advance(500ms);
    ASSERT_FALSE(isExpanded());
    expectGone();
}

TEST_F(MenuGoes, WhenThePanelIsSwipedShut)
{
    start();
    openMenu();
    swipe(0, -40);
    ASSERT_FALSE(isExpanded());
    expectGone();
}

TEST_F(MenuGoes, WhenTheProgramClosesThePanel)
{
    start();
    openMenu();
    controller->setExpanded(false);
    expectGone();
}

TEST_F(MenuGoes, WhenThePanelOpensAgainBeforeItHasCollapsed)
{
    start();
    openMenu();
    controller->setExpanded(false);
    time.advanceBy(20ms);
    EXPECT_TRUE(scene.withRole(QAccessible::PopupMenu).isEmpty());
    controller->setExpanded(true);
    expectGone();
}

TEST_F(MenuGoes, WhenThePageIsTurned)
{
    start();
    openMenu();
    swipe(-40, 0);
    ASSERT_EQ(model().currentPage(), 1);
    expectGone();
}

TEST_F(MenuGoes, WhenTheSettingsOpen)
{
    start();
    openMenu();
    controller->openSettings();
    settle();
    EXPECT_TRUE(scene.withRole(QAccessible::PopupMenu).isEmpty());
    EXPECT_EQ(onScreen().outlines.size(), 1u);
}

TEST_F(MenuGoes, AndWhatHadOpenedItByAKeyDoesNotKeepTheKeyboard)
{
    start();
    QTest::keyClick(&window.view(), Qt::Key_Tab);
    scene.ofType("WidgetTile").first()->forceActiveFocus(Qt::TabFocusReason);
    QTest::keyClick(&window.view(), Qt::Key_Menu);
    ASSERT_FALSE(scene.withRole(QAccessible::PopupMenu).isEmpty());
    EXPECT_TRUE(onScreen().wantsKeyboard);
    controller->setExpanded(false);
    EXPECT_FALSE(onScreen().wantsKeyboard);
    expectGone();
}

TEST_F(MenuGoes, AlsoThatOfAPickerInTheSettings)
{
    start();
    controller->openSettings();
    settle();
    scene.click(*scene.withRole(QAccessible::ComboBox).first());
    ASSERT_FALSE(scene.withRole(QAccessible::PopupMenu).isEmpty());
    controller->setExpanded(false);
    time.advanceBy(20ms);
    controller->setExpanded(true);
    settle();
    ASSERT_FALSE(scene.ofType("ThemeSettingsView").isEmpty());
    EXPECT_TRUE(scene.withRole(QAccessible::PopupMenu).isEmpty());
}

class DragEnds : public Passing
{
};

TEST_F(DragEnds, EscapeIsWatchedForAsLongAsItLasts)
{
    start();
    EXPECT_FALSE(onScreen().watchesEscape);
    drag();
    EXPECT_TRUE(onScreen().watchesEscape);
    EXPECT_FALSE(onScreen().wantsKeyboard);
    release();
    EXPECT_FALSE(onScreen().watchesEscape);
    EXPECT_EQ(cell(), (GridCell{3, 2}));
}

TEST_F(DragEnds, EscapeGivesItUpAndNothingIsSaved)
{
    start();
    const QByteArray before = stored();
    drag();
    onScreen().events.escapePressed();
    EXPECT_FALSE(notch->scene.gridDrag()->isActive());
    EXPECT_FALSE(model().isDragging());
    EXPECT_FALSE(onScreen().watchesEscape);
    release();
    EXPECT_EQ(cell(), (GridCell{1, 1}));
    EXPECT_EQ(stored(), before);
    EXPECT_TRUE(isExpanded());
    // The next one is as good as the first.
    drag();
    release();
    EXPECT_EQ(cell(), (GridCell{3, 2}));
}

TEST_F(DragEnds, EscapeGivesItUpWhenThePanelHasTheKeyboardItself)
{
    start();
    drag();
    QTest::keyClick(&window.view(), Qt::Key_Escape);
    EXPECT_TRUE(isExpanded());
    release();
    EXPECT_EQ(cell(), (GridCell{1, 1}));
    EXPECT_TRUE(isExpanded());
}

TEST_F(DragEnds, ThePanelThatClosesGivesItUp)
{
    start();
    const QByteArray before = stored();
    drag();
    controller->setExpanded(false);
    settle();
    EXPECT_FALSE(onScreen().watchesEscape);
    release();
    EXPECT_EQ(cell(), (GridCell{1, 1}));
    EXPECT_EQ(stored(), before);
    controller->setExpanded(true);
    settle();
    EXPECT_FALSE(notch->scene.gridDrag()->isActive());
}

} // namespace brimlight::test
