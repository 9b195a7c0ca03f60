#include "platform/linux/audio/PulseAudioServer.h"

#include "fakes/PulseDaemon.h"
#include "platform/linux/audio/PulseSession.h"
#include "platform/linux/process/QtScheduler.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTemporaryDir>
#include <QTimer>

#include <optional>

namespace brimlight::test {

using namespace std::chrono_literals;

namespace {

bool waitFor(const std::function<bool()> &condition)
{
    QEventLoop loop;
    QTimer guard;
    bool timedOut = false;
    QObject::connect(&guard, &QTimer::timeout, [&] { timedOut = true; });
    guard.start(10s);
    while (!condition() && !timedOut)
        loop.processEvents(QEventLoop::WaitForMoreEvents);
    return condition();
}

/// Variables that lead to an audio server, until the end of the test.
class Environment
{
public:
    Environment()
    {
        for (const char *name : names)
            m_before.append(qgetenv(name));
        for (const char *name : names)
            qunsetenv(name);
    }
    ~Environment()
    {
        for (size_t i = 0; i < std::size(names); ++i) {
            const QByteArray &value = m_before.at(static_cast<qsizetype>(i));
            if (value.isNull())
                qunsetenv(names[i]);
            else
                qputenv(names[i], value);
        }
    }
    Environment(const Environment &) = delete;
    Environment &operator=(const Environment &) = delete;

private:
    static constexpr const char *names[] = {"XDG_RUNTIME_DIR",    "HOME",         "XDG_CONFIG_HOME",
                                            "PULSE_RUNTIME_PATH", "PULSE_SERVER", "DISPLAY"};
    QByteArrayList m_before;
};

const QString one = QStringLiteral("one");
const QString two = QStringLiteral("two");

/// A watch on the default output of a real server.
class PulseAudio : public testing::Test
{
protected:
    PulseAudio()
    {
        const QDir folder(m_folder.path());
        for (const char *name : {"run", "home"}) {
            folder.mkdir(QLatin1String(name));
            QFile::setPermissions(folder.filePath(QLatin1String(name)),
                                  QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        }
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(folder.filePath(QStringLiteral("run"))));
        qputenv("HOME", QFile::encodeName(folder.filePath(QStringLiteral("home"))));
        daemon.emplace(QProcessEnvironment::systemEnvironment());
    }
    ~PulseAudio() override
    {
        m_watch.reset();
        server.reset();
    }

    void watch(AudioDirection direction = AudioDirection::output)
    {
        server.emplace(scheduler);
        m_watch = server->watch(
            direction, [this](const std::optional<AudioDeviceState> &state) { known.push_back(state); },
            [this](const AudioDeviceState &state) { changed.push_back(state); });
    }
    /// With both sinks, found at 40 %.
    void startKnown()
    {
        daemon->start({one, two});
        ASSERT_TRUE(daemon->setVolume(one, QStringLiteral("40%")));
        watch();
        ASSERT_TRUE(waitFor([this] { return !known.empty(); }));
        ASSERT_EQ(known, (Found{AudioDeviceState{.volume = 0.4}}));
    }
    /// The default has become another one, or none.
    bool finds(size_t count)
    {
        return waitFor([&] { return known.size() >= count; });
    }
    /// Takes the sink out.
    void remove(const QString &sink)
    {
        QString modules;
        ASSERT_TRUE(daemon->run({QStringLiteral("list"), QStringLiteral("short"), QStringLiteral("modules")},
                                &modules));
        QString own;
        for (const QString &line : modules.split(u'\n')) {
            if (line.contains(QStringLiteral("sink_name=") + sink))
                own = line.section(u'\t', 0, 0);
        }
        ASSERT_FALSE(own.isEmpty());
        ASSERT_TRUE(daemon->run({QStringLiteral("unload-module"), own}));
    }
    void add(const QString &sink)
    {
        ASSERT_TRUE(daemon->run({QStringLiteral("load-module"), QStringLiteral("module-null-sink"),
                                 QStringLiteral("sink_name=") + sink}));
    }
    std::optional<bool> askMuted()
    {
        QObject context;
        bool answered = false;
        std::optional<bool> answer;
        server->outputMuted(context, [&](std::optional<bool> isMuted) {
            answered = true;
            answer = isMuted;
        });
        EXPECT_TRUE(waitFor([&] { return answered; }));
        return answer;
    }
    /// Whatever the server had to tell until now has been heard.
    void catchUp()
    {
        for (int i = 0; i < 3; ++i)
            askMuted();
    }
    bool hears(size_t count)
    {
        return waitFor([&] { return changed.size() >= count; });
    }

