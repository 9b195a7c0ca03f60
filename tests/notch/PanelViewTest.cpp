#include "notch/PanelViewFixture.h"

#include "core/Translations.h"
#include "notch/OnboardingSteps.h"
#include "theme/DropShadow.h"
#include "theme/Symbol.h"

#include <QDropEvent>
#include <QMimeData>
#include <QWheelEvent>

#include <algorithm>

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

class WalkthroughIn : public Walkthrough, public testing::WithParamInterface<std::tuple<AppLanguage, Housing>>
{
protected:
    QString shown(const QString &text) const
    {
        return translate(text, std::get<AppLanguage>(GetParam()), std::get<Housing>(GetParam()));
    }
};

INSTANTIATE_TEST_SUITE_P(Languages, WalkthroughIn,
                         testing::Combine(testing::ValuesIn(allLanguages),
                                          testing::Values(Housing::absent, Housing::present)),
                         [](const auto &info) {
                             const bool housed = std::get<Housing>(info.param) == Housing::present;
                             return rawValue(std::get<AppLanguage>(info.param)).toStdString() +
                                    (housed ? "OnAHousing" : "OnAPlainEdge");
                         });

TEST_P(WalkthroughIn, ALanguageInTheDefaultsChangesAllTexts)
{
    if (std::get<Housing>(GetParam()) == Housing::present) {
        screens.list.front().safeAreaTop = 38;
        screens.list.front().auxiliaryTopLeftArea = Rect{0, 862, 620, 38};
        screens.list.front().auxiliaryTopRightArea = Rect{820, 862, 620, 38};
    }
    defaults.values.insert(QStringLiteral("brimlight.language"), rawValue(std::get<AppLanguage>(GetParam())));
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
            translated.insert(shown(text));
        const QStringList texts = scene.texts();
        EXPECT_EQ(QSet(texts.begin(), texts.end()), translated) << step;
        if (!steps.isLast())
            press(shown(QStringLiteral("Next")));
    }
}

TEST_F(Walkthrough, SpeaksOfTheHousingOfTheScreenThatItIsOn)
{
    const auto speaksOf = [this](const char *word) {
        return scene.texts().join(QLatin1Char(' ')).contains(QLatin1String(word));
    };
    start();
    open();
    EXPECT_TRUE(speaksOf("top edge of your screen"));
    EXPECT_FALSE(speaksOf("notch"));
    screens.list.front().safeAreaTop = 38;
    screens.list.front().auxiliaryTopLeftArea = Rect{0, 862, 620, 38};
    screens.list.front().auxiliaryTopRightArea = Rect{820, 862, 620, 38};
    screens.notify();
    settle();
    EXPECT_TRUE(speaksOf("camera notch"));
    EXPECT_FALSE(speaksOf("top edge"));
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
    EXPECT_FALSE(stores->loginItem.isEnabled());
    loginItem.enabled = true;
    controller->openSettings();
    EXPECT_TRUE(stores->loginItem.isEnabled());
}

class Content : public PanelView
{
protected:
    QQuickItem *content()
    {
        const QList<QQuickItem *> found = scene.ofType("NotchContent");
        return found.size() == 1 ? found.first() : nullptr;
    }
    QQuickItem *glass()
    {
        const QList<QQuickItem *> found = scene.items();
        const auto it = std::ranges::find_if(
            found, [](QQuickItem *item) { return item->inherits("brimlight::GlassSurface"); });
        return it == found.end() ? nullptr : *it;
    }
    void advance(std::chrono::milliseconds duration)
    {
        time.advanceBy(0ms);
        time.advanceBy(duration);
    }
    void setBackdrop(SurfaceBackdrop backdrop)
    {
        static_cast<OffscreenSurface &>(window.surface()).currentBackdrop = backdrop;
    }
    void beginToOpen()
    {
        controller->open();
        advance(40ms);
    }
};

TEST_F(Content, GoesBeforeWhatItIsBoundTo)
{
    start();
    open();
    ASSERT_TRUE(content());
    // A view that is left behind complains about what is missing, and complaints are failures.
    window.unhost();
    notch.reset();
    EXPECT_FALSE(content());
}

TEST_F(Content, GrowsAndFadesInWithThePanelFromTheFirstTimeOn)
{
    setBackdrop(SurfaceBackdrop::blurred);
    start();
    for (const char *opening : {"first", "second"}) {
        SCOPED_TRACE(opening);
        beginToOpen();
        ASSERT_TRUE(content() && glass());
        EXPECT_LT(content()->opacity(), 1);
        EXPECT_LT(content()->scale(), 1);
        EXPECT_LT(glass()->opacity(), 1);
        settle();
        EXPECT_EQ(content()->opacity(), 1);
        EXPECT_EQ(content()->scale(), 1);
        EXPECT_EQ(glass()->opacity(), 1);
        controller->requestClose();
        settle();
    }
}

TEST_F(Content, GlassThatNothingShinesThroughDoesNotFade)
{
    setBackdrop(SurfaceBackdrop::opaque);
    start();
    beginToOpen();
    ASSERT_TRUE(glass());
    EXPECT_EQ(glass()->opacity(), 1);
}

