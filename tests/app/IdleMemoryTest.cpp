#include "app/IdleMemory.h"

#include "fakes/Fakes.h"
#include "notch/NotchViewModel.h"

#include <gtest/gtest.h>

namespace brimlight::test {
namespace {

using namespace std::chrono_literals;

class IdleMemoryTest : public testing::Test
{
protected:
    MemoryDefaults defaults;
    ManualScheduler scheduler;
    NotchViewModel viewModel{defaults};
    int given = 0;
    IdleMemory memory{viewModel, scheduler, [this] { ++given; }};
};

TEST_F(IdleMemoryTest, GoesBackOnceAWhileAfterTheCollapse)
{
    viewModel.setExpanded(true);
    scheduler.advance(1min);
    EXPECT_EQ(given, 0);
    viewModel.setExpanded(false);
    scheduler.advance(IdleMemory::delay - 1ms);
    EXPECT_EQ(given, 0);
    scheduler.advance(1ms);
    EXPECT_EQ(given, 1);
    scheduler.advance(1h);
    EXPECT_EQ(given, 1);
}

TEST_F(IdleMemoryTest, StaysWithAPanelThatIsOpenedAgain)
{
    viewModel.setExpanded(true);
    viewModel.setExpanded(false);
    scheduler.advance(1s);
    viewModel.setExpanded(true);
    scheduler.advance(1min);
    EXPECT_EQ(given, 0);
}

} // namespace
} // namespace brimlight::test
