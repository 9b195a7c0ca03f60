#include "platform/linux/desktop/SystemOperations.h"

#include "fakes/FakeAudioServer.h"
#include "fakes/ManualScheduler.h"
#include "fakes/PrivateBus.h"
#include "platform/linux/desktop/GnomeBanners.h"

#include <gio/gio.h>
#include <gtest/gtest.h>

#include <QDir>

namespace brimlight::test {
namespace {

/// The settings as another program sees them: in memory, so those of the user stay as they are.
class Settings
{
public:
    explicit Settings(const char *schema)
    {
        qputenv("GSETTINGS_BACKEND", "memory");
        m_settings = g_settings_new(schema);
    }
    ~Settings() { g_object_unref(m_settings); }
    Settings(const Settings &) = delete;
    Settings &operator=(const Settings &) = delete;

    void set(const char *key, bool value) { EXPECT_TRUE(g_settings_set_boolean(m_settings, key, value)); }
    void set(const char *key, const char *value)
    {
        EXPECT_TRUE(g_settings_set_string(m_settings, key, value));
    }
    QString text(const char *key)
    {
        char *const owned = g_settings_get_string(m_settings, key);
        const QString text = QString::fromUtf8(owned);
        g_free(owned);
        return text;
    }

private:
    GSettings *m_settings;
};

class SystemOperationsTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("Trash/files/folder")));
        interface.set("color-scheme", "default");
    }
    /// What the script replies; told when it does not.
    std::optional<QString> replyOf(const QString &script, LinuxScriptHost &host)
    {
        std::optional<QString> given;
        bool replied = false;
        host.run(script, context, [&](const std::optional<QString> &reply) {
            given = reply;
            replied = true;
        });
        EXPECT_FALSE(replied) << "not in the calling turn";
        scheduler.runPosted();
        audio.answer();
        EXPECT_TRUE(replied || waitFor([&] { return replied; }));
        return given;
    }
    /// What keeps the script from working.
    std::optional<Obstacle> obstacleOf(const QString &script, LinuxScriptHost &host)
    {
        std::optional<Obstacle> found;
        bool answered = false;
        host.check(script, context, [&](std::optional<Obstacle> obstacle) {
            found = obstacle;
            answered = true;
        });
        EXPECT_FALSE(answered) << "not in the calling turn";
        scheduler.runPosted();
        audio.answer();
        EXPECT_TRUE(answered || waitFor([&] { return answered; }));
        return found;
    }
    SystemOperations operations()
    {
        return {.audio = audio,
                .darkModeSet = [this](bool isDark) { told.append(isDark); },
                .trash = {.homeTrash = folder.filePath(QStringLiteral("Trash")).toLocal8Bit(),
                          .mounts = folder.filePath(QStringLiteral("mounts")).toLocal8Bit(),
                          .user = 0}};
    }

    QTemporaryDir folder;
    Settings interface {
        "org.gnome.desktop.interface"
    };
    FakeAudioServer audio;
    ManualScheduler scheduler;
    QList<bool> told;
    LinuxScriptHost host{scheduler, operations().table()};
    QObject context;
};

class GnomeBannersTest : public testing::Test
{
protected:
    GnomeBannersTest() { settings.set("show-banners", true); }

    Settings settings{"org.gnome.desktop.notifications"};
    ManualScheduler scheduler;
};

} // namespace

TEST_F(SystemOperationsTest, AnUnknownScriptCannotBeRun)
{
    for (const QString &text : {QString(), QStringLiteral("beep"), systemScripts::emptyTrash + u' ',
                                systemScripts::toggleMute.toUpper()})
        EXPECT_EQ(replyOf(text, host), std::nullopt) << qPrintable(text);
    EXPECT_TRUE(QFile::exists(folder.filePath(QStringLiteral("Trash/files/folder"))));
}

TEST_F(SystemOperationsTest, TheMuteQueryTellsTheStateOfTheOutput)
{
    EXPECT_EQ(replyOf(systemScripts::outputMuted, host), std::nullopt) << "there is none";
    audio.output = AudioDeviceState{.volume = 1, .isMuted = true};
    EXPECT_EQ(replyOf(systemScripts::outputMuted, host), QStringLiteral("true"));
    audio.output->isMuted = false;
    EXPECT_EQ(replyOf(systemScripts::outputMuted, host), QStringLiteral("false"));
}

TEST_F(SystemOperationsTest, TheMuteScriptTurnsTheMuteRound)
{
    audio.output = AudioDeviceState{.volume = 1, .isMuted = false};
    EXPECT_EQ(replyOf(systemScripts::toggleMute, host), QString());
    EXPECT_TRUE(audio.output->isMuted);
    replyOf(systemScripts::toggleMute, host);
    EXPECT_FALSE(audio.output->isMuted);
}

TEST_F(SystemOperationsTest, TheDarkModeScriptTurnsTheColourSchemeRound)
{
    EXPECT_EQ(replyOf(systemScripts::toggleDarkMode, host), QString());
    EXPECT_EQ(interface.text("color-scheme"), QStringLiteral("prefer-dark"));
    EXPECT_EQ(replyOf(systemScripts::toggleDarkMode, host), QString());
    EXPECT_EQ(interface.text("color-scheme"), QStringLiteral("default"));
    interface.set("color-scheme", "prefer-light");
    replyOf(systemScripts::toggleDarkMode, host);
    EXPECT_EQ(interface.text("color-scheme"), QStringLiteral("prefer-dark"));
    EXPECT_EQ(told, QList<bool>({true, false, true}));
}

