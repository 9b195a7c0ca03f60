#include "platform/linux/dbus/InhibitorAssertions.h"

#include "fakes/PrivateBus.h"

#include <gtest/gtest.h>

#include <QStringList>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace brimlight::test {
namespace {

/// The screen saver service of a session.
class ScreenSaver : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.ScreenSaver")

public:
    explicit ScreenSaver(const QString &address)
        : m_connection(newConnection(address))
    {
        m_connection.registerObject(QStringLiteral("/org/freedesktop/ScreenSaver"), this,
                                    QDBusConnection::ExportScriptableContents);
    }
    void appear() { EXPECT_TRUE(m_connection.registerService(name)); }
    void vanish()
    {
        EXPECT_TRUE(m_connection.unregisterService(name));
        inhibited.clear();
    }

    QMap<uint, QString> inhibited;
    uint lastCookie = 40;
    QStringList programs;

public Q_SLOTS:
    Q_SCRIPTABLE uint Inhibit(const QString &program,
                              const QString &reason) // NOLINT(readability-identifier-naming)
    {
        programs.append(program);
        inhibited.insert(++lastCookie, reason);
        return lastCookie;
    }
    Q_SCRIPTABLE void UnInhibit(uint cookie) // NOLINT(readability-identifier-naming)
    {
        inhibited.remove(cookie);
    }

private:
    const QString name = QStringLiteral("org.freedesktop.ScreenSaver");
    QDBusConnection m_connection;
};

/// The login manager, which sees the end of an inhibitor by its pipe.
class LoginManager : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.Manager")

public:
    explicit LoginManager(const QString &address)
        : m_connection(newConnection(address))
    {
        m_connection.registerObject(QStringLiteral("/org/freedesktop/login1"), this,
                                    QDBusConnection::ExportScriptableContents);
        EXPECT_TRUE(m_connection.registerService(QStringLiteral("org.freedesktop.login1")));
    }
    ~LoginManager() override
    {
        if (m_pipe >= 0)
            close(m_pipe);
    }

    bool isHeld() const
    {
        pollfd waiting{.fd = m_pipe, .events = POLLIN};
        return m_pipe >= 0 && poll(&waiting, 1, 0) == 0;
    }

    QStringList asked;

public Q_SLOTS:
    Q_SCRIPTABLE QDBusUnixFileDescriptor Inhibit( // NOLINT(readability-identifier-naming)
        const QString &what, const QString &who, const QString &why, const QString &mode)
    {
        asked = QStringList{what, who, why, mode};
        int ends[2] = {-1, -1};
        EXPECT_EQ(pipe2(ends, O_CLOEXEC), 0);
        m_pipe = ends[0];
        QDBusUnixFileDescriptor given(ends[1]);
        close(ends[1]);
        return given;
    }

private:
    QDBusConnection m_connection;
    int m_pipe = -1;
};

QDBusConnection noBus()
{
    return newConnection(QStringLiteral("unix:path=/nonexistent/bus"));
}

class InhibitorAssertionsTest : public testing::Test
{
protected:
    void SetUp() override { ASSERT_FALSE(bus.address().isEmpty()) << "dbus-daemon does not start"; }
    uint32_t take()
    {
        return assertions.create(QStringLiteral("Coffee"), context, [this] { ++failures; });
    }

    PrivateBus bus;
    ScreenSaver saver{bus.address()};
    QObject context;
    int failures = 0;
    InhibitorAssertions assertions{[address = bus.address()] { return newConnection(address); }, noBus,
                                   std::chrono::seconds(1)};
};

} // namespace

TEST_F(InhibitorAssertionsTest, HoldsTheScreenSaverUntilItIsReleased)
{
    saver.appear();
    const uint32_t id = take();
    EXPECT_NE(id, 0U);
    EXPECT_TRUE(saver.programs.isEmpty()) << "not in the calling turn";
    ASSERT_TRUE(waitFor([&] { return saver.inhibited.size() == 1; }));
    EXPECT_EQ(saver.inhibited.first(), QStringLiteral("Coffee"));
    EXPECT_EQ(saver.programs, QStringList(QStringLiteral("Brimlight")));
    assertions.release(id);
    EXPECT_TRUE(waitFor([&] { return saver.inhibited.isEmpty(); }));
    EXPECT_EQ(failures, 0);
}

