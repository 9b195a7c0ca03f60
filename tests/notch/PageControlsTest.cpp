#include "notch/ControllerFixture.h"

#include <limits>

namespace brimlight::test {

class Capsules : public ControllerTest
{
protected:
    Capsules() { start(); }

    PageControls &capsules() { return *notch->scene.pageControls(); }
    void setPages(qint64 count)
    {
        GridLayout layout = stores->grid.layout();
        layout.pageCount = count;
        stores->grid.setLayout(layout);
        scheduler.runPosted();
    }
};

TEST_F(Capsules, ThereIsAlwaysOne)
{
    for (const qint64 pages : {1, 0, -1}) {
        setPages(pages);
        EXPECT_EQ(capsules().shown(), 1) << pages;
        EXPECT_EQ(capsules().first(), 0) << pages;
    }
}

TEST_F(Capsules, ThereIsOneForEachPageUpToTheMost)
{
    setPages(3);
    EXPECT_EQ(capsules().shown(), 3);
    setPages(PageControls::maximumShown);
    EXPECT_EQ(capsules().shown(), PageControls::maximumShown);
    setPages(std::numeric_limits<qint64>::max());
    EXPECT_EQ(capsules().shown(), PageControls::maximumShown);
}

TEST_F(Capsules, TheWindowHoldsTheCurrentPage)
{
    setPages(100);
    for (const int page : {0, 1, 4, 50, 97, 99}) {
        model().setCurrentPage(page);
        EXPECT_LE(capsules().first(), page);
        EXPECT_LT(page, capsules().first() + capsules().shown());
        EXPECT_LE(capsules().first() + capsules().shown(), 100);
        EXPECT_GE(capsules().first(), 0);
    }
}

TEST_F(Capsules, AnAddedPageIsShown)
{
    capsules().addPage();
    EXPECT_EQ(stores->grid.layout().pageCount, 2);
    EXPECT_EQ(model().currentPage(), 1);
    EXPECT_EQ(capsules().shown(), 2);
}

} // namespace brimlight::test
