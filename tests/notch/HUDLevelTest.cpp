#include "notch/HUDLevel.h"

#include <gtest/gtest.h>

namespace brimlight::test {

TEST(HUDLevel, ASunStandsForBrightnessAtAnyLevel)
{
    for (const double level : {0.0, 0.2, 1.0})
        EXPECT_EQ(hudlevel::symbol(HUDType::brightness(level)), u"sun.max.fill");
}

TEST(HUDLevel, TheSpeakerShowsHowLoudItIs)
{
    const std::pair<double, const char *> rows[] = {
        {0, "speaker.slash.fill"},     {0.001, "speaker.wave.1.fill"}, {0.329, "speaker.wave.1.fill"},
        {0.33, "speaker.wave.2.fill"}, {0.659, "speaker.wave.2.fill"}, {0.66, "speaker.wave.3.fill"},
        {1, "speaker.wave.3.fill"},    {1.5, "speaker.wave.3.fill"}};
    for (const auto &[level, name] : rows)
        EXPECT_EQ(hudlevel::symbol(HUDType::volume(level)), QLatin1String(name)) << level;
}

TEST(HUDLevel, ThePercentageIsCutNotRounded)
{
    EXPECT_EQ(hudlevel::percent(0.999), u"99%");
    EXPECT_EQ(hudlevel::percent(0), u"0%");
    EXPECT_EQ(hudlevel::percent(1), u"100%");
    EXPECT_EQ(hudlevel::percent(0.4567), u"45%");
}

TEST(HUDLevel, WholePercentagesSurviveSinglePrecision)
{
    for (int percent = 0; percent <= 150; ++percent) {
        const double exact = percent / 100.0;
        EXPECT_EQ(hudlevel::percent(exact), QStringLiteral("%1%").arg(percent));
        EXPECT_EQ(hudlevel::percent(static_cast<double>(static_cast<float>(exact))),
                  QStringLiteral("%1%").arg(percent));
    }
}

TEST(HUDLevel, TheBarIsTheLevelsShareOfTheTrackAndNeverLessThanFourPoints)
{
    EXPECT_EQ(hudlevel::barWidth(0, 94), 4);
    EXPECT_EQ(hudlevel::barWidth(0.04, 94), 4);
    EXPECT_EQ(hudlevel::barWidth(0.5, 94), 47);
    EXPECT_EQ(hudlevel::barWidth(1, 94), 94);
    EXPECT_EQ(hudlevel::barWidth(1.3, 94), 94) << "an amplified volume stays within the track";
}

} // namespace brimlight::test
