#include "controls/ControlsFixture.h"

namespace brimlight::test {
namespace {

struct Pressed
{
    const char *name;
    /// Without its end.
    QByteArray qml;
    QAccessible::Role role;
};

void PrintTo(const Pressed &button, std::ostream *out)
{
    *out << button.name;
}

/// Everything that is pressed.
class Button : public ControlsTest, public testing::WithParamInterface<Pressed>
{
protected:
    /// `extra` belongs to the control.
    void showIt(const QByteArray &extra = {})
    {
        show(GetParam().qml + "; objectName: \"it\"; x: 20; y: 20; onClicked: ++root.presses; " + extra +
             " }");
    }
};

const Pressed buttons[] = {
    {"text", "TextButton { colors: root.colors; text: \"Save\"", QAccessible::Button},
    {"icon", "IconButton { label: \"Save\"; symbol: \"plus\"", QAccessible::Button},
    {"box", "CheckBox { colors: root.colors; label: \"Save\"; checked: true", QAccessible::CheckBox},
    {"toggle", "Toggle { width: 200; colors: root.colors; label: \"Save\"; on: true", QAccessible::CheckBox},
    {"entry", "MenuEntry { colors: root.colors; text: \"Save\"", QAccessible::MenuItem},
    {"row", "ListRow { colors: root.colors; text: \"Save\"; clickable: true", QAccessible::Button},
};

} // namespace

TEST_P(Button, IsPressedByTheMouseByKeysAndByAScreenReader)
{
    showIt();
    click("it");
    EXPECT_EQ(presses(), 1);
    focus("it");
    for (const Qt::Key pressing : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space})
        key(pressing);
    EXPECT_EQ(presses(), 4);
    key(Qt::Key_A);
    EXPECT_EQ(presses(), 4);
    known("it")->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(presses(), 5);
}

TEST_P(Button, SaysWhatItIs)
{
    showIt();
    EXPECT_EQ(known("it")->role(), GetParam().role);
    EXPECT_EQ(known("it")->text(QAccessible::Name), QStringLiteral("Save"));
    EXPECT_EQ(known("it")->state().checked, GetParam().role == QAccessible::CheckBox);
}

TEST_P(Button, IsReachedByTabAndMarkedForWhoUsesKeys)
{
    showIt();
    QQuickItem *button = item("it");
    key(Qt::Key_Tab);
    EXPECT_TRUE(button->hasActiveFocus());
    // A menu lights its entry instead.
    EXPECT_EQ(marks(*button), GetParam().role != QAccessible::MenuItem);
    QTest::mouseMove(&view, QPoint(350, 350));
    QTest::mouseClick(&view, Qt::LeftButton, {}, QPoint(350, 350));
    settle();
    EXPECT_FALSE(marks(*button)) << "who points knows where he is";
}

TEST_P(Button, WhatIsNotAvailableIsDimmedAndCannotBePressed)
{
    showIt("available: false");
    EXPECT_LT(item("it")->opacity(), 0.5);
    click("it");
    key(Qt::Key_Tab);
    EXPECT_FALSE(item("it")->hasActiveFocus());
    known("it")->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(presses(), 0);
}

INSTANTIATE_TEST_SUITE_P(All, Button, testing::ValuesIn(buttons),
                         [](const auto &info) { return std::string(info.param.name); });

using ListRow = ControlsTest;

TEST_F(ListRow, ItsButtonsAndItsCircleAreNotTheLineItself)
{
    show("ListRow { objectName: \"line\"; width: 200; colors: root.colors; text: \"Milk\"; detail: "
         "\"today\"; clickable: "
         "true; checkable: true; onClicked: root.last = \"line\"; onToggled: root.last = \"circle\"\n"
         "IconButton { objectName: \"remove\"; symbol: \"xmark\"; label: \"Remove\"; onClicked: root.last = "
         "\"remove\" } }");
    scene.click(QPointF(60, 11));
    EXPECT_EQ(last(), QStringLiteral("line"));
    click("remove");
    EXPECT_EQ(last(), QStringLiteral("remove"));
    scene.click(QPointF(10, 11));
    EXPECT_EQ(last(), QStringLiteral("circle"));
    EXPECT_EQ(known("line")->text(QAccessible::Name), QStringLiteral("Milk, today"));
    // Tab goes through all three.
    key(Qt::Key_Tab);
    key(Qt::Key_Tab);
    key(Qt::Key_Space);
    EXPECT_EQ(last(), QStringLiteral("circle"));
    key(Qt::Key_Tab);
    key(Qt::Key_Space);
    EXPECT_EQ(last(), QStringLiteral("remove"));
}

