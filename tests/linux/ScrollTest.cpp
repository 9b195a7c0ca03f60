#include "platform/linux/x11/ScrollGesture.h"
#include "platform/linux/x11/TouchpadScroll.h"

#include "fakes/ManualScheduler.h"

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

namespace brimlight::test {

using namespace std::chrono_literals;
using Phase = ScrollEvent::Phase;

class Gesture : public testing::Test
{
protected:
    std::vector<Phase> phases() const
    {
        std::vector<Phase> list;
        for (const ScrollEvent &event : events)
            list.push_back(event.phase);
        return list;
    }

    ManualScheduler scheduler;
    std::vector<ScrollEvent> events;
    void step(double deltaX, double deltaY) { gesture.step(deltaX, deltaY, place); }

    static constexpr Point place{40, 60};
    ScrollGesture gesture{scheduler, [this](const ScrollEvent &event) { events.push_back(event); }};
};

TEST_F(Gesture, BeginsChangesAndEndsAtTheSilence)
{
    step(1, 2);
    scheduler.advance(149ms);
    step(3, 4);
    scheduler.advance(149ms);
    step(5, 6);
    EXPECT_EQ(phases(), (std::vector{Phase::began, Phase::changed, Phase::changed}));
    scheduler.advance(149ms);
    EXPECT_EQ(events.size(), 3u);
    scheduler.advance(1ms);
    EXPECT_EQ(phases().back(), Phase::ended);
    EXPECT_EQ(events[2].deltaX, 5);
    EXPECT_EQ(events[2].deltaY, 6);
    for (const ScrollEvent &event : events)
        EXPECT_EQ(event.position, place);
}

TEST_F(Gesture, ANewOneBeginsAfterTheSilence)
{
    step(1, 0);
    scheduler.advance(150ms);
    step(1, 0);
    EXPECT_EQ(phases(), (std::vector{Phase::began, Phase::ended, Phase::began}));
}

TEST_F(Gesture, NothingIsPendingAfterTheEnd)
{
    step(1, 0);
    scheduler.advance(1s);
    EXPECT_EQ(scheduler.pendingCount(), 0);
}

/// The bytes of a motion event that carries these valuators, as the server lays them out.
class MotionEvent
{
public:
    explicit MotionEvent(const std::vector<std::pair<uint16_t, double>> &valuators)
    {
        xcb_input_button_press_event_t head{};
        head.event_type = XCB_INPUT_MOTION;
        head.valuators_len = 1;
        uint32_t mask = 0;
        std::vector<xcb_input_fp3232_t> values;
        for (const auto &[number, value] : valuators) {
            mask |= 1u << number;
            const double whole = std::floor(value);
            values.push_back({.integral = static_cast<int32_t>(whole),
                              .frac = static_cast<uint32_t>((value - whole) * 4294967296.0)});
        }
        append(&head, sizeof head);
        append(&mask, sizeof mask);
        append(values.data(), values.size() * sizeof(xcb_input_fp3232_t));
    }
    const xcb_input_button_press_event_t &event() const
    {
        return *reinterpret_cast<const xcb_input_button_press_event_t *>(m_words.data());
    }

private:
    void append(const void *bytes, size_t count)
    {
        if (count == 0)
            return;
        const size_t at = m_words.size();
        m_words.resize(at + count / sizeof(uint32_t));
        std::memcpy(m_words.data() + at, bytes, count);
    }
    std::vector<uint32_t> m_words;
};

class Axes : public testing::Test
{
protected:
    std::optional<ScrollStep> read(const std::vector<std::pair<uint16_t, double>> &valuators)
    {
        return scrollStep(MotionEvent(valuators).event(), source);
    }

    ScrollSource source{.isTouchpad = true,
                        .horizontal = ScrollAxis{.valuator = 2, .increment = 15, .last = std::nullopt},
                        .vertical = ScrollAxis{.valuator = 3, .increment = 15, .last = std::nullopt}};
};

TEST_F(Axes, TheFirstValueOnlySetsTheStart)
{
    const auto step = read({{3, 1000}});
    ASSERT_TRUE(step);
    EXPECT_EQ(step->deltaY, 0);
}

TEST_F(Axes, GrowingValuesMoveTheContentUpAndLeft)
{
    read({{2, 100}, {3, 1000}});
    const auto step = read({{2, 103.5}, {3, 990}});
    ASSERT_TRUE(step);
    EXPECT_DOUBLE_EQ(step->deltaX, -3.5);
    EXPECT_DOUBLE_EQ(step->deltaY, 10);
}

TEST_F(Axes, ScaleByTheIncrementOfTheDevice)
{
    source.vertical->increment = -120;
    read({{3, 0}});
    EXPECT_DOUBLE_EQ(read({{3, 240}})->deltaY, 30);
}

TEST_F(Axes, ForgottenPositionsAreThoseThatOtherWindowsScrolled)
{
    read({{3, 0}});
    source.forgetPositions();
    EXPECT_DOUBLE_EQ(read({{3, 5000}})->deltaY, 0);
    EXPECT_DOUBLE_EQ(read({{3, 4985}})->deltaY, 15);
}

TEST_F(Axes, PlainMotionIsNoScrolling)
{
    EXPECT_FALSE(read({{0, 10}, {1, 20}}));
    EXPECT_FALSE(read({}));
}

TEST_F(Axes, OtherValuatorsInTheSameEventDoNotConfuse)
{
    read({{0, 1}, {1, 2}, {3, 100}});
    EXPECT_DOUBLE_EQ(read({{0, 9}, {1, 9}, {3, 85}, {4, 7}})->deltaY, 15);
}

TEST(WheelButtons, StandForOneClickEach)
{
    EXPECT_EQ(scrollStep(4u)->deltaY, pointsPerClick);
    EXPECT_EQ(scrollStep(5u)->deltaY, -pointsPerClick);
    EXPECT_EQ(scrollStep(6u)->deltaX, pointsPerClick);
    EXPECT_EQ(scrollStep(7u)->deltaX, -pointsPerClick);
    EXPECT_FALSE(scrollStep(1u));
    EXPECT_FALSE(scrollStep(8u));
}

} // namespace brimlight::test