TEST_F(Content, GoesByOpacityAlone)
{
    setBackdrop(SurfaceBackdrop::translucent);
    start();
    open();
    controller->requestClose();
    advance(40ms);
    ASSERT_TRUE(content() && glass());
    EXPECT_LT(content()->opacity(), 1);
    EXPECT_EQ(content()->scale(), 1);
    EXPECT_LT(glass()->opacity(), 1);
    QQuickItem *kept = content();
    settle();
    EXPECT_EQ(kept->opacity(), 0);
    EXPECT_EQ(kept->scale(), 0.95);
}

TEST_F(Content, AppearsAtOnceUnderReducedMotionWhileTheFrameStillAnimates)
{
    appearance.reducedMotion = true;
    start();
    beginToOpen();
    EXPECT_TRUE(panel().isAnimating());
    EXPECT_LT(panel().pane().height(), panel().frame().height);
    ASSERT_TRUE(content() && glass());
    EXPECT_EQ(content()->opacity(), 1);
    EXPECT_EQ(content()->scale(), 1);
    EXPECT_EQ(glass()->opacity(), 1);
}

TEST_F(Content, TheGridFadesWhenTheSettingsComeAndGo)
{
    const auto page = [this] {
        const QList<QQuickItem *> grids = scene.ofType("WidgetGridView");
        return grids.isEmpty() ? nullptr : grids.first()->parentItem()->parentItem();
    };
    start();
    open();
    ASSERT_TRUE(page());
    EXPECT_EQ(page()->opacity(), 1);
    for (const bool settings : {true, false}) {
        SCOPED_TRACE(settings ? "come" : "go");
        model().setShowSettings(settings);
        advance(60ms);
        ASSERT_TRUE(page());
        EXPECT_GT(page()->opacity(), 0);
        EXPECT_LT(page()->opacity(), 1);
        EXPECT_EQ(page()->isEnabled(), !settings);
        settle();
        EXPECT_EQ(page() != nullptr, !settings);
    }
}

TEST_F(Content, TheGalleryOpensByTheSpringOfThePanelAndClosesSooner)
{
    const auto overlay = [this] {
        const QList<QQuickItem *> found = scene.ofType("WidgetGallery");
        return found.isEmpty() ? nullptr : found.first()->parentItem();
    };
    start();
    open();
    EXPECT_FALSE(overlay());
    scene.click(*scene.button(QStringLiteral("Add widget")));
    time.advanceBy(0ms);
    for (int step = 1; step <= 3; ++step) {
        time.advanceBy(40ms);
        ASSERT_TRUE(overlay());
        EXPECT_NEAR(overlay()->opacity(), Motion::panelSpring.value(40ms * step), 0.02);
    }
    settle();
    EXPECT_EQ(overlay()->opacity(), 1);
    QTest::keyClick(&window.view(), Qt::Key_Escape);
    advance(90ms);
    ASSERT_TRUE(overlay());
    EXPECT_LT(overlay()->opacity(), 0.5) << "an ease-out";
    time.advanceBy(90ms);
    EXPECT_FALSE(overlay());
}

TEST_F(Content, AFullPageIsScrolledByTheWheelUnlessOptionsAreOpen)
{
    start();
    stores->grid.setLayout({.instances = {{.kind = QStringLiteral("gone"), .col = 0, .row = 7}}});
    open();
    const QQuickItem *page = scene.ofType("WidgetGridView").first()->parentItem()->parentItem();
    const auto turnWheel = [this](int degrees) {
        const QPointF where = panel().pane().center();
        QWheelEvent event(where, where, {}, {0, 8 * degrees}, {}, {}, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&window.view(), &event);
        settle();
    };
    const auto y = [&] { return page->property("contentY").toDouble(); };
    turnWheel(-15);
    EXPECT_EQ(y(), 60);
    model().setOptionsOpen(true);
    turnWheel(-15);
    EXPECT_EQ(y(), 60);
    model().setOptionsOpen(false);
    turnWheel(-150);
    EXPECT_EQ(y(), 8 * 86 - 12 - page->height());
    turnWheel(150);
    EXPECT_EQ(y(), 0);
}

TEST_F(Content, ATileThatTurnsOverAtTheFootOfAFullPageIsScrolledTo)
{
    start();
    WidgetInstance last{.kind = QStringLiteral("gone"), .size = WidgetSize::wide, .col = 0, .row = 7};
    stores->grid.setLayout({.instances = {last}});
    open();
    QQuickItem *page = scene.ofType("WidgetGridView").first()->parentItem()->parentItem();
    const auto hidden = [&] {
        QQuickItem *tile = scene.ofType("WidgetTile").first();
        return tile->mapRectToItem(page, {0, 0, tile->width(), tile->height()}).bottom() - page->height();
    };
    EXPECT_GT(hidden(), 0);
    model().setFlippedWidgetID(last.id);
    settle();
    EXPECT_EQ(scene.ofType("WidgetTile").first()->height(), 180);
    EXPECT_NEAR(hidden(), -0.02 * 180, 0.01) << "the back is drawn a little smaller";
    model().clearFlip();
    settle();
    EXPECT_EQ(page->property("contentHeight").toDouble(), 8 * 86 - 12);
    EXPECT_LE(page->property("contentY").toDouble(), 8 * 86 - 12 - page->height());
}

