#include "ScreenReaderTest.h"

namespace brimlight::onscreen {

using namespace Qt::StringLiterals;

namespace {

namespace key {

constexpr uint32_t tab = 0xff09;
constexpr uint32_t enter = 0xff0d;
constexpr uint32_t escape = 0xff1b;
constexpr uint32_t left = 0xff51;
constexpr uint32_t right = 0xff53;
constexpr uint32_t down = 0xff54;
constexpr uint32_t menu = 0xff67;
constexpr uint32_t f10 = 0xffc7;
constexpr uint32_t shift = 0xffe1;
constexpr uint32_t control = 0xffe3;

} // namespace key

/// The program with a screen reader beside it, and another window that has the keyboard.
class Accessibility : public ReadOnEachDesktop
{
protected:
    Victim victim{session.display(), Victim::Kind::plain};

    void SetUp() override {}

    void openWalkThrough()
    {
        startPanel();
        ASSERT_TRUE(openByTap());
        ASSERT_TRUE(shows(u"push button"_s, u"Next"_s));
    }

    void openGrid()
    {
        session.writeConfigFile(u"Brimlight/defaults.json"_s, R"({"brimlight.onboardingCompleted": true})");
        startPanel();
        ASSERT_TRUE(openByTap());
        ASSERT_TRUE(shows(u"list item"_s, u"Temperature"_s));
    }

    bool focuses(const QString &roleAndName) const
    {
        return waitUntil([&] { return reader->focus() == roleAndName; });
    }
    QRect frameOfTile(const QString &name) const
    {
        const auto tile = reader->find(u"list item"_s, name);
        return tile ? reader->frame(*tile) : QRect();
    }

    /// The line around the object that shows where keys go.
    bool isMarked(const QString &role, const QString &name) const
    {
        const auto object = reader->find(role, name);
        if (!object)
            return false;
        const QRect frame = reader->frame(*object);
        return qGray(x.screenshot().pixel(frame.left() - 2, frame.center().y())) > 150;
    }

    /// Types Tab until the object has the focus.
    void tabTo(const QString &roleAndName) const
    {
        constexpr int more = 20;
        for (int i = 0; i < more && reader->focus() != roleAndName; ++i) {
            const QString before = reader->focus();
            hand.typeKey(key::tab);
            ASSERT_TRUE(waitUntil([&] { return reader->focus() != before; })) << qPrintable(before);
        }
        ASSERT_EQ(reader->focus(), roleAndName);
    }

