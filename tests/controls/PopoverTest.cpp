#include "controls/ControlsFixture.h"
#include "controls/PopoverItem.h"
#include "controls/PopoverLayer.h"

#include <QSignalSpy>

namespace brimlight::test {
namespace {

const QByteArray editor = R"(
TextButton { objectName: "below"; y: 300; text: "Below"; colors: root.colors; onClicked: ++root.presses }
Item {
    objectName: "tile"
    x: 150; y: 40; width: 100; height: 60
    clip: true

    TextButton { id: opener; objectName: "opener"; text: "Edit"; colors: root.colors; onClicked: popover.open = true }
    Popover {
        id: popover
        anchorItem: opener
        label: "Editor"
        colors: root.colors
        TextField { objectName: "first"; width: parent.width; label: "Title"; colors: root.colors }
        TextButton { objectName: "second"; text: "Save"; colors: root.colors; onClicked: root.last = "saved" }
    }
})";

class PopoverTest : public ControlsTest
{
protected:
    PopoverItem *popover() const { return view.rootObject()->findChild<PopoverItem *>(); }
    PopoverLayer *layer() const { return view.rootObject()->findChild<PopoverLayer *>(); }
    void openIt()
    {
        show(editor);
        click("opener");
        ASSERT_TRUE(popover() && popover()->isOpen());
    }
};

} // namespace

TEST(PopoverPlace, IsBelowWhereThereIsRoomAndNeverOutside)
{
    const QRectF bounds(0, 0, 400, 300);
    const QSizeF size(100, 80);
    const auto place = [&](const QRectF &anchor, bool right = false) {
        return PopoverItem::placeBeside(anchor, size, bounds, 4, right);
    };
    EXPECT_EQ(place({150, 20, 60, 20}), QRectF(130, 44, 100, 80)) << "under the middle";
    EXPECT_EQ(place({150, 20, 60, 20}, true), QRectF(110, 44, 100, 80)) << "the right edges agree";
    EXPECT_EQ(place({150, 250, 60, 20}), QRectF(130, 166, 100, 80)) << "no room below";
    EXPECT_EQ(place({0, 20, 20, 20}).left(), 0);
    EXPECT_EQ(place({390, 20, 20, 20}).right(), 400);
    EXPECT_EQ(PopoverItem::placeBeside({150, 100, 60, 20}, {100, 500}, bounds, 4, false).top(), 0)
        << "what is higher than all of it begins at the top";
}

TEST_F(PopoverTest, StandsAboveWhatClipsItsControlAndTellsWhere)
{
    show(editor);
    QSignalSpy placed(layer(), &PopoverLayer::placed);
    click("opener");
    ASSERT_TRUE(popover()->isOpen());
    EXPECT_EQ(popover()->parentItem(), layer());
    EXPECT_GT(popover()->y() + popover()->height(), 100) << "beyond the tile";
    ASSERT_FALSE(placed.isEmpty());
    EXPECT_EQ(placed.constLast().at(0).value<QObject *>(), popover());
    EXPECT_EQ(placed.constLast().at(1).toRectF(), Scene::frameOf(*popover()));
    popover()->setOpen(false);
    EXPECT_TRUE(placed.constLast().at(1).toRectF().isEmpty());
    EXPECT_FALSE(popover()->isVisible());
}

TEST_F(PopoverTest, HasTheKeyboardAndGivesItBackToItsControlByEscape)
{
    show(editor);
    focus("opener");
    key(Qt::Key_Space);
    ASSERT_TRUE(popover()->isOpen());
    EXPECT_TRUE(popover()->takesKeyboard());
    EXPECT_TRUE(item("first")->hasActiveFocus()) << "with keys the first control is ready";
    type("milk");
    key(Qt::Key_Escape);
    EXPECT_FALSE(popover()->isOpen());
    EXPECT_TRUE(item("opener")->hasActiveFocus());
}

TEST_F(PopoverTest, TabStaysWithin)
{
    show(editor);
    focus("opener");
    key(Qt::Key_Space);
    QQuickItem *first = item("first");
    QQuickItem *second = item("second");
    key(Qt::Key_Tab);
    EXPECT_TRUE(second->hasActiveFocus());
    key(Qt::Key_Tab);
    EXPECT_TRUE(first->hasActiveFocus());
    key(Qt::Key_Backtab);
    EXPECT_TRUE(second->hasActiveFocus());
    key(Qt::Key_Backtab);
    EXPECT_TRUE(first->hasActiveFocus());
}

