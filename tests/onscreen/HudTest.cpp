#include "OnScreenTest.h"
#include "fakes/PulseDaemon.h"

#include <cmath>

namespace brimlight::onscreen {

using namespace Qt::StringLiterals;

namespace {

/// The program beside a real audio server at 40 %.
class Hud : public OnEachDesktop
{
protected:
    void SetUp() override
    {
        audio.start({sink});
        ASSERT_TRUE(audio.setVolume(sink, u"40%"_s));
        session.writeConfigFile(u"Brimlight/defaults.json"_s, R"({"brimlight.onboardingCompleted": true})");
        // No tile moves on the open panel.
        session.writeConfigFile(u"../data/Brimlight/grid.json"_s, R"({"instances": [], "pageCount": 1})");
        startPanel();
        const QSize size(168, 24);
        place = {QPoint(strip.center().x() - size.width() / 2 + 1, strip.bottom() + 1 + 6), size};
        track = {place.left() + 32, place.top() + 10, 94, 4};
    }

    bool setVolume(const QString &volume) { return audio.setVolume(sink, volume); }
    /// The program comes to the server a little after its start and takes what it finds silently; then a
    /// change is seen.
    bool showsFirst()
    {
        int percent = 50;
        return waitUntil([&] {
            percent = percent == 50 ? 60 : 50;
            return setVolume(QString::number(percent) + u'%') &&
                   waitUntil([this] { return isSeen(); }, milliseconds(400));
        });
    }
    bool isSeen() const { return changed(bare, place) > 0.95; }
    bool nothingIsSeen() const { return changed(bare, QRect(0, 0, x.size().width(), 800)) == 0; }
    /// How many columns of the bar's track are filled.
    int filled() const
    {
        const QImage now = x.screenshot();
        const int row = track.center().y();
        const QRgb fill = now.pixel(track.left() + 2, row);
        int columns = 2;
        while (columns < track.width() && now.pixel(track.left() + columns, row) == fill)
            ++columns;
        return columns;
    }

    const QString sink = u"one"_s;
    test::PulseDaemon audio{session.environment()};
    QRect place;
    QRect track;
};

INSTANTIATE_TEST_SUITE_P(OnScreen, Hud, testing::ValuesIn(anyDesktop), nameOf);

class HudInSight : public Hud
{
};

INSTANTIATE_TEST_SUITE_P(OnScreen, HudInSight, testing::ValuesIn(withAndWithoutCompositor), nameOf);

TEST_P(HudInSight, IsSeenUnderTheStripAndNowhereElse)
{
    EXPECT_TRUE(nothingIsSeen());
    ASSERT_TRUE(showsFirst());
    ASSERT_TRUE(setVolume(u"75%"_s));
    EXPECT_TRUE(waitUntil([this] { return std::abs(filled() - 70) <= 2; })) << filled();
    ASSERT_TRUE(setVolume(u"25%"_s));
    EXPECT_TRUE(waitUntil([this] { return std::abs(filled() - 23) <= 2; })) << filled();
    keepPicture();
    // A compositor may cast a shadow. The spring that it comes on goes a little too far at first.
    const int width = x.size().width();
    const auto standsAlone = [&] {
        return changed(bare, strip) == 0 && changed(bare, {0, place.bottom() + 1, width, 300}) == 0 &&
               changed(bare, {0, 0, place.left(), 300}) == 0 &&
               changed(bare, {place.right() + 1, 0, width, 300}) == 0;
    };
    EXPECT_TRUE(x.isComposited() || waitUntil([&] { return standsAlone() && isSeen(); }));
}

TEST_P(Hud, GoesOneAndAHalfSecondsAfterTheLastChange)
{
    ASSERT_TRUE(showsFirst());
    EXPECT_TRUE(holds([this] { return isSeen(); }, milliseconds(600)));
    const auto last = Clock::now();
    ASSERT_TRUE(setVolume(u"80%"_s));
    // A busy machine may have taken so long that it had gone.
    ASSERT_TRUE(waitUntil([this] { return isSeen() && std::abs(filled() - 75) <= 2; })) << filled();
    ASSERT_TRUE(waitUntil([this] { return nothingIsSeen(); }));
    const auto seconds = std::chrono::duration<double>(Clock::now() - last).count();
    EXPECT_GT(seconds, 1.4);
    // The window is as small as before.
    EXPECT_TRUE(waitUntil([this] { return !programWindowAt(place.center()); }));
}

TEST_P(HudInSight, LetsClicksThrough)
{
    Victim victim(session.display(), Victim::Kind::plain);
    ASSERT_TRUE(waitUntil([this] {
        bare = x.screenshot();
        return bare.pixel(place.center()) == Victim::color;
    }));
    ASSERT_TRUE(showsFirst());
    ASSERT_TRUE(setVolume(u"70%"_s)) << "it stays as long as it can";
    EXPECT_TRUE(programWindowAt(place.center()));
    expectClicksReach(victim, {place.center(), place.topLeft() + QPoint(12, 12)});
    EXPECT_TRUE(isSeen());
}

TEST_P(Hud, TheStripOpensThePanelMeanwhileAndThenNothingIsShown)
{
    ASSERT_TRUE(showsFirst());
    const auto frame = openByTap();
    ASSERT_TRUE(frame);
    hand.moveTo(away());
    ASSERT_TRUE(rests(*frame));
    const QImage open = x.screenshot();
    ASSERT_TRUE(setVolume(u"90%"_s));
    EXPECT_TRUE(holds([&] { return changed(open, place) == 0; }));
    hand.clickAt(onStrip());
    ASSERT_TRUE(waitForClose());
    hand.moveTo(away());
    EXPECT_TRUE(waitUntil([this] { return nothingIsSeen(); }));
    EXPECT_TRUE(holds([this] { return nothingIsSeen(); }));
}

TEST_P(Hud, AMutedDeviceShowsAnEmptyBar)
{
    ASSERT_TRUE(showsFirst());
    ASSERT_TRUE(audio.setMute(sink, true));
    EXPECT_TRUE(waitUntil([this] { return filled() <= 4; })) << filled();
}

TEST_P(Hud, FollowsTheOutputThatIsChosenWithoutShowingTheChoice)
{
    const QString headset = u"headset"_s;
    ASSERT_TRUE(audio.run({u"load-module"_s, u"module-null-sink"_s, u"sink_name="_s + headset}));
    ASSERT_TRUE(audio.select(sink));
    ASSERT_TRUE(audio.setVolume(headset, u"90%"_s));
    ASSERT_TRUE(showsFirst());
    ASSERT_TRUE(waitUntil([this] { return nothingIsSeen(); }));
    ASSERT_TRUE(audio.select(headset));
    EXPECT_TRUE(holds([this] { return nothingIsSeen(); }));
    ASSERT_TRUE(setVolume(u"20%"_s)) << "the one that nobody hears";
    EXPECT_TRUE(holds([this] { return nothingIsSeen(); }));
    ASSERT_TRUE(audio.setVolume(headset, u"75%"_s));
    EXPECT_TRUE(waitUntil([this] { return isSeen() && std::abs(filled() - 70) <= 2; })) << filled();
}

TEST_P(Hud, AServerThatIsRestartedShowsNothingByItself)
{
    ASSERT_TRUE(showsFirst());
    audio.kill();
    ASSERT_TRUE(waitUntil([this] { return nothingIsSeen(); }));
    audio.start({sink});
    EXPECT_TRUE(holds([this] { return nothingIsSeen(); }));
    EXPECT_TRUE(showsFirst());
}

} // namespace
} // namespace brimlight::onscreen
