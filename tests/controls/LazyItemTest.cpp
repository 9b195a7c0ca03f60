#include "controls/ControlsFixture.h"

namespace brimlight::test {

using LazyItem = ControlsTest;

TEST_F(LazyItem, HasItsItemWhileItIsActive)
{
    show("LazyItem { id: lazy; objectName: \"lazy\"; active: false; onLoaded: ++root.presses\n"
         "sourceComponent: Rectangle { objectName: \"made\"; width: 30; height: 20; color: "
         "root.colors.accent } }");
    QQuickItem *lazy = item("lazy");
    EXPECT_TRUE(lazy->childItems().isEmpty());
    lazy->setProperty("active", true);
    EXPECT_EQ(presses(), 1);
    EXPECT_EQ(lazy->size(), QSizeF(30, 20)) << "its size is that of the item";
    EXPECT_EQ(item("made")->property("color").value<QColor>(), colors.accentColor())
        << "names of its file are known to it";
    lazy->setProperty("active", false);
    settle();
    EXPECT_TRUE(lazy->childItems().isEmpty());
    EXPECT_EQ(lazy->size(), QSizeF(0, 0));
}

TEST_F(LazyItem, GivesItsOwnSizeWhereItHasOne)
{
    show("LazyItem { objectName: \"lazy\"; width: 100; sourceComponent: Item { objectName: \"made\"; "
         "implicitHeight: 40 } }");
    EXPECT_EQ(item("made")->width(), 100);
    EXPECT_EQ(item("lazy")->height(), 40);
    item("lazy")->setWidth(150);
    item("made")->setImplicitHeight(60);
    EXPECT_EQ(item("made")->width(), 150);
    EXPECT_EQ(item("lazy")->height(), 60);
}

TEST_F(LazyItem, AnotherComponentMakesAnotherItem)
{
    show("property bool first: true\nComponent { id: a; Item { objectName: \"a\" } }\nComponent { id: b; "
         "Item { objectName: "
         "\"b\" } }\nLazyItem { objectName: \"lazy\"; sourceComponent: root.first ? a : b }");
    EXPECT_TRUE(item("a"));
    view.rootObject()->setProperty("first", false);
    settle();
    EXPECT_TRUE(item("b"));
    EXPECT_EQ(item("lazy")->childItems().size(), 1);
}

} // namespace brimlight::test
