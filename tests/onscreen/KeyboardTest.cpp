#include "OnScreenTest.h"

namespace brimlight::onscreen {

using namespace Qt::StringLiterals;

namespace {

/// The surface with a text field in it, as the program's widgets have them.
class Keyboard : public OnEachDesktop
{
protected:
    static constexpr uint32_t letterA = 'a';

    Victim victim{session.display(), Victim::Kind::plain};

    void SetUp() override { startPanel(QStringLiteral(TEXT_FIELD_PROGRAM)); }

    /// Never twice the same place: a second click would select what has been typed.
    QPoint onField()
    {
        m_nextColumn += 20;
        return strip.topLeft() + QPoint(m_nextColumn, 80);
    }
    QPoint onBareSurface() const { return strip.topLeft() + QPoint(100, 160); }

    void expectFieldTypes(const QString &textAfterwards)
    {
        EXPECT_TRUE(waitUntil([this] { return x.focus() == programWindowAt(strip.center())->id; }));
        const int before = victim.keyPresses();
        hand.typeKey(letterA);
        EXPECT_TRUE(panel->waitForLine(u"^Field text="_s + textAfterwards + u'$'));
        EXPECT_EQ(victim.keyPresses(), before);
    }

    void expectVictimTypes()
    {
        EXPECT_TRUE(waitUntil([this] { return x.focus() == victim.id(); }));
        const int before = victim.keyPresses();
        hand.typeKey(letterA);
        EXPECT_TRUE(waitUntil([&] { return victim.keyPresses() == before + 1; }));
    }

private:
    int m_nextColumn = 40;
};

INSTANTIATE_TEST_SUITE_P(OnScreen, Keyboard, testing::ValuesIn(windowManagers), nameOf);

TEST_P(Keyboard, StaysWithTheWindowBelowUntilAFieldIsClicked)
{
    expectVictimTypes();
    hand.moveTo(onField());
    expectVictimTypes();
    hand.clickAt(onBareSurface());
    expectVictimTypes();
}

TEST_P(Keyboard, GoesToTheFieldThatIsClicked)
{
    hand.clickAt(onField());
    expectFieldTypes(u"a"_s);
    expectFieldTypes(u"aa"_s);
}

TEST_P(Keyboard, GoesBackWhenTheFieldLosesTheFocus)
{
    hand.clickAt(onField());
    expectFieldTypes(u"a"_s);
    hand.clickAt(onBareSurface());
    expectVictimTypes();
    EXPECT_TRUE(waitUntil([this] { return x.activeWindow() == victim.id(); }));
}

TEST_P(Keyboard, GoesBackWhenTheWindowBelowIsClicked)
{
    hand.clickAt(onField());
    expectFieldTypes(u"a"_s);
    hand.clickAt({x.size().width() / 2, x.size().height() / 2});
    expectVictimTypes();
}

TEST_P(Keyboard, CanBeTakenAgainAndAgain)
{
    for (int i = 1; i <= 3; ++i) {
        hand.clickAt(onField());
        expectFieldTypes(QString(i, u'a'));
        if (i == 2)
            hand.clickAt({x.size().width() / 2, x.size().height() / 2});
        else
            hand.clickAt(onBareSurface());
        expectVictimTypes();
    }
}

TEST_P(Keyboard, IsLetGoWhenTheWindowThatHadItIsGone)
{
    std::optional<Victim> another;
    another.emplace(session.display(), Victim::Kind::plain);
    hand.clickAt(onField());
    expectFieldTypes(u"a"_s);
    const xcb_window_t field = x.focus();
    another.reset();
    hand.clickAt(onBareSurface());
    EXPECT_TRUE(waitUntil([&] { return x.focus() != field; }));
}

TEST_P(Keyboard, GoesBackWhenTheSurfaceShowsNothingAnyMore)
{
    hand.clickAt(onField());
    expectFieldTypes(u"a"_s);
    panel->raiseSignal(SIGUSR2);
    expectVictimTypes();
}

} // namespace
} // namespace brimlight::onscreen
