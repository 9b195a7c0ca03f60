#include "app/StatusBarController.h"

#include "notch/PanelMenu.h"
#include "notch/PanelViewFixture.h"

namespace brimlight::test {
namespace {

/// The status menu on a desktop without a tray.
class PanelStatusMenu : public PanelView
{
protected:
    void start()
    {
        PanelView::start();
        statusBar.emplace(*controller, *notch->scene.statusMenu(), stores->loginItem, stores->updater,
                          statusItem, [this] { ++quits; });
        pointer.where = inOpenPanel;
    }
    FakeSurface &onScreen() { return static_cast<OffscreenSurface &>(window.surface()); }
    QPoint onHeader() { return (panel().pane().topLeft() + QPointF(250, 16)).toPoint(); }
    void rightClick(const QPoint &where)
    {
        QTest::mouseClick(&window.view(), Qt::RightButton, {}, where);
        settle();
    }
    QQuickItem *menu()
    {
        const QList<QQuickItem *> found = scene.withRole(QAccessible::PopupMenu);
        return found.isEmpty() ? nullptr : found.first();
    }
    QStringList entries() { return scene.namesOf(QAccessible::MenuItem); }
    void choose(const char *title)
    {
        const QList<QQuickItem *> items = scene.withRole(QAccessible::MenuItem);
        const qsizetype row = entries().indexOf(QString::fromUtf8(title));
        ASSERT_GE(row, 0) << title;
        scene.click(*items[row]);
        settle();
    }
    bool isLoginChecked()
    {
        QQuickItem *entry = scene.withRole(QAccessible::MenuItem).value(3);
        return entry && QAccessible::queryAccessibleInterface(entry)->state().checked;
    }