TEST_F(PopoverTest, AClickElsewhereClosesItAndDoesNothingElse)
{
    openIt();
    click("below");
    EXPECT_FALSE(popover()->isOpen());
    EXPECT_EQ(presses(), 0);
    EXPECT_FALSE(item("opener")->hasActiveFocus()) << "closed by the pointer nothing keeps the keyboard";
    click("below");
    EXPECT_EQ(presses(), 1);
}

TEST_F(PopoverTest, AClickWithinIsItsOwn)
{
    openIt();
    click("second");
    EXPECT_EQ(last(), QStringLiteral("saved"));
    const QRectF frame = Scene::frameOf(*popover());
    scene.click(frame.topLeft() + QPointF(3, 3));
    EXPECT_TRUE(popover()->isOpen());
}

TEST_F(PopoverTest, GoesWithThePanelAndOpensNoneWhileThatIsClosed)
{
    openIt();
    layer()->setActive(false);
    EXPECT_FALSE(popover()->isOpen());
    click("opener");
    EXPECT_FALSE(popover()->isOpen());
    layer()->setActive(true);
    click("opener");
    EXPECT_TRUE(popover()->isOpen());
}

TEST_F(PopoverTest, ClosesWithTheViewThatItBelongsTo)
{
    openIt();
    item("tile")->setVisible(false);
    EXPECT_FALSE(popover()->isOpen());
    view.rootObject()->findChild<QQuickItem *>(QStringLiteral("tile"))->setVisible(true);
    click("opener");
    ASSERT_TRUE(popover()->isOpen());
    delete item("tile");
    settle();
    EXPECT_FALSE(layer()->isOpen());
    click("below");
    EXPECT_EQ(presses(), 1) << "nothing invisible is left to catch clicks";
}

TEST_F(PopoverTest, WhatGrowsIsPlacedAgain)
{
    openIt();
    QSignalSpy placed(layer(), &PopoverLayer::placed);
    item("first")->setHeight(120);
    settle();
    ASSERT_FALSE(placed.isEmpty());
    EXPECT_EQ(placed.constLast().at(1).toRectF(), Scene::frameOf(*popover()));
    EXPECT_GT(popover()->height(), 150);
}

TEST_F(PopoverTest, WithoutALayerNothingOpens)
{
    show("Item { objectName: \"lonely\"; width: 50; height: 50\nPopover { label: \"Editor\"; colors: "
         "root.colors } }");
    QQuickItem *lonely = item("lonely");
    lonely->setParentItem(view.contentItem());
    popover()->setOpen(true);
    EXPECT_FALSE(popover()->isOpen());
}

TEST_F(PopoverTest, AMenuChoosesByMouseAndByKeys)
{
    show("property int at: 1\nMenuPicker { objectName: \"it\"; width: 300; label: \"Delay\"; options: "
         "[\"None\", \"Short\", "
         "\"Long\"]; current: root.at; colors: root.colors; onChosen: index => root.at = index }");
    const auto at = [&] { return view.rootObject()->property("at").toInt(); };
    QQuickItem *box = scene.withRole(QAccessible::ComboBox).value(0);
    ASSERT_TRUE(box);
    scene.click(*box);
    settle();
    const QList<QQuickItem *> entries = scene.withRole(QAccessible::MenuItem);
    ASSERT_EQ(entries.size(), 3);
    EXPECT_TRUE(QAccessible::queryAccessibleInterface(entries.at(1))->state().checked);
    scene.click(*entries.at(2));
    settle();
    EXPECT_EQ(at(), 2);
    EXPECT_FALSE(popover()->isOpen());
    box->forceActiveFocus(Qt::TabFocusReason);
    key(Qt::Key_Down);
    ASSERT_TRUE(popover()->isOpen());
    key(Qt::Key_Up);
    key(Qt::Key_Return);
    EXPECT_EQ(at(), 1) << "it began at the chosen one";
    EXPECT_TRUE(box->hasActiveFocus());
}

} // namespace brimlight::test
