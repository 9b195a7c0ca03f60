#include "OnScreenTest.h"

#include <QFile>

namespace brimlight::onscreen {

using namespace Qt::StringLiterals;

namespace {

/// A bare X server is enough here; it is also a desktop that the program must cope with.
class Process : public OnScreenTest
{
protected:
    Process()
        : OnScreenTest(Desktop{})
    {
    }

    void startSilently()
    {
        panel = std::make_unique<Panel>(QStringLiteral(BRIMLIGHT_PROGRAM), session.environment());
        ASSERT_TRUE(waitUntil([this] { return programWindowAt({x.size().width() / 2, 5}).has_value(); }));
    }

    void expectEndBySilently(int signal)
    {
        startSilently();
        panel->raiseSignal(signal);
        ASSERT_TRUE(panel->waitForExit());
        EXPECT_EQ(panel->process().exitStatus(), QProcess::CrashExit);
        EXPECT_EQ(panel->process().exitCode(), signal);
        EXPECT_EQ(panel->lines(), QStringList());
        panel.reset();
    }
};

TEST_F(Process, OpensWithoutAWindowManager)
{
    startPanel();
    hand.moveTo(onStrip());
    EXPECT_TRUE(waitForOpen());
}

TEST_F(Process, SignalsOpenAndCloseWhileDebugging)
{
    startPanel();
    ASSERT_TRUE(panel->waitForLine(u"^Debug signal controls ready "_s));
    panel->raiseSignal(SIGUSR1);
    EXPECT_TRUE(waitForOpen());
    panel->raiseSignal(SIGUSR2);
    EXPECT_TRUE(waitForClose());
}

TEST_F(Process, FirstSignalKeepsItsDefaultEffectOtherwise)
{
    expectEndBySilently(SIGUSR1);
}

TEST_F(Process, SecondSignalKeepsItsDefaultEffectOtherwise)
{
    expectEndBySilently(SIGUSR2);
}

TEST_F(Process, SaysNothingUnlessDebugging)
{
    startSilently();
    hand.clickAt({x.size().width() / 2, 5});
    EXPECT_TRUE(waitUntil([this] { return programWindowAt({x.size().width() / 2, 100}).has_value(); }));
    EXPECT_EQ(panel->lines(), QStringList());
}

/// Environment variables that tell of a Wayland session, which has an X display beside it.
class WaylandSession : public Process,
                       public testing::WithParamInterface<std::pair<const char *, const char *>>
{
};

INSTANTIATE_TEST_SUITE_P(Process, WaylandSession,
                         testing::Values(std::pair("QT_QPA_PLATFORM", "wayland"),
                                         std::pair("QT_QPA_PLATFORM", "wayland;xcb"),
                                         std::pair("WAYLAND_DISPLAY", "wayland-0"),
                                         std::pair("XDG_SESSION_TYPE", "wayland")));

TEST_P(WaylandSession, RunsOnX11)
{
    session.setVariable(GetParam().first, GetParam().second);
    startPanel();
    EXPECT_TRUE(openByTap());
}

TEST_F(Process, EverythingIsTwiceAsLargeOnADenseScreen)
{
    session.setVariable("QT_SCALE_FACTOR", "2");
    const int middle = x.size().width() / 2;
    startSilently();
    EXPECT_EQ(programWindowAt({middle, 5})->frame, QRect(middle - 200, 0, 400, 64));
    bare = x.screenshot();
    hand.moveTo({middle + 199, 63});
    EXPECT_TRUE(waitUntil([&] { return isSeen(QRect(middle - 536, 0, 2 * 536, 2 * 300), bare); }));
    EXPECT_EQ(changed(bare, QRect(0, 0, middle - 536 - 2, 600)), 0);
    EXPECT_EQ(changed(bare, QRect(middle + 536 + 2, 0, middle - 536 - 2, 600)), 0);
}

/// Displays that cannot be reached; null stands for an absent variable.
class NoDisplay : public testing::TestWithParam<std::pair<const char *, const char *>>
{
};

INSTANTIATE_TEST_SUITE_P(Process, NoDisplay,
                         testing::Values(std::pair("DISPLAY", nullptr), std::pair("DISPLAY", ""),
                                         std::pair("DISPLAY", "no-such-display"),
                                         std::pair("WAYLAND_DISPLAY", "wayland-0"),
                                         std::pair("QT_QPA_PLATFORM", "wayland"),
                                         std::pair("QT_QPA_PLATFORM", "xcb")));

TEST_P(NoDisplay, IsOneLineAndStatusOne)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const auto &variable : {u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s, u"QT_QPA_PLATFORM"_s})
        environment.remove(variable);
    if (GetParam().second)
        environment.insert(QString::fromLatin1(GetParam().first), QString::fromLatin1(GetParam().second));
    Panel program(QStringLiteral(BRIMLIGHT_PROGRAM), environment);
    ASSERT_TRUE(program.waitForExit());
    EXPECT_EQ(program.process().exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program.process().exitCode(), 1);
    EXPECT_EQ(program.lines().size(), 1) << program.lines().join(u'\n').toStdString();
    EXPECT_TRUE(program.lines().value(0).startsWith(u"brimlight: "_s));
}

/// Files that hold no settings.
class UnusableDefaults : public Process, public testing::WithParamInterface<const char *>
{
};

INSTANTIATE_TEST_SUITE_P(Process, UnusableDefaults,
                         testing::Values("", R"({"brimlight.hoverDelay": 0.)",
                                         R"(["brimlight.hoverDelay", 3600])", "\xff\xfe settings",
                                         R"({"brimlight.hoverDelay": "3600"})"));

TEST_P(UnusableDefaults, AreLeftAloneAndTheProgramWorks)
{
    const QString name = u"Brimlight/defaults.json"_s;
    session.writeConfigFile(name, GetParam());
    startPanel();
    hand.moveTo(onStrip());
    EXPECT_TRUE(waitForOpen());
    hand.moveTo(away());
    EXPECT_TRUE(waitForClose());
    panel->end();
    QFile file(session.configFile(name));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), QByteArray(GetParam()));
    panel.reset();
}

} // namespace
} // namespace brimlight::onscreen