    using States = std::vector<AudioDeviceState>;
    using Found = std::vector<std::optional<AudioDeviceState>>;

    const Environment environment;
    const QTemporaryDir m_folder;
    std::optional<PulseDaemon> daemon;
    QtScheduler scheduler;
    std::optional<PulseAudioServer> server;
    Found known;
    States changed;
    std::unique_ptr<AudioWatch> m_watch;
};

} // namespace

TEST_F(PulseAudio, TellsOfEachChangeOfVolumeAndMute)
{
    startKnown();
    ASSERT_TRUE(daemon->setVolume(one, QStringLiteral("45%")));
    ASSERT_TRUE(hears(1));
    ASSERT_TRUE(daemon->setMute(one, true));
    ASSERT_TRUE(hears(2));
    ASSERT_TRUE(daemon->setVolume(one, QStringLiteral("130%")));
    ASSERT_TRUE(hears(3));
    ASSERT_TRUE(daemon->setMute(one, false));
    ASSERT_TRUE(hears(4));
    EXPECT_EQ(changed, (States{{.volume = 0.45},
                               {.volume = 0.45, .isMuted = true},
                               {.volume = 1.3, .isMuted = true},
                               {.volume = 1.3}}));
    EXPECT_EQ(known.size(), 1u);
}

TEST_F(PulseAudio, ADeviceThatFallsAsleepOrWakesUpHasNotChanged)
{
    startKnown();
    for (const char *asleep : {"1", "0"})
        ASSERT_TRUE(daemon->run({QStringLiteral("suspend-sink"), one, QLatin1String(asleep)}));
    ASSERT_TRUE(daemon->setVolume(one, QStringLiteral("40%")));
    catchUp();
    EXPECT_TRUE(changed.empty());
}

TEST_F(PulseAudio, WhatListensToAnOutputIsNoMicrophone)
{
    daemon->start({one});
    watch(AudioDirection::input);
    catchUp();
    ASSERT_TRUE(
        daemon->run({QStringLiteral("set-source-mute"), QStringLiteral("one.monitor"), QStringLiteral("1")}));
    catchUp();
    EXPECT_TRUE(known.empty());
    ASSERT_TRUE(daemon->run({QStringLiteral("load-module"), QStringLiteral("module-null-source"),
                             QStringLiteral("source_name=mic")}));
    ASSERT_TRUE(daemon->run({QStringLiteral("set-default-source"), QStringLiteral("mic")}));
    ASSERT_TRUE(waitFor([this] { return !known.empty(); })) << "one that is plugged in later is followed";
    ASSERT_TRUE(daemon->run({QStringLiteral("set-source-mute"), QStringLiteral("mic"), QStringLiteral("1")}));
    ASSERT_TRUE(hears(1));
    EXPECT_TRUE(changed.front().isMuted);
}

TEST_F(PulseAudio, FollowsADefaultThatIsChosenWhileTheOldOneStays)
{
    startKnown();
    ASSERT_TRUE(daemon->setVolume(two, QStringLiteral("70%")));
    catchUp();
    EXPECT_TRUE(changed.empty()) << "not the default yet";
    ASSERT_TRUE(daemon->select(two));
    ASSERT_TRUE(finds(2));
    ASSERT_TRUE(daemon->setVolume(one, QStringLiteral("20%")));
    ASSERT_TRUE(daemon->setVolume(two, QStringLiteral("80%")));
    ASSERT_TRUE(hears(1));
    ASSERT_TRUE(daemon->select(one));
    ASSERT_TRUE(finds(3));
    ASSERT_TRUE(daemon->setVolume(one, QStringLiteral("30%")));
    ASSERT_TRUE(hears(2));
    EXPECT_EQ(known, (Found{AudioDeviceState{.volume = 0.4}, AudioDeviceState{.volume = 0.7},
                            AudioDeviceState{.volume = 0.2}}));
    EXPECT_EQ(changed, (States{{.volume = 0.8}, {.volume = 0.3}}));
}

TEST_F(PulseAudio, FollowsTheDefaultThatTakesOverFromOneThatIsTakenOut)
{
    startKnown();
    ASSERT_TRUE(daemon->setVolume(two, QStringLiteral("70%")));
    remove(one);
    ASSERT_TRUE(finds(2));
    ASSERT_TRUE(daemon->setVolume(two, QStringLiteral("65%")));
    ASSERT_TRUE(hears(1));
    EXPECT_EQ(known, (Found{AudioDeviceState{.volume = 0.4}, AudioDeviceState{.volume = 0.7}}));
    EXPECT_EQ(changed, States{{.volume = 0.65}});
    EXPECT_EQ(askMuted(), false) << "that of the device that is the default now";
}

TEST_F(PulseAudio, TheLastDeviceThatGoesLeavesNoneUntilOneComes)
{
    startKnown();
    remove(two);
    remove(one);
    ASSERT_TRUE(finds(2));
    EXPECT_EQ(known.back(), std::nullopt);
    add(two);
    ASSERT_TRUE(finds(3));
    ASSERT_TRUE(daemon->setVolume(two, QStringLiteral("35%")));
    ASSERT_TRUE(hears(1));
    EXPECT_EQ(changed, States{{.volume = 0.35}});
}

TEST_F(PulseAudio, FollowsTheDefaultMicrophone)
{
    daemon->start({one});
    const QString first = QStringLiteral("first");
    const QString second = QStringLiteral("second");
    for (const QString &name : {first, second})
        ASSERT_TRUE(daemon->run({QStringLiteral("load-module"), QStringLiteral("module-null-source"),
                                 QStringLiteral("source_name=") + name}));
    const auto mute = [this](const QString &source) {
        return daemon->run({QStringLiteral("set-source-mute"), source, QStringLiteral("1")});
    };
    ASSERT_TRUE(daemon->run({QStringLiteral("set-default-source"), first}));
    watch(AudioDirection::input);
    ASSERT_TRUE(finds(1));
    ASSERT_TRUE(mute(second));
    ASSERT_TRUE(daemon->run({QStringLiteral("set-default-source"), second}));
    ASSERT_TRUE(finds(2));
    EXPECT_EQ(known, (Found{AudioDeviceState{.volume = 1}, AudioDeviceState{.volume = 1, .isMuted = true}}));
    ASSERT_TRUE(daemon->run({QStringLiteral("set-default-source"), first}));
    ASSERT_TRUE(finds(3));
    ASSERT_TRUE(mute(first));
    ASSERT_TRUE(hears(1));
    EXPECT_TRUE(changed.back().isMuted);
}

TEST_F(PulseAudio, AServerThatComesLateIsFound)
{
    watch();
    EXPECT_EQ(askMuted(), std::nullopt) << "without a server";
    // Longer than it is tried for.
    QElapsedTimer clock;
    clock.start();
    const auto later = scheduler.after(4500ms, [] {});
    EXPECT_TRUE(waitFor([&] { return clock.elapsed() > 4000; }));
    EXPECT_TRUE(known.empty());
    daemon->start({one});
    ASSERT_TRUE(waitFor([this] { return !known.empty(); }));
    ASSERT_TRUE(daemon->setVolume(one, QStringLiteral("50%")));
    ASSERT_TRUE(hears(1));
    EXPECT_EQ(changed.back(), (AudioDeviceState{.volume = 0.5}));
}

TEST_F(PulseAudio, AServerThatIsKilledAndRestartedIsAskedAnew)
{
    startKnown();
    daemon->kill();
    EXPECT_EQ(askMuted(), std::nullopt);
    ASSERT_TRUE(finds(2));
    EXPECT_EQ(known.back(), std::nullopt) << "there is no device without a server";
    daemon->start({two});
    ASSERT_TRUE(finds(3));
    EXPECT_TRUE(changed.empty());
    ASSERT_TRUE(daemon->setVolume(two, QStringLiteral("30%")));
    ASSERT_TRUE(hears(1));
    EXPECT_EQ(changed, States{{.volume = 0.3}});
}

TEST_F(PulseAudio, AServerThatEndsAndComesBackIsFound)
{
    startKnown();
    daemon->end();
    EXPECT_EQ(askMuted(), std::nullopt);
    daemon->start({one});
    EXPECT_TRUE(waitFor([this] { return known.size() > 1 && known.back(); }));
    EXPECT_TRUE(changed.empty());
}

TEST_F(PulseAudio, AServerWithoutADeviceIsAskedAgainWhenThereIsOne)
{
    daemon->start({});
    watch();
    EXPECT_EQ(askMuted(), std::nullopt);
    catchUp();
    EXPECT_TRUE(known.empty());
    ASSERT_TRUE(daemon->run({QStringLiteral("load-module"), QStringLiteral("module-always-sink")}));
    catchUp();
    EXPECT_TRUE(known.empty()) << "a device that is made up";
    add(one);
    ASSERT_TRUE(waitFor([this] { return !known.empty(); }));
    ASSERT_TRUE(daemon->setVolume(one, QStringLiteral("60%")));
    ASSERT_TRUE(hears(1));
    EXPECT_EQ(changed, States{{.volume = 0.6}});
}

TEST_F(PulseAudio, MutesTheDefaultOutputAndEndsThat)
{
    startKnown();
    ASSERT_TRUE(daemon->select(two));
    for (const bool expected : {true, false}) {
        QObject context;
        bool done = false;
        server->toggleOutputMuted(context, [&] { done = true; });
        ASSERT_TRUE(waitFor([&] { return done; }));
        EXPECT_EQ(askMuted(), expected);
    }
}

TEST_F(PulseAudio, TogglingWithoutAServerCallsBack)
{
    server.emplace(scheduler);
    QObject context;
    bool done = false;
    server->toggleOutputMuted(context, [&] { done = true; });
    EXPECT_TRUE(waitFor([&] { return done; }));
}

TEST_F(PulseAudio, NobodyIsCalledBackWhoHasGone)
{
    daemon->start({one});
    server.emplace(scheduler);
    bool called = false;
    {
        QObject context;
        server->outputMuted(context, [&](std::optional<bool>) { called = true; });
    }
    const auto watch = server->watch(
        AudioDirection::output, [&](const std::optional<AudioDeviceState> &) { called = true; },
        [&](const AudioDeviceState &) { called = true; });
    server->watch(
        AudioDirection::output, [&](const std::optional<AudioDeviceState> &) { ADD_FAILURE(); },
        [&](const AudioDeviceState &) { ADD_FAILURE(); });
    EXPECT_TRUE(waitFor([&] { return called; })) << "the watch that is there";
    called = false;
    catchUp();
    EXPECT_FALSE(called);
}

TEST_F(PulseAudio, EndingBeforeTheStartIsQuiet)
{
    watch();
    m_watch.reset();
    server.reset();
    EXPECT_TRUE(known.empty());
}

TEST(PulseSocket, LiesWhereClientsLookForIt)
{
    const Environment environment;
    EXPECT_EQ(pulseSocket(), QString());
    qputenv("XDG_RUNTIME_DIR", "/run/user/1");
    EXPECT_EQ(pulseSocket(), u"/run/user/1/pulse/native");
    qputenv("PULSE_RUNTIME_PATH", "/run/own");
    EXPECT_EQ(pulseSocket(), u"/run/own/native");
    const std::pair<const char *, QString> servers[] = {
        {"unix:/tmp/socket", QStringLiteral("/tmp/socket")},
        {"/tmp/socket", QStringLiteral("/tmp/socket")},
        {"{0123}unix:/tmp/socket tcp:host", QStringLiteral("/tmp/socket")},
        {"tcp:host:4713 /tmp/other", QStringLiteral("/tmp/other")},
        {"tcp:host:4713", QString()},
        {"host", QString()}};
    for (const auto &[server, socket] : servers) {
        qputenv("PULSE_SERVER", server);
        EXPECT_EQ(pulseSocket(), socket) << server;
    }
}

TEST(PulseDevice, ASocketOfACardIsAPlaceOfItsOwn)
{
    const PulseDevice speakers{.index = 3, .port = "analog-output-speaker", .state = {.volume = 0.4}};
    PulseDevice now = speakers;
    now.state.volume = 0.7;
    EXPECT_TRUE(now.isSamePlace(speakers)) << "its volume was turned";
    now.port = "analog-output-headphones";
    EXPECT_FALSE(now.isSamePlace(speakers)) << "headphones were plugged in";
    now = speakers;
    now.index = 4;
    EXPECT_FALSE(now.isSamePlace(speakers));
}

TEST(PulseState, IsTheLoudestChannelOnTheScaleOfTheSliders)
{
    pa_cvolume volume;
    pa_cvolume_set(&volume, 2, PA_VOLUME_NORM * 45 / 100);
    EXPECT_EQ(pulseState(volume, false), (AudioDeviceState{.volume = 0.45}));
    volume.values[1] = PA_VOLUME_NORM;
    EXPECT_EQ(pulseState(volume, true), (AudioDeviceState{.volume = 1, .isMuted = true}));
}

} // namespace brimlight::test
