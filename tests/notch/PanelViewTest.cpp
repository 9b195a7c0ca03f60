#include "notch/PanelViewFixture.h"

#include "core/Translations.h"
#include "notch/OnboardingSteps.h"

namespace brimlight::test {
namespace {

class Header : public PanelView
{
protected:
    /// Between its two groups.
    QPointF emptySpace()
    {
        const QList<QQuickItem *> headers = scene.ofType("NotchHeader");
        return headers.size() == 1 ? Scene::middle(*headers.first()) : QPointF();
    }
};

class Walkthrough : public PanelView
{
protected:
    Walkthrough() { defaults.values.clear(); }

    void press(const QString &button)
    {
        QQuickItem *item = scene.button(button);
        ASSERT_TRUE(item) << qPrintable(button);
        scene.click(*item);
        settle();
    }
};

} // namespace

TEST_F(Header, OnePageShowsOneCapsuleAndTheAddButton)
{
    start();
    setPages(1);
    open();
    EXPECT_EQ(scene.namesOf(QAccessible::PageTab), QStringList{QStringLiteral("Page 1")});
    QQuickItem *add = scene.button(QStringLiteral("Add page"));
    ASSERT_TRUE(add);
    scene.click(*add);
    settle();
    EXPECT_EQ(scene.namesOf(QAccessible::PageTab),
              (QStringList{QStringLiteral("Page 1"), QStringLiteral("Page 2")}));
    EXPECT_EQ(model().currentPage(), 1);
}

TEST_F(Header, ATapOnACapsuleTurnsThePage)
{
    start();
    setPages(3);
    open();
    const QList<QQuickItem *> capsules = scene.withRole(QAccessible::PageTab);
    ASSERT_EQ(capsules.size(), 3);
    scene.click(*capsules[2]);
    EXPECT_EQ(model().currentPage(), 2);
    EXPECT_TRUE(isExpanded());
}

TEST_F(Header, ATapOnItsEmptySpaceClosesThePanelPinnedOrNot)
{
    start();
    for (const bool pinned : {false, true}) {
        SCOPED_TRACE(pinned ? "pinned" : "not pinned");
        if (pinned)
            controller->open();
        else
            controller->setExpanded(true);
        settle();
        EXPECT_EQ(model().isPinned(), pinned);
        ASSERT_FALSE(emptySpace().isNull());
        scene.click(emptySpace());
        EXPECT_FALSE(isExpanded());
        EXPECT_FALSE(model().isPinned());
        settle();
    }
}

TEST_F(Header, ThePinButtonDoesNotCloseAPanelThatItPins)
{
    start();
    controller->setExpanded(true);
    settle();
    QQuickItem *pin = scene.button(QStringLiteral("Keep open"));
    ASSERT_TRUE(pin);
    scene.click(*pin);
    EXPECT_TRUE(isExpanded());
    EXPECT_TRUE(model().isPinned());
}

TEST_F(Header, AMoonAndAMicrophoneTellOfTheMachinesSwitches)
{
    const QString moon = QStringLiteral("Do Not Disturb");
    const QString microphone = QStringLiteral("Microphone muted");
    start();
    open();
    EXPECT_TRUE(scene.withRole(QAccessible::Indicator).isEmpty());
    doNotDisturb.bannersHidden = true;
    scheduler.advance(1s);
    EXPECT_EQ(scene.namesOf(QAccessible::Indicator), QStringList(moon));
    audio.find(AudioDirection::input, {.volume = 1, .isMuted = true});
    EXPECT_EQ(scene.namesOf(QAccessible::Indicator), QStringList({moon, microphone}));
    doNotDisturb.bannersHidden = false;
    scheduler.advance(1s);
    EXPECT_EQ(scene.namesOf(QAccessible::Indicator), QStringList(microphone));
    audio.change(AudioDirection::input, {.volume = 1, .isMuted = false});
    EXPECT_TRUE(scene.withRole(QAccessible::Indicator).isEmpty());
}

TEST_F(Walkthrough, HidesTheHeaderAndIsThreeHundredHigh)
{
    const QStringList header{QStringLiteral("Add widget"), QStringLiteral("Keep open"),
                             QStringLiteral("Settings"), QStringLiteral("Add page")};
    start();
    open();
    EXPECT_EQ(panel().frame().height, 300);
    EXPECT_EQ(panel().pane().height(), 300);
    EXPECT_FALSE(scene.texts().contains(QStringLiteral("Brimlight")));
    EXPECT_TRUE(scene.withRole(QAccessible::PageTab).isEmpty());
    for (const QString &name : header)
        EXPECT_FALSE(scene.button(name)) << qPrintable(name);
    press(QStringLiteral("Skip"));
    EXPECT_TRUE(model().onboardingCompleted());
    EXPECT_TRUE(scene.texts().contains(QStringLiteral("Brimlight")));
    for (const QString &name : header)
        EXPECT_TRUE(scene.button(name)) << qPrintable(name);
}

TEST_F(Walkthrough, TheFirstStepHasNoBackAndTheLastNoSkip)
{
    const QString skip = QStringLiteral("Skip");
    const QString back = QStringLiteral("Back");
    const QString next = QStringLiteral("Next");
    start();
    open();
    EXPECT_EQ(scene.namesOf(QAccessible::Button), (QStringList{skip, next}));
    press(next);
    EXPECT_EQ(scene.namesOf(QAccessible::Button), (QStringList{skip, back, next}));
    press(back);
    EXPECT_EQ(scene.namesOf(QAccessible::Button), (QStringList{skip, next}));
    press(next);
    press(next);
    press(next);
    EXPECT_EQ(scene.namesOf(QAccessible::Button), (QStringList{back, QStringLiteral("Get Started")}));
    press(QStringLiteral("Get Started"));
    EXPECT_TRUE(model().onboardingCompleted());
}

class WalkthroughIn : public Walkthrough, public testing::WithParamInterface<AppLanguage>
{
};

INSTANTIATE_TEST_SUITE_P(Languages, WalkthroughIn,
                         testing::Values(AppLanguage::english, AppLanguage::german, AppLanguage::french,
                                         AppLanguage::spanish, AppLanguage::italian),
                         [](const auto &info) { return rawValue(info.param).toStdString(); });

TEST_P(WalkthroughIn, ALanguageInTheDefaultsChangesAllTexts)
{
    defaults.values.insert(QStringLiteral("brimlight.language"), rawValue(GetParam()));
    start();
    open();
    OnboardingSteps steps;
    for (int step = 0; step < OnboardingSteps::count(); ++step, steps.next()) {
        QSet<QString> expected{steps.title(), steps.description(),
                               steps.isLast() ? QStringLiteral("Get Started") : QStringLiteral("Next")};
        if (!steps.isLast())
            expected.insert(QStringLiteral("Skip"));
        if (steps.hasBack())
            expected.insert(QStringLiteral("Back"));
        QSet<QString> translated;
        for (const QString &text : expected)
            translated.insert(translate(text, GetParam()));
        const QStringList texts = scene.texts();
        EXPECT_EQ(QSet(texts.begin(), texts.end()), translated) << step;
        if (!steps.isLast())
            press(translate(QStringLiteral("Next"), GetParam()));
    }
}

class SettingsPanel : public PanelView
{
protected:
    bool isShown() { return !scene.ofType("ThemeSettingsView").isEmpty(); }
    void press(const QString &button)
    {
        QQuickItem *item = scene.button(button);
        ASSERT_TRUE(item) << qPrintable(button);
        scene.click(*item);
        settle();
    }
};

TEST_F(SettingsPanel, OpensByTheGearInsteadOfTheGridAndClosesByBack)
{
    start();
    controller->setExpanded(true);
    settle();
    EXPECT_FALSE(isShown());
    press(QStringLiteral("Settings"));
    EXPECT_TRUE(isShown());
    EXPECT_TRUE(model().isPinned());
    EXPECT_EQ(panel().frame().height, 540);
    EXPECT_TRUE(scene.ofType("WidgetGridView").isEmpty());
    press(QStringLiteral("Back"));
    EXPECT_FALSE(isShown());
    EXPECT_FALSE(scene.ofType("WidgetGridView").isEmpty());
    EXPECT_TRUE(model().isPinned()) << "going back leaves the pin";
}

TEST_F(SettingsPanel, EscapeLeavesItAndThenClosesThePanel)
{
    start();
    open();
    press(QStringLiteral("Settings"));
    QTest::keyClick(&window.view(), Qt::Key_Escape);
    settle();
    EXPECT_FALSE(isShown());
    EXPECT_TRUE(isExpanded());
    QTest::keyClick(&window.view(), Qt::Key_Escape);
    EXPECT_FALSE(isExpanded());
}

TEST_F(SettingsPanel, AClickBetweenItsControlsDoesNotCloseThePanel)
{
    start();
    open();
    press(QStringLiteral("Settings"));
    const QList<QQuickItem *> cards = scene.ofType("SettingsCard");
    ASSERT_GT(cards.size(), 1);
    scene.click(Scene::frameOf(*cards[0]).bottomLeft() + QPointF(40, 6));
    scene.click(Scene::frameOf(*cards[0]).topLeft() + QPointF(4, 4));
    settle();
    EXPECT_TRUE(isExpanded());
}

TEST_F(SettingsPanel, IsReleasedWithTheClosedPanelAndOpensOnTheFirstTabAgain)
{
    start();
    controller->openSettings();
    settle();
    scene.click(*scene.withRole(QAccessible::PageTab).last());
    settle();
    EXPECT_TRUE(scene.texts().contains(QStringLiteral("Theme Presets")));
    controller->requestClose();
    settle();
    EXPECT_FALSE(isShown());
    controller->open();
    settle();
    EXPECT_TRUE(isShown());
    EXPECT_TRUE(scene.texts().contains(QStringLiteral("Startup")));
}

TEST_F(SettingsPanel, OpeningAsksTheSystemForTheLoginItemAgain)
{
    start();
    EXPECT_FALSE(controller->loginItem()->isEnabled());
    loginItem.enabled = true;
    controller->openSettings();
    EXPECT_TRUE(controller->loginItem()->isEnabled());
}

class Content : public PanelView
{
protected:
    QQuickItem *content()
    {
        const QList<QQuickItem *> found = scene.ofType("NotchContent");
        return found.size() == 1 ? found.first() : nullptr;
    }
    /// Opens for the second time: the first makes the content as it is to be.
    void openAgain()
    {
        start();
        open();
        controller->requestClose();
        settle();
        controller->open();
        time.advanceBy(0ms);
        time.advanceBy(40ms);
    }
};

TEST_F(Content, GoesBeforeWhatItIsBoundTo)
{
    start();
    open();
    ASSERT_TRUE(content());
    // A view that is left behind complains about what is missing, and complaints are failures.
    controller.reset();
    EXPECT_FALSE(content());
}

TEST_F(Content, GrowsAndFadesInWithThePanel)
{
    openAgain();
    ASSERT_TRUE(content());
    EXPECT_LT(content()->opacity(), 1);
    EXPECT_LT(content()->scale(), 1);
    settle();
    EXPECT_EQ(content()->opacity(), 1);
    EXPECT_EQ(content()->scale(), 1);
}

TEST_F(Content, AppearsAtOnceUnderReducedMotionWhileTheFrameStillAnimates)
{
    appearance.reducedMotion = true;
    openAgain();
    EXPECT_TRUE(panel().isAnimating());
    EXPECT_LT(panel().pane().height(), panel().frame().height);
    ASSERT_TRUE(content());
    EXPECT_EQ(content()->opacity(), 1);
    EXPECT_EQ(content()->scale(), 1);
}

} // namespace brimlight::test