TEST_F(SystemOperationsTest, WhereTheColourSchemeIsAnothersTheDarkModeScriptFails)
{
    SystemOperations elsewhere = operations();
    elsewhere.plasma = std::make_shared<PlasmaColors>(PlasmaColors::Places{
        .configFolders = {folder.path()}, .dataFolders = {folder.path()}, .programFolders = {folder.path()}});
    LinuxScriptHost other(scheduler, elsewhere.table());
    EXPECT_EQ(replyOf(systemScripts::toggleDarkMode, other), std::nullopt) << "no tool of Plasma's";
    EXPECT_EQ(obstacleOf(systemScripts::toggleDarkMode, other), Obstacle::noColorSchemeTool);
    EXPECT_EQ(interface.text("color-scheme"), QStringLiteral("default"));
    EXPECT_TRUE(told.isEmpty());
}

TEST_F(SystemOperationsTest, WhatIsInTheWayIsFoundWithoutRunningAnything)
{
    EXPECT_EQ(obstacleOf(QStringLiteral("beep"), host), Obstacle::unknownSwitch);
    EXPECT_EQ(obstacleOf(systemScripts::toggleMute, host), Obstacle::noAudioOutput);
    audio.output = AudioDeviceState{.volume = 1, .isMuted = false};
    EXPECT_EQ(obstacleOf(systemScripts::toggleMute, host), std::nullopt);
    EXPECT_EQ(obstacleOf(systemScripts::outputMuted, host), std::nullopt);
    EXPECT_FALSE(audio.output->isMuted);
    EXPECT_EQ(obstacleOf(systemScripts::toggleDarkMode, host), std::nullopt);
    EXPECT_EQ(interface.text("color-scheme"), QStringLiteral("default"));
    EXPECT_EQ(obstacleOf(systemScripts::emptyTrash, host), std::nullopt);
    EXPECT_TRUE(QFile::exists(folder.filePath(QStringLiteral("Trash/files/folder"))));
    ASSERT_TRUE(QDir(folder.filePath(QStringLiteral("Trash"))).removeRecursively());
    EXPECT_EQ(obstacleOf(systemScripts::emptyTrash, host), Obstacle::noTrash);
}

TEST_F(SystemOperationsTest, TheTrashScriptEmptiesTheTrash)
{
    EXPECT_EQ(replyOf(systemScripts::emptyTrash, host), QString());
    EXPECT_FALSE(QFile::exists(folder.filePath(QStringLiteral("Trash/files/folder"))));
}

TEST_F(SystemOperationsTest, AScriptGoesOnWhenItsCallerIsGone)
{
    auto caller = std::make_unique<QObject>();
    host.run(systemScripts::emptyTrash, *caller, [](const auto &) { ADD_FAILURE(); });
    host.run(QStringLiteral("beep"), *caller, [](const auto &) { ADD_FAILURE(); });
    caller.reset();
    scheduler.runPosted();
    QTimer nudge;
    nudge.start(std::chrono::milliseconds(1));
    EXPECT_TRUE(
        waitFor([&] { return !QFile::exists(folder.filePath(QStringLiteral("Trash/files/folder"))); }));
}

TEST(GnomeSetting, OneThatIsNotKnownIsAbsent)
{
    const QString schema = QStringLiteral("org.gnome.desktop.notifications");
    EXPECT_NE(GnomeSetting::open(schema, QStringLiteral("show-banners")), nullptr);
    EXPECT_EQ(GnomeSetting::open(schema, QStringLiteral("no-such-key")), nullptr);
    EXPECT_EQ(GnomeSetting::open(QStringLiteral("org.example.absent"), QStringLiteral("show-banners")),
              nullptr);
}

TEST_F(GnomeBannersTest, FollowsTheSetting)
{
    settings.set("show-banners", false);
    GnomeBanners banners(scheduler);
    EXPECT_FALSE(banners.areHidden());
    scheduler.advance(GnomeBanners::startDelay);
    EXPECT_TRUE(waitFor([&] { return banners.areHidden(); }));
    settings.set("show-banners", true);
    EXPECT_TRUE(waitFor([&] { return !banners.areHidden(); }));
    settings.set("show-banners", false);
    EXPECT_TRUE(waitFor([&] { return banners.areHidden(); }));
}

TEST_F(GnomeBannersTest, OneThatIsGoneIsNotToldOfChanges)
{
    settings.set("show-banners", false);
    GnomeBanners banners(scheduler);
    {
        GnomeBanners other(scheduler);
        GnomeBanners early(scheduler);
        scheduler.advance(GnomeBanners::startDelay);
        EXPECT_TRUE(waitFor([&] { return other.areHidden(); }));
    }
    settings.set("show-banners", true);
    settings.set("show-banners", false);
    EXPECT_TRUE(waitFor([&] { return banners.areHidden(); }));
}

TEST_F(GnomeBannersTest, WithoutTheSchemaNothingIsHidden)
{
    settings.set("show-banners", false);
    GnomeBanners absent(scheduler, QStringLiteral("org.example.absent"));
    GnomeBanners present(scheduler);
    scheduler.advance(GnomeBanners::startDelay);
    EXPECT_TRUE(waitFor([&] { return present.areHidden(); }));
    EXPECT_FALSE(absent.areHidden());
}

} // namespace brimlight::test
