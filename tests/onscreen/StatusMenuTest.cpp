#include "OnScreenTest.h"
#include "ScreenReader.h"

#include "fakes/PrivateBus.h"
#include "fakes/TrayHost.h"

#include <QCoreApplication>
#include <QFile>

namespace brimlight::onscreen {

using namespace Qt::StringLiterals;
using test::TrayHost;

namespace {

/// The program beside a panel that shows status items.
class StatusMenu : public OnScreenTest
{
protected:
    StatusMenu()
        : OnScreenTest(Desktop{})
    {
    }

    void startOnHost()
    {
        useBus(bus.address());
        host->appear();
        startPanel();
        ASSERT_TRUE(host->waitForItem());
    }
    void useBus(const QString &address)
    {
        session.setVariable("DBUS_SESSION_BUS_ADDRESS", address.toUtf8().constData());
        host.emplace(address);
    }
    void expectEnd()
    {
        ASSERT_TRUE(panel->waitForExit());
        EXPECT_EQ(panel->process().exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(panel->process().exitCode(), 0);
        panel.reset();
    }

    // What comes over the bus is delivered by its loop.
    int argc = 0;
    QCoreApplication application{argc, nullptr};
    test::PrivateBus bus;
    std::optional<TrayHost> host;
};

TEST_F(StatusMenu, OpenOpensThePanelAndItStays)
{
    startOnHost();
    host->click(u"Open Brimlight"_s);
    EXPECT_TRUE(waitForOpen());
    EXPECT_TRUE(staysOpen()) << "although the pointer is far away";
}

TEST_F(StatusMenu, AClickOnTheItemOpensThePanel)
{
    startOnHost();
    host->activate();
    EXPECT_TRUE(waitForOpen());
    EXPECT_TRUE(staysOpen());
}

TEST_F(StatusMenu, SettingsAreShown)
{
    const ScreenReader reader(session);
    session.writeConfigFile(u"Brimlight/defaults.json"_s, R"({"brimlight.onboardingCompleted": true})");
    useBus(session.environment().value(u"DBUS_SESSION_BUS_ADDRESS"_s));
    host->appear();
    startPanel();
    ASSERT_TRUE(host->waitForItem());
    host->click(u"Settings…"_s);
    ASSERT_TRUE(waitForOpen());
    EXPECT_TRUE(waitUntil([&] { return reader.find(u"heading"_s, u"Settings"_s).has_value(); }));
    EXPECT_TRUE(staysOpen());
}

TEST_F(StatusMenu, LaunchAtLoginIsCheckedOnceTheDesktopHasTheEntry)
{
    startOnHost();
    const QString title = u"Launch at Login"_s;
    const QString file = session.configFile(u"autostart/brimlight.desktop"_s);
    EXPECT_EQ(host->entry(title).toggleState(), 0);
    host->click(title);
    EXPECT_TRUE(waitUntil([&] { return QFile::exists(file); }));
    EXPECT_EQ(host->entry(title).toggleState(), 1);
    ASSERT_TRUE(QFile::remove(file));
    EXPECT_EQ(host->entry(title).toggleState(), 0) << "somebody else has removed it";
}

TEST_F(StatusMenu, QuitEndsTheProgram)
{
    startOnHost();
    host->click(u"Quit Brimlight"_s);
    expectEnd();
}

TEST_F(StatusMenu, AHostThatComesLateShowsTheItem)
{
    useBus(bus.address());
    startPanel();
    EXPECT_TRUE(staysShut());
    host->appear();
    ASSERT_TRUE(host->waitForItem());
    host->vanish();
    host->appear();
    ASSERT_TRUE(host->waitForItem()) << "a host that restarts";
    host->click(u"Quit Brimlight"_s);
    expectEnd();
}

/// More than one start on the same display.
class SecondStart : public OnScreenTest
{
protected:
    SecondStart()
        : OnScreenTest(Desktop{})
    {
    }

    std::unique_ptr<Panel> another()
    {
        return std::make_unique<Panel>(QStringLiteral(BRIMLIGHT_PROGRAM), session.environment());
    }
    void expectHandedOver(Panel &start)
    {
        ASSERT_TRUE(start.waitForExit());
        EXPECT_EQ(start.process().exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(start.process().exitCode(), 0);
        EXPECT_EQ(start.lines(), QStringList());
    }
};

TEST_F(SecondStart, OpensTheOneThatRunsAndEnds)
{
    startPanel();
    const auto second = another();
    expectHandedOver(*second);
    EXPECT_TRUE(waitForOpen());
    EXPECT_TRUE(staysOpen()) << "although the pointer is far away";
}

TEST_F(SecondStart, OfTwoAtTheSameMomentOneRuns)
{
    session.setVariable("BRIMLIGHT_DEBUG_SIGNALS", "1");
    for (int round = 0; round < 5; ++round) {
        auto one = another();
        auto other = another();
        ASSERT_TRUE(waitUntil([&] { return !one->isRunning() || !other->isRunning(); }));
        if (!one->isRunning())
            one.swap(other);
        expectHandedOver(*other);
        EXPECT_TRUE(one->waitForLine(QString::fromLatin1(opened)));
        EXPECT_TRUE(one->isRunning());
    }
}

TEST_F(SecondStart, SaysSoWhenTheOneThatRunsHangs)
{
    startPanel();
    panel->raiseSignal(SIGSTOP);
    const auto second = another();
    EXPECT_TRUE(second->waitForExit());
    EXPECT_EQ(second->process().exitCode(), 1);
    EXPECT_EQ(second->lines().size(), 1);
    EXPECT_TRUE(second->lines().value(0).startsWith(u"brimlight: "_s));
    panel->raiseSignal(SIGCONT);
}

TEST_F(SecondStart, RunsAfterACrash)
{
    startPanel();
    panel->raiseSignal(SIGKILL);
    ASSERT_TRUE(panel->waitForExit());
    startPanel();
    const auto second = another();
    expectHandedOver(*second);
    EXPECT_TRUE(waitForOpen());
}

TEST_F(SecondStart, RunsOnAnotherDisplay)
{
    startPanel();
    XSession elsewhere(Desktop{});
    elsewhere.setVariable("XDG_RUNTIME_DIR",
                          session.environment().value(u"XDG_RUNTIME_DIR"_s).toUtf8().constData());
    elsewhere.setVariable("BRIMLIGHT_DEBUG_SIGNALS", "1");
    Panel other(QStringLiteral(BRIMLIGHT_PROGRAM), elsewhere.environment());
    EXPECT_TRUE(other.waitForLine(u"^Notch panel ordered front "_s));
    EXPECT_TRUE(other.isRunning());
    EXPECT_TRUE(staysShut());
}

} // namespace
} // namespace brimlight::onscreen