    bool hasKeyboard() const
    {
        return waitUntil([this] { return x.focus() == programWindowAt(strip.center())->id; });
    }
    void expectVictimHasTheKeyboard()
    {
        EXPECT_TRUE(waitUntil([this] { return x.focus() == victim.id(); }));
        const int before = victim.keyPresses();
        hand.typeKey('a');
        EXPECT_TRUE(waitUntil([&] { return victim.keyPresses() == before + 1; }));
    }
};

INSTANTIATE_TEST_SUITE_P(OnScreen, Accessibility, testing::ValuesIn(anyDesktop), nameOf);

/// Where the keyboard goes, which window managers have a say in.
class AccessibleByKeys : public Accessibility
{
};

INSTANTIATE_TEST_SUITE_P(OnScreen, AccessibleByKeys, testing::ValuesIn(windowManagers), nameOf);

TEST_P(Accessibility, WalkThroughHasNamesAndRolesAndIsWorkedByAScreenReader)
{
    openWalkThrough();
    expectNamesAndRoles(2);
    EXPECT_TRUE(shows(u"dialog"_s, u"Welcome to Brimlight!"_s));
    press(u"push button"_s, u"Next"_s);
    EXPECT_TRUE(shows(u"push button"_s, u"Back"_s));
    EXPECT_TRUE(showsNoMore(u"dialog"_s, u"Welcome to Brimlight!"_s));
    expectNamesAndRoles(3);
    press(u"push button"_s, u"Skip"_s);
    EXPECT_TRUE(shows(u"push button"_s, u"Add widget"_s));
}

TEST_P(Accessibility, GridHasNamesAndRoles)
{
    openGrid();
    expectNamesAndRoles(9);
    for (const auto &name : {u"Add page"_s, u"Add widget"_s, u"Keep open"_s, u"Settings"_s})
        EXPECT_TRUE(shows(u"push button"_s, name)) << qPrintable(name);
    for (const auto &name : {u"Clock"_s, u"Weather"_s, u"Battery"_s, u"Temperature"_s})
        EXPECT_TRUE(shows(u"list item"_s, name)) << qPrintable(name);
    press(u"push button"_s, u"Add page"_s);
    ASSERT_TRUE(shows(u"page tab"_s, u"Page 2"_s));
    EXPECT_TRUE(waitUntil([this] {
        const auto first = reader->find(u"page tab"_s, u"Page 1"_s);
        const auto second = reader->find(u"page tab"_s, u"Page 2"_s);
        return first && second && second->is(AccessibleObject::selected) &&
               !first->is(AccessibleObject::selected);
    }));
    EXPECT_TRUE(showsNoMore(u"list item"_s, u"Clock"_s)) << "a tile of another page";
    expectNamesAndRoles(6);
}

TEST_P(Accessibility, MenuHasNamesAndRolesAndIsWorkedByAScreenReader)
{
    openGrid();
    press(u"list item"_s, u"Clock"_s);
    EXPECT_TRUE(shows(u"popup menu"_s, u"Clock"_s));
    press(u"menu item"_s, u"Size"_s);
    EXPECT_TRUE(shows(u"popup menu"_s, u"Size"_s));
    EXPECT_TRUE(isChecked(u"menu item"_s, u"Wide (2×1)"_s));
    EXPECT_FALSE(isChecked(u"menu item"_s, u"Small (1×1)"_s));
    expectNamesAndRoles(12);
    press(u"menu item"_s, u"Remove"_s);
    EXPECT_TRUE(showsNoMore(u"list item"_s, u"Clock"_s));
}

TEST_P(Accessibility, SettingsSideHasNamesAndRolesAndIsWorkedByAScreenReader)
{
    openGrid();
    press(u"list item"_s, u"Clock"_s);
    press(u"menu item"_s, u"Settings (Flip)"_s);
    ASSERT_TRUE(shows(u"radio button"_s, u"Gradient"_s));
    expectNamesAndRoles(12);
    EXPECT_TRUE(isChecked(u"radio button"_s, u"Gradient"_s));
    press(u"radio button"_s, u"Solid"_s);
    EXPECT_TRUE(becomesChecked(u"radio button"_s, u"Solid"_s));
    EXPECT_FALSE(isChecked(u"radio button"_s, u"Gradient"_s));
    press(u"push button"_s, u"Close"_s);
    EXPECT_TRUE(showsNoMore(u"radio button"_s, u"Solid"_s));
}

TEST_P(Accessibility, GalleryHasNamesAndRolesAndIsWorkedByAScreenReader)
{
    openGrid();
    press(u"push button"_s, u"Add widget"_s);
    EXPECT_TRUE(shows(u"dialog"_s, u"Add a widget"_s));
    expectNamesAndRoles(12);
    press(u"push button"_s, u"Analog Clock"_s);
    EXPECT_TRUE(shows(u"list item"_s, u"Analog Clock"_s));
    EXPECT_TRUE(showsNoMore(u"dialog"_s, u"Add a widget"_s));
}

TEST_P(AccessibleByKeys, WhatAScreenReaderFocusesGetsTheKeyboard)
{
    openGrid();
    expectVictimHasTheKeyboard();
    reader->grabFocus(*reader->find(u"list item"_s, u"Weather"_s));
    EXPECT_TRUE(hasKeyboard());
    EXPECT_TRUE(focuses(u"list item Weather"_s));
    hand.typeKey(key::tab);
    EXPECT_TRUE(focuses(u"list item Battery"_s));
    hand.typeKeyWith(key::shift, key::tab);
    EXPECT_TRUE(focuses(u"list item Weather"_s));
    hand.clickAt({x.size().width() / 2, x.size().height() / 2});
    expectVictimHasTheKeyboard();
    EXPECT_TRUE(focuses(QString()));
}

TEST_P(AccessibleByKeys, PointingAtButtonsLeavesTheKeyboardWhereItIs)
{
    openGrid();
    click(u"push button"_s, u"Add page"_s);
    EXPECT_TRUE(shows(u"page tab"_s, u"Page 2"_s));
    expectVictimHasTheKeyboard();
    click(u"page tab"_s, u"Page 1"_s);
    EXPECT_TRUE(shows(u"list item"_s, u"Clock"_s));
    expectVictimHasTheKeyboard();
    click(u"push button"_s, u"Add widget"_s);
    EXPECT_TRUE(hasKeyboard()) << "Escape must reach the gallery";
    click(u"push button"_s, u"Close"_s);
    expectVictimHasTheKeyboard();
}

TEST_P(AccessibleByKeys, WalkThroughIsWorkedByKeysOnceItWasClicked)
{
    openWalkThrough();
    click(u"push button"_s, u"Next"_s);
    EXPECT_TRUE(hasKeyboard());
    EXPECT_TRUE(focuses(u"push button Next"_s));
    EXPECT_FALSE(isMarked(u"push button"_s, u"Next"_s)) << "a pointer shows by itself where it is";
    hand.typeKey(key::tab);
    EXPECT_TRUE(focuses(u"push button Skip"_s));
    EXPECT_TRUE(waitUntil([this] { return isMarked(u"push button"_s, u"Skip"_s); }));
    hand.typeKey(key::enter);
    EXPECT_TRUE(focuses(u"push button Add widget"_s));
    EXPECT_TRUE(hasKeyboard());
    hand.typeKey(key::escape);
    EXPECT_TRUE(waitForClose());
    expectVictimHasTheKeyboard();
}

TEST_P(Accessibility, WidgetsAreAddedResizedMovedAndRemovedByKeys)
{
    openGrid();
    reader->grabFocus(*reader->find(u"push button"_s, u"Add widget"_s));
    hand.typeKey(key::enter);
    EXPECT_TRUE(focuses(u"push button Clock"_s));
    hand.typeKey(key::right);
    EXPECT_TRUE(focuses(u"push button Analog Clock"_s));
    hand.typeKey(key::enter);
    ASSERT_TRUE(shows(u"list item"_s, u"Analog Clock"_s));
    EXPECT_TRUE(focuses(u"push button Add widget"_s));

    tabTo(u"list item Analog Clock"_s);
    const int before = frameOfTile(u"Analog Clock"_s).width();
    hand.typeKeyWith(key::shift, key::f10);
    EXPECT_TRUE(focuses(u"menu item Size"_s)) << "it has no settings";
    hand.typeKey(key::right);
    EXPECT_TRUE(focuses(u"menu item Small (1×1)"_s));
    hand.typeKey(key::down);
    EXPECT_TRUE(focuses(u"menu item Large (2×2)"_s));
    hand.typeKey(key::enter);
    EXPECT_TRUE(focuses(u"list item Analog Clock"_s));
    EXPECT_TRUE(waitUntil([&] { return frameOfTile(u"Analog Clock"_s).width() > before * 2; }));

    const auto left = [this] { return frameOfTile(u"Analog Clock"_s).left(); };
    const int from = left();
    hand.typeKeyWith(key::control, key::right);
    EXPECT_TRUE(waitUntil([&] { return left() > from; }));
    EXPECT_TRUE(focuses(u"list item Analog Clock"_s));

    hand.typeKey(key::menu);
    EXPECT_TRUE(focuses(u"menu item Size"_s));
    hand.typeKey(key::down);
    EXPECT_TRUE(focuses(u"menu item Remove"_s));
    hand.typeKey(key::down);
    EXPECT_TRUE(focuses(u"menu item Size"_s)) << "it goes round";
    hand.typeKey(key::tab);
    hand.typeKey(key::enter);
    EXPECT_TRUE(showsNoMore(u"list item"_s, u"Analog Clock"_s));
    EXPECT_TRUE(focuses(u"list item Temperature"_s)) << "what stood before it";
    EXPECT_TRUE(hasKeyboard());
}

TEST_P(AccessibleByKeys, EscapeClosesTheInnermost)
{
    openGrid();
    reader->grabFocus(*reader->find(u"list item"_s, u"Clock"_s));
    hand.typeKey(key::menu);
    EXPECT_TRUE(focuses(u"menu item Settings (Flip)"_s));
    hand.typeKey(key::enter);
    EXPECT_TRUE(focuses(u"radio button Gradient"_s));
    hand.typeKey(key::right);
    EXPECT_TRUE(focuses(u"radio button Solid"_s));
    EXPECT_TRUE(becomesChecked(u"radio button"_s, u"Solid"_s));
    hand.typeKey(key::left);
    EXPECT_TRUE(focuses(u"radio button Gradient"_s));

    hand.typeKey(key::menu);
    EXPECT_TRUE(focuses(u"menu item Settings (Flip)"_s));
    hand.typeKey(key::down);
    hand.typeKey(key::right);
    EXPECT_TRUE(focuses(u"menu item Small (1×1)"_s));
    hand.typeKey(key::escape);
    EXPECT_TRUE(focuses(u"menu item Size"_s));
    hand.typeKey(key::escape);
    EXPECT_TRUE(focuses(u"list item Clock"_s));
    EXPECT_TRUE(shows(u"radio button"_s, u"Gradient"_s)) << "the settings side is still open";

    hand.typeKeyWith(key::shift, key::tab);
    EXPECT_TRUE(focuses(u"push button Settings"_s));
    tabTo(u"push button Add widget"_s);
    hand.typeKey(key::enter);
    EXPECT_TRUE(focuses(u"push button Clock"_s));
    hand.typeKey(key::escape);
    EXPECT_TRUE(focuses(u"push button Add widget"_s));
    EXPECT_TRUE(shows(u"radio button"_s, u"Gradient"_s)) << "the settings side is still open";

    hand.typeKey(key::escape);
    EXPECT_TRUE(focuses(u"list item Clock"_s));
    EXPECT_TRUE(showsNoMore(u"radio button"_s, u"Gradient"_s));
    EXPECT_TRUE(staysOpen());
    hand.typeKey(key::escape);
    EXPECT_TRUE(waitForClose());
    expectVictimHasTheKeyboard();
}

} // namespace
} // namespace brimlight::onscreen
