#include "app/AppDelegate.h"
#include "app/DebugSignalControls.h"

#include "notch/ControllerFixture.h"

#include <csignal>
#include <unistd.h>

namespace brimlight::test {

class DebugControls : public ControllerTest
{
protected:
    void install(bool enabled)
    {
        DebugSignalControls::installIfEnabled({.enabled = enabled}, unixSignals, *controller, log);
    }
};

TEST(Launch, ABuildWithoutAVersionIsCalledDev)
{
    EXPECT_EQ(launchLine(QString()), QStringLiteral("Brimlight dev launched"));
    EXPECT_EQ(launchLine(QStringLiteral("1.2")), QStringLiteral("Brimlight 1.2 launched"));
}

TEST_F(DebugControls, WithoutTheSwitchNoHandlerExists)
{
    start();
    lines();
    install(false);
    EXPECT_TRUE(unixSignals.actions.isEmpty());
    EXPECT_TRUE(lines().isEmpty());
}

TEST_F(DebugControls, AnnounceThemselves)
{
    start();
    lines();
    install(true);
    EXPECT_EQ(
        lines(),
        QStringList{QStringLiteral("Debug signal controls ready (pid=%1, SIGUSR1=expand, SIGUSR2=collapse)")
                        .arg(getpid())});
}

TEST_F(DebugControls, ExpandFarFromThePointerAndCollapseByThemselves)
{
    start();
    install(true);
    pointer.where = farAway;
    unixSignals.actions.value(SIGUSR1)();
    EXPECT_TRUE(isExpanded());
    scheduler.advance(350ms + 120ms);
    EXPECT_FALSE(isExpanded());
}

TEST_F(DebugControls, APinHoldsWhatASignalOpened)
{
    start();
    install(true);
    pointer.where = farAway;
    model().setPinned(true);
    unixSignals.actions.value(SIGUSR1)();
    scheduler.advance(10s);
    EXPECT_TRUE(isExpanded());
    unixSignals.actions.value(SIGUSR2)();
    EXPECT_FALSE(isExpanded());
    EXPECT_TRUE(model().isPinned());
}

TEST_F(DebugControls, ASecondExpandChangesNothing)
{
    start();
    install(true);
    unixSignals.actions.value(SIGUSR1)();
    lines();
    unixSignals.actions.value(SIGUSR1)();
    EXPECT_TRUE(lines().isEmpty());
}

} // namespace brimlight::test
