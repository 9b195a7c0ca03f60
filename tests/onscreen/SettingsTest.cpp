#include "ScreenReaderTest.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

namespace brimlight::onscreen {

using namespace Qt::StringLiterals;

namespace {

constexpr uint32_t enter = 0xff0d;
constexpr uint32_t escape = 0xff1b;
constexpr uint32_t control = 0xffe3;

/// The program with its settings open, and a screen reader beside it.
class Settings : public ReadOnEachDesktop
{
protected:
    void SetUp() override
    {
        session.writeConfigFile(u"Brimlight/defaults.json"_s, R"({"brimlight.onboardingCompleted": true})");
        startPanel();
        openSettings(u"Settings"_s);
    }

    void choose(const QString &picker, const QString &option) const
    {
        press(u"combo box"_s, picker);
        press(u"menu item"_s, option);
        EXPECT_TRUE(showsNoMore(u"menu item"_s, option));
    }

    void openSettings(const QString &gear)
    {
        ASSERT_TRUE(openByTap());
        click(u"push button"_s, gear);
        ASSERT_TRUE(waitUntil([this] { return !tabs().isEmpty(); }));
        ASSERT_TRUE(showsNoMore(u"push button"_s, gear)) << "the grid has faded out";
    }
    /// What is out of the window is hidden from screen readers.
    void scrollToColors() const
    {
        hand.moveTo(strip.center() + QPoint(0, 300));
        hand.scroll(5, 20);
        ASSERT_TRUE(shows(u"push button"_s, u"Separators & Rims"_s));
    }
    QStringList tabs() const
    {
        QStringList names;
        for (const AccessibleObject &object : reader->objects()) {
            if (object.role == u"page tab")
                names.append(object.name);
        }
        return names.size() == 2 ? names : QStringList();
    }
    void restart()
    {
        panel->end();
        EXPECT_EQ(panel->unexpectedLines().join(u'\n').toStdString(), "");
        reader.emplace(session);
        startPanel();
    }