TEST_F(ListRow, ALineThatIsNoButtonIsNoStopAndIsNotPressed)
{
    show("ListRow { objectName: \"line\"; width: 200; colors: root.colors; text: \"Milk\"; onClicked: "
         "++root.presses\n"
         "IconButton { objectName: \"remove\"; symbol: \"xmark\"; label: \"Remove\" } }");
    EXPECT_EQ(known("line")->role(), QAccessible::ListItem);
    click("line");
    EXPECT_EQ(presses(), 0);
    key(Qt::Key_Tab);
    EXPECT_TRUE(item("remove")->hasActiveFocus());
}

TEST_F(ListRow, ALongTextLeavesRoomForWhatIsBehindIt)
{
    show("ListRow { objectName: \"line\"; width: 160; colors: root.colors; text: \"Something that is far too "
         "long for "
         "its line\"; detail: \"tomorrow\"\nIconButton { objectName: \"remove\"; symbol: \"xmark\"; label: "
         "\"Remove\" } }");
    const double button = Scene::frameOf(*item("remove")).left();
    double seen = 0;
    for (const QQuickItem *part : scene.items()) {
        if (part->inherits("QQuickText")) {
            EXPECT_LE(Scene::frameOf(*part).right(), button) << qPrintable(part->property("text").toString());
            ++seen;
        }
    }
    EXPECT_EQ(seen, 2);
}

using SegmentedPicker = ControlsTest;

TEST_F(SegmentedPicker, IsOneStopWhereArrowsChooseAndGoRound)
{
    show("SegmentedPicker { width: 200; colors: root.colors; label: \"Font\"; labels: [\"A\", \"B\", \"C\"]; "
         "values: "
         "[\"a\", \"b\", \"c\"]; value: root.last; onChosen: value => root.last = value }");
    key(Qt::Key_Tab);
    key(Qt::Key_Left);
    EXPECT_EQ(last(), QStringLiteral("c"));
    key(Qt::Key_Right);
    EXPECT_EQ(last(), QStringLiteral("a"));
    const QList<QQuickItem *> segments = scene.withRole(QAccessible::RadioButton);
    ASSERT_EQ(segments.size(), 3);
    EXPECT_TRUE(QAccessible::queryAccessibleInterface(segments.at(0))->state().checked);
    scene.click(*segments.at(1));
    EXPECT_EQ(last(), QStringLiteral("b"));
}

using MotionAnimation = ControlsTest;

TEST_F(MotionAnimation, MovesNumbersAndColoursByTheMovementItIsGiven)
{
    show("Rectangle { objectName: \"it\"; width: 10; height: 10; color: \"black\"\n"
         "Behavior on x { MotionAnimation { movement: Motion.change } }\n"
         "Behavior on color { MotionAnimation { movement: Motion.change } } }");
    QQuickItem *it = item("it");
    it->setProperty("x", 100);
    it->setProperty("color", QColor(Qt::white));
    time.advanceBy(std::chrono::milliseconds(0));
    time.advanceBy(std::chrono::milliseconds(motion.change().duration / 2));
    const double way = motion.change().easing.valueForProgress(0.5);
    EXPECT_NEAR(it->x(), 100 * way, 1);
    EXPECT_NEAR(it->property("color").value<QColor>().redF(), way, 0.02);
    settle();
    EXPECT_EQ(it->x(), 100);
    appearance.set(true, false);
    it->setProperty("x", 0);
    EXPECT_EQ(it->x(), 0) << "who wants less motion gets none";
}

} // namespace brimlight::test
