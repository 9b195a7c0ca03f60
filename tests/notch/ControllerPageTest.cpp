#include "notch/ControllerFixture.h"

namespace brimlight::test {

class Pages : public ControllerTest
{
};

TEST_F(Pages, NegativeIndexGivesTheFirstPage)
{
    start();
    setPages(3);
    controller->setPage(1);
    controller->setPage(-5);
    EXPECT_EQ(model().currentPage(), 0);
}

TEST_F(Pages, IndexPastTheEndGivesTheLastPage)
{
    start();
    setPages(3);
    lines();
    controller->setPage(99);
    EXPECT_EQ(model().currentPage(), 2);
    EXPECT_EQ(lines(), QStringList{QStringLiteral("Page -> 2/2")});
}

TEST_F(Pages, APageCountOfZeroActsAsOne)
{
    start();
    setPages(0);
    lines();
    controller->setPage(1);
    EXPECT_EQ(model().currentPage(), 0);
    EXPECT_TRUE(lines().isEmpty());
}

TEST_F(Pages, TheSamePageIsNoChange)
{
    start();
    setPages(2);
    lines();
    int changes = 0;
    QObject::connect(&model(), &NotchViewModel::currentPageChanged, [&] { ++changes; });
    controller->setPage(0);
    EXPECT_EQ(changes, 0);
    EXPECT_TRUE(lines().isEmpty());
}

TEST_F(Pages, SwipesTurnThePage)
{
    start();
    setPages(3);
    controller->open();
    swipe(-40, 0);
    EXPECT_EQ(model().currentPage(), 1);
    swipe(-40, 0);
    swipe(-40, 0);
    EXPECT_EQ(model().currentPage(), 2);
    swipe(40, 0);
    EXPECT_EQ(model().currentPage(), 1);
}

TEST_F(Pages, LosingTheLastPageMovesToTheNewLastAndResizes)
{
    start();
    GridLayout layout = stores->grid.layout();
    layout.pageCount = 2;
    WidgetInstance low;
    low.kind = QStringLiteral("clock");
    low.page = 1;
    low.col = 0;
    low.row = 4;
    layout.instances.append(low);
    stores->grid.setLayout(layout);
    scheduler.runPosted();
    controller->open();
    controller->setPage(1);
    scheduler.runPosted();
    const double tall = panel().frame().height;
    EXPECT_EQ(tall, 600);
    layout.pageCount = 1;
    layout.instances.removeLast();
    stores->grid.setLayout(layout);
    scheduler.runPosted();
    EXPECT_EQ(model().currentPage(), 0);
    EXPECT_LT(panel().frame().height, tall);
}

TEST_F(Pages, APageInRangeIsNotTouchedByALayoutChange)
{
    start();
    setPages(3);
    controller->setPage(1);
    int changes = 0;
    QObject::connect(&model(), &NotchViewModel::currentPageChanged, [&] { ++changes; });
    setPages(2);
    EXPECT_EQ(changes, 0);
}

TEST_F(Pages, TheLastAssignmentOfATurnDecides)
{
    start();
    setPages(3);
    controller->open();
    model().setCurrentPage(2);
    model().setShowSettings(true);
    model().setShowSettings(false);
    const Rect before = panel().frame();
    scheduler.runPosted();
    EXPECT_EQ(panel().frame().width, before.width);
    EXPECT_EQ(model().currentPage(), 2);
}

} // namespace brimlight::test
