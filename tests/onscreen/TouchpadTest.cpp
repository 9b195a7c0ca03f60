#include "ScreenReaderTest.h"
#include "TouchpadDevice.h"

#include <utility>

namespace brimlight::onscreen {

using namespace Qt::StringLiterals;

namespace {

/// Two fingers on a real device. What moves is judged by where a screen reader finds it.
class OnTouchpad : public ReadOnEachDesktop
{
protected:
    void SetUp() override
    {
        session.writeConfigFile(u"Brimlight/defaults.json"_s, R"({"brimlight.onboardingCompleted": true})");
        session.writeConfigFile(u"../data/Brimlight/grid.json"_s, R"({"instances": [], "pageCount": 3})");
        startPanel();
        touchpad.emplace(session);
        const auto open = openByTap();
        ASSERT_TRUE(open);
        frame = *open;
    }

    void openSettings()
    {
        click(u"push button"_s, u"Settings"_s);
        ASSERT_TRUE(shows(u"page tab"_s, u"General"_s));
        ASSERT_TRUE(showsNoMore(u"push button"_s, u"Settings"_s)) << "the grid has faded out";
        // The panel grows to its place.
        rest(u"page tab"_s, u"General"_s);
    }
    /// Where the object is once it does not move.
    QRect rest(const QString &role, const QString &name) const
    {
        constexpr int often = 8;
        QRect place;
        int same = 0;
        EXPECT_TRUE(waitUntil([&] {
            const auto object = reader->find(role, name);
            const QRect before = std::exchange(place, object ? reader->frame(*object) : QRect());
            same = !place.isEmpty() && place == before ? same + 1 : 0;
            return same == often;
        })) << qPrintable(name);
        return place;
    }
    /// Puts the pointer there before the fingers move: the two are devices of their own.
    void pointAt(QPoint point) const
    {
        hand.moveTo(point);
        x.sync();
    }
    bool comesTo(const QString &role, const QString &name, QPoint place) const
    {
        return waitUntil([&] {
            const auto object = reader->find(role, name);
            return object && reader->frame(*object).topLeft() == place;
        });
    }
    void expectMovesBy(const QString &role, const QString &name, int distance)
    {
        // What the device does first only tells the program where it stands.
        const QRect before = rest(role, name);
        ASSERT_TRUE(waitUntil([&] {
            touchpad->scroll(0, -1);
            const auto object = reader->find(role, name);
            return object && reader->frame(*object) != before;
        }));
        const QPoint from = rest(role, name).topLeft();
        touchpad->scrollBy(0, distance);
        EXPECT_TRUE(comesTo(role, name, from + QPoint(0, distance)))
            << qPrintable(name) << " is at " << rest(role, name).top() << ", was at " << from.y();
    }

    /// Gesture after gesture: the first may do no more than tell where the device stands, since motions that
    /// come at once count as one.
    bool swipesUntilItSays(QPoint way, const QString &line)
    {
        // Long enough for the next to be a gesture of its own.
        constexpr milliseconds lifted{400};
        return waitUntil([&] {
            touchpad->scrollBy(way.x(), way.y());
            return panel->waitForLine(line, lifted).has_value();
        });
    }

    std::optional<TouchpadDevice> touchpad;
    QRect frame;
};

INSTANTIATE_TEST_SUITE_P(OnScreen, OnTouchpad,
                         testing::Values(Desktop{.windowManager = "openbox", .hasTouchpad = true}), nameOf);

TEST_P(OnTouchpad, TheGeneralSettingsScrollAndStayOpen)
{
    openSettings();
    pointAt(frame.center() + QPoint(0, 100));
    expectMovesBy(u"check box"_s, u"Use 24-hour clock format"_s, -50);
    keepPicture();
    expectMovesBy(u"check box"_s, u"Use 24-hour clock format"_s, 30);
    EXPECT_TRUE(staysOpen());
}

TEST_P(OnTouchpad, AtTheEndOfTheSettingsNothingCloses)
{
    openSettings();
    pointAt(frame.center() + QPoint(0, 100));
    for (const int distance : {400, -2000, -400}) {
        touchpad->scrollBy(0, distance);
        EXPECT_TRUE(staysOpen()) << distance;
    }
}

TEST_P(OnTouchpad, TheAppearanceSettingsScrollAndStayOpen)
{
    openSettings();
    click(u"page tab"_s, u"Appearance"_s);
    pointAt(frame.center() + QPoint(0, 100));
    expectMovesBy(u"radio button"_s, u"Ocean"_s, -40);
    EXPECT_TRUE(staysOpen());
}

TEST_P(OnTouchpad, TheGalleryScrollsAndStaysOpen)
{
    click(u"push button"_s, u"Add widget"_s);
    pointAt(frame.center() + QPoint(0, 20));
    ASSERT_TRUE(shows(u"list"_s, u"Add a widget"_s));
    const QImage before = x.screenshot();
    touchpad->scrollBy(0, -70);
    EXPECT_TRUE(waitUntil([&] { return changed(before, frame.adjusted(60, 60, -60, -60)) > 0.1; }));
    keepPicture();
    EXPECT_TRUE(staysOpen());
}

TEST_P(OnTouchpad, TheBareGridTurnsItsPages)
{
    pointAt(frame.center());
    EXPECT_TRUE(swipesUntilItSays(QPoint(-90, 0), u"^Page -> 1/2$"_s));
    EXPECT_TRUE(swipesUntilItSays(QPoint(90, 0), u"^Page -> 0/2$"_s));
    EXPECT_TRUE(staysOpen());
}

TEST_P(OnTouchpad, UpOnTheBareGridCloses)
{
    pointAt(frame.center());
    EXPECT_TRUE(swipesUntilItSays(QPoint(0, -90), QString::fromLatin1(closed)));
}

} // namespace
} // namespace brimlight::onscreen
