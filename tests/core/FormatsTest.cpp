#include "core/Formats.h"

#include <gtest/gtest.h>

namespace brimlight::test {

TEST(Formats, PercentIsRounded)
{
    EXPECT_EQ(formats::percent(0), QStringLiteral("0%"));
    EXPECT_EQ(formats::percent(0.374), QStringLiteral("37%"));
    EXPECT_EQ(formats::percent(0.375), QStringLiteral("38%"));
    EXPECT_EQ(formats::percent(1), QStringLiteral("100%"));
}

TEST(Formats, CutPercentIsNeverRoundedUpToTheNext)
{
    EXPECT_EQ(formats::percentCut(0), QStringLiteral("0%"));
    EXPECT_EQ(formats::percentCut(0.379), QStringLiteral("37%"));
    EXPECT_EQ(formats::percentCut(0.999), QStringLiteral("99%"));
    EXPECT_EQ(formats::percentCut(1), QStringLiteral("100%"));
}

TEST(Formats, CutPercentKeepsWholePercents)
{
    for (int percent = 0; percent <= 100; ++percent)
        EXPECT_EQ(formats::percentCut(percent / 100.0), formats::percentNumber(percent));
}

TEST(Formats, CutPercentForgivesAsMuchAsItIsTold)
{
    EXPECT_EQ(formats::percentCut(0.45F), QStringLiteral("44%")) << "single precision is a little less";
    EXPECT_EQ(formats::percentCut(0.45F, 1e-4), QStringLiteral("45%"));
}

TEST(Formats, DegreesAreRoundedInTheUnitThatIsShown)
{
    EXPECT_EQ(formats::wholeDegrees(54.5, true), 55);
    EXPECT_EQ(formats::wholeDegrees(37, false), 99);
    EXPECT_EQ(formats::wholeDegrees(-40, false), -40);
    EXPECT_EQ(formats::degrees(-0.4, true), QStringLiteral("0°"));
}

TEST(Formats, FromAHundredGigabytesUpThereIsNoDecimal)
{
    EXPECT_EQ(formats::gigabytes(100'000'000'000), QStringLiteral("100 GB"));
    EXPECT_EQ(formats::gigabytes(99'960'000'000), QStringLiteral("100.0 GB"));
    EXPECT_EQ(formats::gigabytes(0), QStringLiteral("0.0 GB"));
}

TEST(Formats, UnitsOfARateChangeAtTheUnroundedLimits)
{
    EXPECT_EQ(formats::rate(999.6), QStringLiteral("1000 B/s"));
    EXPECT_EQ(formats::rate(1000), QStringLiteral("1 KB/s"));
    EXPECT_EQ(formats::rate(999'999), QStringLiteral("1000 KB/s"));
    EXPECT_EQ(formats::rate(1e6), QStringLiteral("1.0 MB/s"));
    EXPECT_EQ(formats::compactRate(999.4), QStringLiteral("999"));
    EXPECT_EQ(formats::compactRate(12'345), QStringLiteral("12K"));
    EXPECT_EQ(formats::compactRate(3.44e6), QStringLiteral("3.4M"));
}

TEST(Formats, ALongDurationIsToldInItsTwoLargestUnits)
{
    EXPECT_EQ(formats::daysHoursMinutes(59), QStringLiteral("0m"));
    EXPECT_EQ(formats::daysHoursMinutes(3599), QStringLiteral("59m"));
    EXPECT_EQ(formats::daysHoursMinutes(3600), QStringLiteral("1h 0m"));
    EXPECT_EQ(formats::daysHoursMinutes(86399), QStringLiteral("23h 59m"));
    EXPECT_EQ(formats::daysHoursMinutes(86400), QStringLiteral("1d 0h"));
    EXPECT_EQ(formats::daysHoursMinutes(273600), QStringLiteral("3d 4h"));
}

TEST(Formats, MinutesOfAnHourHaveTwoDigits)
{
    EXPECT_EQ(formats::hoursAndMinutes(5), QStringLiteral("0:05"));
    EXPECT_EQ(formats::hoursAndMinutes(605), QStringLiteral("10:05"));
}

} // namespace brimlight::test