TEST_F(InhibitorAssertionsTest, EachOneIsReleasedForItself)
{
    saver.appear();
    const uint32_t first = take();
    const uint32_t second = take();
    EXPECT_NE(first, second);
    ASSERT_TRUE(waitFor([&] { return saver.inhibited.size() == 2; }));
    assertions.release(0);
    assertions.release(second + 1);
    assertions.release(first);
    assertions.release(first);
    EXPECT_TRUE(waitFor([&] { return saver.inhibited.size() == 1; }));
    assertions.release(second);
    EXPECT_TRUE(waitFor([&] { return saver.inhibited.isEmpty(); }));
}

TEST_F(InhibitorAssertionsTest, OneThatIsReleasedBeforeTheAnswerIsNotLeftBehind)
{
    saver.appear();
    const uint32_t known = take();
    ASSERT_TRUE(waitFor([&] { return saver.inhibited.size() == 1; }));
    assertions.release(take());
    EXPECT_TRUE(waitFor([&] { return saver.lastCookie == 42 && saver.inhibited.size() == 1; }));
    assertions.release(known);
    EXPECT_TRUE(waitFor([&] { return saver.inhibited.isEmpty(); }));
    EXPECT_EQ(failures, 0);
}

TEST_F(InhibitorAssertionsTest, AServiceThatIsRestartedIsAskedAgain)
{
    saver.appear();
    const uint32_t id = take();
    ASSERT_TRUE(waitFor([&] { return saver.inhibited.size() == 1; }));
    saver.vanish();
    saver.appear();
    ASSERT_TRUE(waitFor([&] { return saver.inhibited.contains(42); }));
    assertions.release(id);
    EXPECT_TRUE(waitFor([&] { return saver.inhibited.isEmpty(); }));
    EXPECT_EQ(failures, 0);
}

TEST_F(InhibitorAssertionsTest, AServiceThatIsGoneForGoodIsAFailure)
{
    saver.appear();
    take();
    ASSERT_TRUE(waitFor([&] { return saver.inhibited.size() == 1; }));
    saver.vanish();
    EXPECT_TRUE(waitFor([&] { return failures == 1; }));
}

TEST_F(InhibitorAssertionsTest, WithoutAServiceItFails)
{
    take();
    EXPECT_EQ(failures, 0);
    EXPECT_TRUE(waitFor([&] { return failures == 1; }));
    saver.appear();
    take();
    EXPECT_TRUE(waitFor([&] { return saver.inhibited.size() == 1; }))
        << "the failed one is not taken up again";
}

TEST_F(InhibitorAssertionsTest, WithoutAServiceTheTimersOfTheDisplayAreHeld)
{
    int held = 0;
    InhibitorAssertions onX11(
        [address = bus.address()] { return newConnection(address); }, noBus, std::chrono::seconds(1),
        {.canBeHeld = [] { return true; }, .setHeld = [&](bool hold) { held += hold ? 1 : -1; }});
    const auto never = [] { ADD_FAILURE(); };
    const uint32_t first = onX11.create(QStringLiteral("Coffee"), context, never);
    EXPECT_EQ(held, 0) << "the service is asked first";
    ASSERT_TRUE(waitFor([&] { return held == 1; }));
    const uint32_t second = onX11.create(QStringLiteral("Tea"), context, never);
    ASSERT_TRUE(waitFor([&] { return held == 2; }));
    onX11.release(first);
    EXPECT_EQ(held, 1);
    saver.appear();
    ASSERT_TRUE(waitFor([&] { return saver.inhibited.size() == 1; }));
    EXPECT_TRUE(waitFor([&] { return held == 0; })) << "the service has taken over";
    saver.vanish();
    ASSERT_TRUE(waitFor([&] { return held == 1; })) << "and left";
    onX11.release(second);
    EXPECT_EQ(held, 0);
}

TEST_F(InhibitorAssertionsTest, WhereAServiceIsTheTimersAreLeftAlone)
{
    saver.appear();
    int held = 0;
    InhibitorAssertions onX11([address = bus.address()] { return newConnection(address); }, noBus,
                              std::chrono::seconds(1),
                              {.canBeHeld = [] { return true; }, .setHeld = [&](bool) { ++held; }});
    const uint32_t id = onX11.create(QStringLiteral("Coffee"), context, [] { ADD_FAILURE(); });
    ASSERT_TRUE(waitFor([&] { return saver.inhibited.size() == 1; }));
    onX11.release(id);
    ASSERT_TRUE(waitFor([&] { return saver.inhibited.isEmpty(); }));
    EXPECT_EQ(held, 0);
}

