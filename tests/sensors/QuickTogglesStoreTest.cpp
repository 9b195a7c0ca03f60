#include "sensors/QuickTogglesStore.h"

#include "core/Translations.h"
#include "fakes/SwitchFakes.h"
#include "widgets/WidgetFixture.h"

namespace brimlight::test {
namespace {

class QuickTogglesStoreTest : public WidgetTest
{
protected:
    QuickTogglesStoreTest() { store.emplace(context, scripts, assertions, sounds, appearance); }

    FakeScriptHost scripts;
    FakePowerAssertions assertions;
    FakeSounds sounds;
    FakeAppearance appearance;
    std::optional<QuickTogglesStore> store;
};

} // namespace

TEST_F(QuickTogglesStoreTest, EverythingIsOffAtTheStart)
{
    EXPECT_FALSE(store->caffeineActive());
    EXPECT_FALSE(store->darkModeActive());
    EXPECT_FALSE(store->mutedActive());
    EXPECT_TRUE(scripts.started.isEmpty()) << "nothing is read before it is seen";
}

TEST_F(QuickTogglesStoreTest, ReadsTheStatesEachTimeItComesOnScreen)
{
    appearance.dark = true;
    EXPECT_FALSE(store->darkModeActive());
    context.setLive(true);
    EXPECT_TRUE(store->darkModeActive());
    EXPECT_EQ(scripts.started, QStringList(QStringLiteral("output muted of (get volume settings)")));
    context.setLive(false);
    EXPECT_EQ(scripts.started.size(), 1);
    appearance.dark = false;
    context.setLive(true);
    EXPECT_EQ(scripts.started.size(), 2);
    EXPECT_FALSE(store->darkModeActive());
}

TEST_F(QuickTogglesStoreTest, OnlyTheReplyTrueMeansMuted)
{
    const struct
    {
        std::optional<QString> reply;
        bool muted;
    } rows[] = {
        {QStringLiteral("true"), true},   {QStringLiteral("false"), false},
        {QStringLiteral("true"), true},   {std::nullopt, false},
        {QStringLiteral("true"), true},   {QStringLiteral("missing value"), false},
        {QStringLiteral("TRUE"), false},  {QStringLiteral("true\n"), false},
        {QStringLiteral("true "), false}, {QString(), false},
    };
    for (const auto &row : rows) {
        store->updateStates();
        scripts.reply(row.reply);
        EXPECT_EQ(store->mutedActive(), row.muted) << qPrintable(row.reply.value_or(QStringLiteral("none")));
    }
}

TEST_F(QuickTogglesStoreTest, CaffeineTwiceReleasesTheSameAssertion)
{
    assertions.nextId = 1507;
    store->toggleCaffeine();
    EXPECT_TRUE(store->caffeineActive());
    EXPECT_EQ(assertions.names, QStringList(QStringLiteral("Brimlight Caffeine")));
    EXPECT_TRUE(assertions.released.empty());
    store->toggleCaffeine();
    EXPECT_FALSE(store->caffeineActive());
    EXPECT_EQ(assertions.released, std::vector<uint32_t>{1507});
}

TEST_F(QuickTogglesStoreTest, AnIdOfZeroIsReleasedLikeAnyOther)
{
    assertions.nextId = 0;
    store->toggleCaffeine();
    store->toggleCaffeine();
    EXPECT_EQ(assertions.released, std::vector<uint32_t>{0});
}

TEST_F(QuickTogglesStoreTest, CaffeineThatCannotBeTakenIsOffAgain)
{
    store->toggleCaffeine();
    int notified = 0;
    QObject::connect(&*store, &QuickTogglesStore::caffeineActiveChanged, [&] { ++notified; });
    assertions.fail();
    EXPECT_FALSE(store->caffeineActive());
    EXPECT_EQ(notified, 1);
    store->toggleCaffeine();
    EXPECT_TRUE(store->caffeineActive());
    EXPECT_EQ(assertions.names.size(), 2) << "it is tried anew";
}

TEST_F(QuickTogglesStoreTest, CaffeineEndsWithItsWidget)
{
    assertions.nextId = 7;
    store->toggleCaffeine();
    store.reset();
    EXPECT_EQ(assertions.released, std::vector<uint32_t>{7});
    store.emplace(context, scripts, assertions, sounds, appearance);
    store.reset();
    EXPECT_EQ(assertions.released.size(), 1U) << "what is off holds nothing";
}

TEST_F(QuickTogglesStoreTest, DarkModeIsReadOnceItsScriptHasRun)
{
    store->toggleDarkMode();
    EXPECT_EQ(scripts.started, QStringList(QStringLiteral(
                                   "tell application \"System Events\"\n    tell appearance preferences\n"
                                   "        set dark mode to not dark mode\n    end tell\nend tell")));
    appearance.dark = true;
    EXPECT_FALSE(store->darkModeActive());
    scripts.reply(QString());
    EXPECT_TRUE(store->darkModeActive());
    EXPECT_EQ(scripts.started.value(1), QStringLiteral("output muted of (get volume settings)"));
}

TEST_F(QuickTogglesStoreTest, MuteIsAskedForOnceItsScriptHasRun)
{
    store->toggleMute();
    EXPECT_EQ(scripts.started, QStringList(QStringLiteral(
                                   "set isMuted to output muted of (get volume settings)\nif isMuted then\n"
                                   "    set volume without output muted\nelse\n"
                                   "    set volume with output muted\nend if")));
    EXPECT_FALSE(store->mutedActive());
    scripts.reply(QString());
    scripts.reply(QStringLiteral("true"));
    EXPECT_TRUE(store->mutedActive());
}

TEST_F(QuickTogglesStoreTest, AScriptThatFailsLeavesTheOldValues)
{
    store->toggleDarkMode();
    scripts.reply(std::nullopt);
    EXPECT_FALSE(store->darkModeActive());
    EXPECT_EQ(scripts.started.size(), 2) << "the states are read all the same";
}

TEST_F(QuickTogglesStoreTest, EmptyingTheTrashSoundsAtOnce)
{
    store->emptyTrash();
    EXPECT_EQ(scripts.started, QStringList(QStringLiteral("tell application \"Finder\" to empty trash")));
    EXPECT_EQ(sounds.played, QStringList(QStringLiteral("Trash")));
    scripts.reply(QString());
    EXPECT_EQ(scripts.pendingCount(), 0) << "nothing is read after it";
}

TEST_F(QuickTogglesStoreTest, EverythingWorksUntilItIsKnownNotTo)
{
    context.setLive(true);
    scripts.obstacles = {{systemScripts::toggleMute, Obstacle::noAudioOutput}};
    EXPECT_EQ(store->muteObstacle(), QString());
    int notified = 0;
    QObject::connect(&*store, &QuickTogglesStore::obstaclesChanged, [&] { ++notified; });
    scripts.answerChecks();
    assertions.answerChecks();
    EXPECT_EQ(notified, 4);
    EXPECT_EQ(store->muteObstacle(), QStringLiteral("No audio output was found."));
    EXPECT_EQ(store->caffeineObstacle(), QString());
    EXPECT_EQ(store->darkModeObstacle(), QString());
    EXPECT_EQ(store->trashObstacle(), QString());
}

TEST_F(QuickTogglesStoreTest, EachObstacleIsAWholeSentenceInEveryLanguage)
{
    for (const Obstacle obstacle : {Obstacle::unknownSwitch, Obstacle::noAudioOutput, Obstacle::noColorScheme,
                                    Obstacle::lockedColorScheme, Obstacle::noColorSchemeTool,
                                    Obstacle::noTrash, Obstacle::nothingKeepsAwake}) {
        assertions.obstacle = obstacle;
        store->updateStates();
        assertions.answerChecks();
        const QString english = store->caffeineObstacle();
        EXPECT_TRUE(english.endsWith(u'.')) << qPrintable(english);
        for (const AppLanguage language : allLanguages) {
            const QString text = translate(english, language);
            EXPECT_TRUE(text.endsWith(u'.')) << qPrintable(text);
            EXPECT_EQ(text == english, language == AppLanguage::english) << qPrintable(text);
        }
    }
}

TEST_F(QuickTogglesStoreTest, ASwitchThatDoesNotWorkOnlyLooksAgain)
{
    scripts.obstacles = {{systemScripts::toggleMute, Obstacle::noAudioOutput},
                         {systemScripts::toggleDarkMode, Obstacle::noColorScheme},
                         {systemScripts::emptyTrash, Obstacle::noTrash}};
    assertions.obstacle = Obstacle::nothingKeepsAwake;
    store->updateStates();
    scripts.answerChecks();
    assertions.answerChecks();
    scripts.started.clear();
    store->toggleCaffeine();
    store->toggleDarkMode();
    store->toggleMute();
    store->emptyTrash();
    EXPECT_FALSE(store->caffeineActive());
    EXPECT_TRUE(assertions.names.isEmpty());
    EXPECT_TRUE(sounds.played.isEmpty());
    for (const QString &script :
         {systemScripts::toggleMute, systemScripts::toggleDarkMode, systemScripts::emptyTrash})
        EXPECT_FALSE(scripts.started.contains(script)) << qPrintable(script);

    scripts.obstacles.clear();
    assertions.obstacle.reset();
    scripts.answerChecks();
    assertions.answerChecks();
    EXPECT_EQ(store->trashObstacle(), QString()) << "it has come meanwhile";
    store->toggleCaffeine();
    EXPECT_TRUE(store->caffeineActive());
    store->toggleMute();
    EXPECT_EQ(scripts.started.last(), systemScripts::toggleMute);
}

TEST_F(QuickTogglesStoreTest, CaffeineThatIsHeldCanBeLetGoWhateverIsInTheWay)
{
    store->toggleCaffeine();
    assertions.obstacle = Obstacle::nothingKeepsAwake;
    store->updateStates();
    assertions.answerChecks();
    EXPECT_EQ(store->caffeineObstacle(), QString());
    store->toggleCaffeine();
    EXPECT_FALSE(store->caffeineActive());
    EXPECT_EQ(assertions.released.size(), 1U);
    EXPECT_NE(store->caffeineObstacle(), QString());
}

TEST_F(QuickTogglesStoreTest, AReplyAfterItsEndIsNobodys)
{
    store->toggleMute();
    store.reset();
    scripts.reply(QString());
    EXPECT_EQ(scripts.pendingCount(), 0);
}

} // namespace brimlight::test