    std::optional<StatusBarController> statusBar;
    int quits = 0;
    const QStringList titles{QStringLiteral("Open Brimlight"), QStringLiteral("Settings…"),
                             QStringLiteral("Check for Updates…"), QStringLiteral("Launch at Login"),
                             QStringLiteral("Quit Brimlight")};
};

} // namespace

TEST_F(PanelStatusMenu, OpensByARightClickOnTheHeaderAndQuitsTheProgram)
{
    start();
    open();
    EXPECT_FALSE(menu());
    rightClick(onHeader());
    ASSERT_TRUE(menu());
    EXPECT_EQ(entries(), titles);
    EXPECT_EQ(Scene::frameOf(*menu()).topLeft().toPoint(), onHeader());
    EXPECT_EQ(onScreen().outlines.size(), 2u) << "the pointer is felt on it";
    choose("Quit Brimlight");
    EXPECT_EQ(quits, 1);
    EXPECT_FALSE(menu());
}

TEST_F(PanelStatusMenu, OpensOverTheSettingsAndTheWalkThroughAsWell)
{
    defaults.values.clear();
    start();
    open();
    rightClick(onHeader());
    EXPECT_EQ(entries(), titles);
    model().setOnboardingCompleted(true);
    controller->openSettings();
    settle();
    EXPECT_FALSE(menu());
    rightClick(onHeader());
    EXPECT_EQ(entries(), titles);
}

TEST_F(PanelStatusMenu, BelowTheHeaderTheRightButtonIsTheTiles)
{
    start();
    open();
    rightClick((panel().pane().topLeft() + QPointF(8, 60)).toPoint());
    EXPECT_FALSE(menu());
    EXPECT_TRUE(isExpanded());
}

TEST_F(PanelStatusMenu, ARightClickOnTheCollapsedStripOpensThePanelPinnedWithTheMenuThere)
{
    start();
    ASSERT_FALSE(isExpanded());
    pointer.where = Point{700, 899};
    onScreen().events.menuRequested();
    EXPECT_TRUE(isExpanded());
    EXPECT_TRUE(model().isPinned());
    settle();
    ASSERT_TRUE(menu());
    EXPECT_EQ(entries(), titles);
    // One point below the top edge; the menu keeps a distance of four from it.
    EXPECT_EQ(panel().inSurface({700, 899}).y(), 1);
    EXPECT_EQ(Scene::frameOf(*menu()).topLeft(), QPointF(panel().inSurface({700, 899}).x(), 4));
}

TEST_F(PanelStatusMenu, StaysWithinTheSurface)
{
    start();
    pointer.where = Point{1440, 899};
    onScreen().events.menuRequested();
    settle();
    ASSERT_TRUE(menu());
    EXPECT_EQ(Scene::frameOf(*menu()).right(), window.view().width() - 4);
}

TEST_F(PanelStatusMenu, OpensByTheMenuKeyOfAHeaderControlAndGivesItTheFocusBack)
{
    start();
    open();
    QQuickItem *pin = scene.button(QStringLiteral("Keep open"));
    ASSERT_TRUE(pin);
    for (const bool menuKey : {true, false}) {
        SCOPED_TRACE(menuKey ? "the menu key" : "Shift and F10");
        pin->forceActiveFocus(Qt::TabFocusReason);
        if (menuKey)
            QTest::keyClick(&window.view(), Qt::Key_Menu);
        else
            QTest::keyClick(&window.view(), Qt::Key_F10, Qt::ShiftModifier);
        settle();
        ASSERT_TRUE(menu());
        EXPECT_GE(Scene::frameOf(*menu()).top(), Scene::frameOf(*pin).bottom());
        EXPECT_TRUE(onScreen().wantsKeyboard);
        QTest::keyClick(&window.view(), Qt::Key_Escape);
        settle();
        EXPECT_FALSE(menu());
        EXPECT_TRUE(pin->hasActiveFocus());
        EXPECT_TRUE(isExpanded());
    }
}

TEST_F(PanelStatusMenu, KeysGoThroughItsEntries)
{
    start();
    open();
    scene.button(QStringLiteral("Keep open"))->forceActiveFocus(Qt::TabFocusReason);
    QTest::keyClick(&window.view(), Qt::Key_Menu);
    QTest::keyClick(&window.view(), Qt::Key_Down);
    QTest::keyClick(&window.view(), Qt::Key_Return);
    settle();
    EXPECT_TRUE(model().showSettings()) << "the second entry";
    EXPECT_FALSE(menu());
}

TEST_F(PanelStatusMenu, TheCheckMarkIsThatOfTheLoginItem)
{
    start();
    open();
    for (const bool enabled : {true, false}) {
        loginItem.enabled = enabled;
        rightClick(onHeader());
        EXPECT_EQ(isLoginChecked(), enabled);
        choose("Launch at Login");
        EXPECT_EQ(loginItem.enabled, !enabled);
    }
}

TEST_F(PanelStatusMenu, AClickElsewhereClosesItAndNothingElse)
{
    start();
    open();
    rightClick(onHeader());
    ASSERT_TRUE(menu());
    scene.click(panel().pane().bottomLeft() + QPointF(30, -30));
    settle();
    EXPECT_FALSE(menu());
    EXPECT_TRUE(isExpanded());
    EXPECT_FALSE(onScreen().wantsKeyboard);
}

TEST_F(PanelStatusMenu, GoesWithThePanel)
{
    start();
    open();
    rightClick(onHeader());
    controller->requestClose();
    settle();
    EXPECT_FALSE(menu());
    open();
    EXPECT_FALSE(menu());
}

TEST(PanelMenuRows, SeparatorsAreToldByTheEntryBelow)
{
    int chosen = 0;
    PanelMenu menu;
    menu.setMenu({{.title = QStringLiteral("a"), .action = [&] { chosen = 1; }},
                  {},
                  {.title = QStringLiteral("b"), .isCheckable = true, .action = [&] { chosen = 3; }}},
                 [&] { menu.setChecked(2, true); });
    ASSERT_EQ(menu.rowCount(), 2);
    const auto at = [&](int row, PanelMenu::Role role) { return menu.data(menu.index(row, 0), role); };
    EXPECT_FALSE(at(0, PanelMenu::startsGroupRole).toBool());
    EXPECT_TRUE(at(1, PanelMenu::startsGroupRole).toBool());
    EXPECT_FALSE(at(1, PanelMenu::isCheckedRole).toBool());
    menu.aboutToOpen();
    EXPECT_TRUE(at(1, PanelMenu::isCheckedRole).toBool());
    menu.choose(1);
    EXPECT_EQ(chosen, 3);
    menu.choose(2);
    EXPECT_EQ(chosen, 3) << "there is nothing";
}

} // namespace brimlight::test