    QJsonObject jsonFile(const QString &path) const
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object()
                                              : QJsonObject();
    }
    QJsonObject defaults() const { return jsonFile(session.configFile(u"Brimlight/defaults.json"_s)); }
    QJsonObject theme() const
    {
        return jsonFile(session.environment().value(u"XDG_DATA_HOME"_s) + u"/Brimlight/theme.json"_s);
    }
};

INSTANTIATE_TEST_SUITE_P(OnScreen, Settings, testing::ValuesIn(anyDesktop), nameOf);

TEST_P(Settings, BothTabsHaveNamesAndRoles)
{
    EXPECT_EQ(tabs(), (QStringList{u"General"_s, u"Appearance"_s}));
    // The back button, two tabs, five switches, three menus and a button.
    expectNamesAndRoles(12);
    EXPECT_TRUE(isChecked(u"check box"_s, u"Use 24-hour clock format"_s));
    EXPECT_FALSE(isChecked(u"check box"_s, u"Launch Brimlight at login"_s));
    press(u"combo box"_s, u"Hover Delay"_s);
    EXPECT_TRUE(shows(u"popup menu"_s, u"Hover Delay"_s));
    EXPECT_TRUE(becomesChecked(u"menu item"_s, u"0.5s"_s));
    expectNamesAndRoles(17);
    press(u"menu item"_s, u"0.5s"_s);

    click(u"page tab"_s, u"Appearance"_s);
    EXPECT_TRUE(becomesChecked(u"radio button"_s, u"Midnight"_s));
    // The back button, two tabs, a slider, 25 swatches and the reset.
    expectNamesAndRoles(30);
    scrollToColors();
    press(u"push button"_s, u"Accent Highlight"_s);
    ASSERT_TRUE(shows(u"text"_s, u"Hex value"_s));
    // Five sliders, the reset, six colours and a text among them.
    expectNamesAndRoles(16);
}

TEST_P(Settings, ALanguageIsSeenAtOnceAndHoldsAfterARestart)
{
    click(u"combo box"_s, u"Language"_s);
    click(u"menu item"_s, u"Deutsch"_s);
    EXPECT_TRUE(waitUntil([this] { return tabs() == QStringList{u"Allgemein"_s, u"Darstellung"_s}; }));
    EXPECT_TRUE(shows(u"check box"_s, u"Brimlight beim Login starten"_s));
    EXPECT_TRUE(shows(u"push button"_s, u"Zurück"_s));
    restart();
    openSettings(u"Einstellungen"_s);
    EXPECT_EQ(tabs(), (QStringList{u"Allgemein"_s, u"Darstellung"_s}));
}

TEST_P(Settings, APresetAndAColorHoldAfterARestart)
{
    click(u"page tab"_s, u"Appearance"_s);
    click(u"radio button"_s, u"Ocean"_s);
    EXPECT_TRUE(becomesChecked(u"radio button"_s, u"Ocean"_s));
    EXPECT_TRUE(waitUntil([this] { return theme()[u"id"].toString() == u"ocean"; }));

    scrollToColors();
    press(u"push button"_s, u"Panel Surface"_s);
    ASSERT_TRUE(shows(u"text"_s, u"Hex value"_s));
    reader->grabFocus(*reader->find(u"text"_s, u"Hex value"_s));
    ASSERT_TRUE(waitUntil([this] { return reader->focus() == u"text Hex value"; }));
    hand.typeKeyWith(control, 'a');
    for (const char c : QByteArray("802040"))
        hand.typeKey(static_cast<uint32_t>(c));
    hand.typeKey(enter);
    EXPECT_TRUE(waitUntil([this] { return theme()[u"id"].toString() == u"custom"; }));
    EXPECT_TRUE(waitUntil([this] {
        const QJsonObject surface = theme()[u"surface"].toObject();
        return qRound(surface[u"red"].toDouble() * 255) == 0x80 &&
               qRound(surface[u"blue"].toDouble() * 255) == 0x40;
    }));
    EXPECT_NEAR(theme()[u"surface"][u"opacity"].toDouble(), 0.96, 0.005);
    EXPECT_TRUE(waitUntil([this] { return !isChecked(u"radio button"_s, u"Ocean"_s); }));

    restart();
    EXPECT_TRUE(panel->lines().join(u'\n').contains(u"theme=Custom,"_s));
    openSettings(u"Settings"_s);
    click(u"page tab"_s, u"Appearance"_s);
    ASSERT_TRUE(shows(u"radio button"_s, u"Ocean"_s));
    EXPECT_FALSE(isChecked(u"radio button"_s, u"Ocean"_s));
    EXPECT_FALSE(isChecked(u"radio button"_s, u"Midnight"_s));
    press(u"push button"_s, u"Reset to Default Preset"_s);
    EXPECT_TRUE(becomesChecked(u"radio button"_s, u"Midnight"_s));
}

TEST_P(Settings, AHoverDelayIsFeltAndHoldsAfterARestart)
{
    constexpr milliseconds chosen{1500};
    const QRect onceOpen(strip.left() - 100, 0, 400, 400);
    const auto expectLateOpening = [&] {
        hand.moveTo(away());
        ASSERT_TRUE(waitUntil([&] { return changed(bare, onceOpen) == 0; })) << "the panel has gone";
        const auto entered = Clock::now();
        hand.moveTo(onStrip());
        EXPECT_TRUE(waitForOpen());
        EXPECT_GE(Clock::now() - entered, chosen);
    };
    choose(u"Hover Delay"_s, u"1.5s"_s);
    EXPECT_TRUE(waitUntil([this] { return defaults()[u"brimlight.hoverDelay"] == 1.5; }));
    click(u"push button"_s, u"Back"_s);
    ASSERT_TRUE(shows(u"push button"_s, u"Keep open"_s));
    click(u"push button"_s, u"Keep open"_s);
    ASSERT_TRUE(waitForClose());
    expectLateOpening();
    restart();
    expectLateOpening();
}

TEST_P(Settings, TheLoginSwitchWritesAndRemovesTheAutostartEntry)
{
    const QString name = u"Launch Brimlight at login"_s;
    const QString path = session.configFile(u"autostart/brimlight.desktop"_s);
    click(u"check box"_s, name);
    EXPECT_TRUE(becomesChecked(u"check box"_s, name));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray entry = file.readAll();
    EXPECT_TRUE(entry.contains(QByteArray("Exec=\"") +
                               QFileInfo(QStringLiteral(BRIMLIGHT_PROGRAM)).canonicalFilePath().toUtf8() +
                               '"'))
        << entry.constData();
    click(u"check box"_s, name);
    EXPECT_TRUE(waitUntil([&] { return !isChecked(u"check box"_s, name); }));
    EXPECT_FALSE(QFile::exists(path));
}

TEST_P(Settings, AnAutostartFolderThatCannotBeWrittenLeavesTheSwitchOff)
{
    // A file in its place keeps root out as well.
    session.writeConfigFile(u"autostart"_s, "");
    const QString name = u"Launch Brimlight at login"_s;
    click(u"check box"_s, name);
    click(u"check box"_s, u"Show seconds in clock"_s);
    EXPECT_TRUE(waitUntil([&] { return !isChecked(u"check box"_s, u"Show seconds in clock"_s); }));
    EXPECT_FALSE(isChecked(u"check box"_s, name));
}

TEST_P(Settings, EscapeLeavesTheMenuThenTheSettingsThenThePanel)
{
    click(u"combo box"_s, u"Language"_s);
    ASSERT_TRUE(shows(u"menu item"_s, u"Deutsch"_s));
    hand.typeKey(escape);
    EXPECT_TRUE(showsNoMore(u"menu item"_s, u"Deutsch"_s));
    EXPECT_FALSE(tabs().isEmpty());
    hand.typeKey(escape);
    EXPECT_TRUE(shows(u"push button"_s, u"Settings"_s));
    EXPECT_TRUE(waitUntil([this] { return reader->focus() == u"push button Settings"; }))
        << "what had opened them";
    hand.typeKey(escape);
    EXPECT_TRUE(waitForClose());
}

} // namespace
} // namespace brimlight::onscreen