TEST_F(InhibitorAssertionsTest, KnowsWhetherAnythingWouldKeepTheDisplayAwake)
{
    const auto obstacleOf = [this](InhibitorAssertions &asked) {
        std::optional<Obstacle> found;
        bool answered = false;
        asked.check(context, [&](std::optional<Obstacle> obstacle) {
            found = obstacle;
            answered = true;
        });
        EXPECT_FALSE(answered) << "not in the calling turn";
        EXPECT_TRUE(waitFor([&] { return answered; }));
        return found;
    };
    EXPECT_EQ(obstacleOf(assertions), Obstacle::nothingKeepsAwake);
    InhibitorAssertions onX11(noBus, noBus, std::chrono::seconds(1),
                              {.canBeHeld = [] { return true; }, .setHeld = [](bool) { ADD_FAILURE(); }});
    EXPECT_EQ(obstacleOf(onX11), std::nullopt) << "the timers of the display";
    const auto connect = [address = bus.address()] { return newConnection(address); };
    InhibitorAssertions machine(noBus, connect);
    EXPECT_EQ(obstacleOf(machine), Obstacle::nothingKeepsAwake);
    LoginManager manager(bus.address());
    EXPECT_EQ(obstacleOf(machine), std::nullopt) << "the login manager";
    EXPECT_FALSE(manager.isHeld());
    saver.appear();
    EXPECT_EQ(obstacleOf(assertions), std::nullopt) << "the service";
    EXPECT_TRUE(saver.programs.isEmpty());
}

TEST_F(InhibitorAssertionsTest, NobodyIsToldWhoHasGone)
{
    auto gone = std::make_unique<QObject>();
    assertions.check(*gone, [](const auto &) { ADD_FAILURE(); });
    gone.reset();
    bool answered = false;
    assertions.check(context, [&](const auto &) { answered = true; });
    EXPECT_TRUE(waitFor([&] { return answered; }));
}

TEST(InhibitorAssertions, WithoutABusItFails)
{
    InhibitorAssertions assertions(noBus, noBus);
    QObject context;
    auto gone = std::make_unique<QObject>();
    int failures = 0;
    assertions.create(QStringLiteral("Coffee"), *gone, [&] { ADD_FAILURE(); });
    gone.reset();
    assertions.release(assertions.create(QStringLiteral("Coffee"), context, [&] { ADD_FAILURE(); }));
    assertions.create(QStringLiteral("Coffee"), context, [&] { ++failures; });
    EXPECT_TRUE(waitFor([&] { return failures == 1; }));
}

TEST(InhibitorAssertions, TheLoginManagerStandsInForTheScreenSaver)
{
    const PrivateBus bus;
    LoginManager manager(bus.address());
    InhibitorAssertions assertions(noBus, [address = bus.address()] { return newConnection(address); });
    QObject context;
    const uint32_t id = assertions.create(QStringLiteral("Coffee"), context, [] { ADD_FAILURE(); });
    ASSERT_TRUE(waitFor([&] { return manager.isHeld(); }));
    EXPECT_EQ(manager.asked, QStringList({QStringLiteral("idle"), QStringLiteral("Brimlight"),
                                          QStringLiteral("Coffee"), QStringLiteral("block")}));
    // The answer may still be on its way: it is then let go as soon as it is there.
    assertions.release(id);
    QTimer nudge;
    nudge.start(std::chrono::milliseconds(1));
    EXPECT_TRUE(waitFor([&] { return !manager.isHeld(); }));
}

TEST(InhibitorAssertions, TheLoginManagerTakesOverFromAScreenSaverThatIsGone)
{
    const PrivateBus bus;
    LoginManager manager(bus.address());
    ScreenSaver saver(bus.address());
    saver.appear();
    const auto connect = [address = bus.address()] { return newConnection(address); };
    InhibitorAssertions assertions(connect, connect);
    QObject context;
    assertions.create(QStringLiteral("Coffee"), context, [] { ADD_FAILURE(); });
    ASSERT_TRUE(waitFor([&] { return saver.inhibited.size() == 1; }));
    EXPECT_FALSE(manager.isHeld());
    saver.vanish();
    ASSERT_TRUE(waitFor([&] { return manager.isHeld(); }));
    saver.appear();
    ASSERT_TRUE(waitFor([&] { return saver.inhibited.size() == 1; }));
    QTimer nudge;
    nudge.start(std::chrono::milliseconds(1));
    EXPECT_TRUE(waitFor([&] { return !manager.isHeld(); })) << "one of them is enough";
}

} // namespace brimlight::test

#include "InhibitorAssertionsTest.moc"