TEST_F(Header, AButtonLightsUpUnderThePointer)
{
    start();
    open();
    QQuickItem *button = scene.button(QStringLiteral("Settings"));
    ASSERT_TRUE(button);
    const auto *symbol = button->findChild<Symbol *>();
    const auto *shadow = button->findChild<DropShadow *>();
    ASSERT_TRUE(symbol && shadow);
    EXPECT_EQ(symbol->size(), 10);
    EXPECT_EQ(symbol->weight(), 700);
    const QColor unlit = symbol->color();
    EXPECT_EQ(shadow->opacity(), 0);
    EXPECT_EQ(button->scale(), 1);
    scene.moveTo(Scene::middle(*button));
    time.advanceBy(0ms);
    time.advanceBy(30ms);
    const QColor between = symbol->color();
    EXPECT_NE(between, unlit);
    EXPECT_GT(shadow->opacity(), 0);
    EXPECT_LT(shadow->opacity(), 0.25);
    settle();
    EXPECT_EQ(symbol->color(), stores->theme.current().textPrimaryColor());
    EXPECT_NE(symbol->color(), between);
    EXPECT_EQ(shadow->opacity(), 0.25);
    EXPECT_DOUBLE_EQ(button->scale(), 1.08);
}

TEST_F(Walkthrough, FadesOutAsTheHeaderFadesIn)
{
    start();
    open();
    scene.click(*scene.button(QStringLiteral("Skip")));
    time.advanceBy(0ms);
    time.advanceBy(60ms);
    ASSERT_EQ(scene.ofType("NotchOnboarding").size(), 1);
    ASSERT_EQ(scene.ofType("NotchHeader").size(), 1);
    const double going = scene.ofType("NotchOnboarding").first()->parentItem()->opacity();
    const double coming = scene.ofType("NotchHeader").first()->opacity();
    EXPECT_GT(coming, 0);
    EXPECT_LT(coming, 1);
    EXPECT_DOUBLE_EQ(going + coming, 1);
    time.advanceBy(190ms);
    EXPECT_TRUE(scene.ofType("NotchOnboarding").isEmpty());
    EXPECT_EQ(scene.ofType("NotchHeader").first()->opacity(), 1);
}

TEST_F(Walkthrough, AStepComesFromTheSideThatItLiesOn)
{
    start();
    open();
    QQuickItem *view = scene.ofType("NotchOnboarding").first();
    const auto heading = [this] { return scene.withRole(QAccessible::StaticText).first(); };
    const auto x = [&] { return Scene::middle(*heading()).x(); };
    const double rest = x();
    for (const bool forward : {true, false}) {
        SCOPED_TRACE(forward ? "Next" : "Back");
        scene.click(*scene.button(forward ? QStringLiteral("Next") : QStringLiteral("Back")));
        time.advanceBy(0ms);
        time.advanceBy(40ms);
        EXPECT_EQ(x() > rest, forward);
        EXPECT_NE(x(), rest);
        EXPECT_LT(heading()->parentItem()->opacity(), 1);
        settle();
        EXPECT_EQ(x(), rest);
        EXPECT_EQ(heading()->parentItem()->opacity(), 1);
    }
    EXPECT_EQ(view->property("place").toInt(), 0);
}

class Dropping : public PanelView
{
protected:
    bool enters(const QMimeData &data)
    {
        QDragEnterEvent event(target(), Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&window.view(), &event);
        return event.isAccepted();
    }
    void drop(const QMimeData &data)
    {
        QDropEvent event(target(), Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&window.view(), &event);
        settle();
    }
    QPoint target() { return panel().pane().center().toPoint(); }
    bool isHighlighted()
    {
        const QList<QQuickItem *> found = scene.items();
        return std::ranges::any_of(
            found, [](QQuickItem *item) { return item->inherits("brimlight::NotchOutline"); });
    }
};

TEST_F(Dropping, AFileIsShownToBeTakenAndOpensThePanelPinned)
{
    start();
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QStringLiteral("/tmp/a"))});
    EXPECT_TRUE(enters(data));
    EXPECT_TRUE(isHighlighted());
    lines();
    drop(data);
    EXPECT_FALSE(isHighlighted());
    EXPECT_TRUE(isExpanded());
    EXPECT_TRUE(model().isPinned());
    EXPECT_TRUE(lines().contains(QStringLiteral("Files dropped on notch -> shelf (1 items)")));
}

TEST_F(Dropping, ALinkIsNotTaken)
{
    start();
    QMimeData data;
    data.setUrls({QUrl(QStringLiteral("https://example.org/"))});
    EXPECT_FALSE(enters(data));
    EXPECT_FALSE(isHighlighted());
    drop(data);
    EXPECT_FALSE(isExpanded());
    EXPECT_FALSE(model().isPinned());
}

} // namespace brimlight::test
