#include "OnScreenTest.h"

#include <QDir>
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

TEST_F(Process, TheEndOfASessionEndsItAsItsMenuDoes)
{
    startSilently();
    panel->raiseSignal(SIGTERM);
    ASSERT_TRUE(panel->waitForExit());
    EXPECT_EQ(panel->process().exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(panel->process().exitCode(), 0);
    EXPECT_EQ(panel->lines(), QStringList());
    panel.reset();
}

TEST_F(Process, SaysNothingUnlessDebugging)
{
    startSilently();
    hand.clickAt({x.size().width() / 2, 5});
    EXPECT_TRUE(waitUntil([this] { return programWindowAt({x.size().width() / 2, 100}).has_value(); }));
    EXPECT_EQ(panel->lines(), QStringList());
}

/// Rendering, which needs no display.
class Rendering : public Process
{
protected:
    Rendering() { session.setVariable("TMPDIR", temporary.path().toLocal8Bit().constData()); }

    /// What it prints.
    QByteArray render(const QStringList &arguments)
    {
        QProcessEnvironment environment = session.environment();
        environment.remove(u"DISPLAY"_s);
        ChildProcess program(QStringLiteral(BRIMLIGHT_PROGRAM), arguments, environment);
        EXPECT_TRUE(program.waitForFinished(60000));
        EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
        status = program.exitCode();
        errors = program.readAllStandardError();
        return program.readAllStandardOutput();
    }

    QTemporaryDir temporary;
    int status = -1;
    QByteArray errors;
};

TEST_F(Rendering, WithoutAFolderGoesToTheTemporaryOne)
{
    const QDir folder(temporary.filePath(u"brimlight-widget-renders"_s));
    const QByteArray said = render({u"--render-widgets"_s});
    EXPECT_EQ(status, 0);
    EXPECT_EQ(errors, "");
    const QStringList files = folder.entryList(QDir::Files);
    EXPECT_EQ(said, u"rendered %1 tiles\nRENDER_OK %2\n"_s.arg(files.size()).arg(folder.path()).toUtf8());
    EXPECT_EQ(files.size(), 146) << "each kind at each of its sizes";
    for (const QString &name : {u"clock_wideTall.png"_s, u"weather_tall.png"_s, u"github_large.png"_s})
        EXPECT_TRUE(files.contains(name)) << name.toStdString();
    // Twice as large as on a plain screen, and nothing beside the tile's round corners.
    const QImage calendar(folder.filePath(u"calendar_huge.png"_s));
    EXPECT_EQ(calendar.size(), QSize(492, 492));
    EXPECT_EQ(calendar.pixelColor(0, 0).alpha(), 0);
    EXPECT_GT(calendar.pixelColor(calendar.rect().center()).alpha(), 100);
}

TEST_F(Rendering, ToAFolderThatCannotBeMadeFails)
{
    const QByteArray said = render({u"--render-widgets"_s, u"/proc/brimlight"_s});
    EXPECT_EQ(status, 1);
    EXPECT_EQ(said, "");
    EXPECT_TRUE(errors.startsWith("RENDER_FAIL ") && errors.endsWith('\n')) << errors.toStdString();
}

TEST_F(Rendering, WithoutTheSwitchTheProgramStartsAndNothingIsRendered)
{
    startPanel();
    hand.moveTo(onStrip());
    EXPECT_TRUE(waitForOpen());
    EXPECT_EQ(QDir(temporary.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
    EXPECT_EQ(panel->lines().filter(u"RENDER"_s), QStringList());
}

/// A variable of the environment; a null value stands for its absence.
struct EnvironmentCase
{
    const char *name;
    const char *variable;
    const char *value;
};

struct FileCase
{
    const char *name;
    const char *content;
};

template<typename Case>
std::string caseName(const testing::TestParamInfo<Case> &info)
{
    return info.param.name;
}

/// A Wayland session that has an X display beside it.
class WaylandSession : public Process, public testing::WithParamInterface<EnvironmentCase>
{
};

constexpr EnvironmentCase waylandSessions[] = {{"ItsPlatform", "QT_QPA_PLATFORM", "wayland"},
                                               {"ItsPlatformFirst", "QT_QPA_PLATFORM", "wayland;xcb"},
                                               {"ItsDisplay", "WAYLAND_DISPLAY", "wayland-0"},
                                               {"ItsSessionType", "XDG_SESSION_TYPE", "wayland"}};
INSTANTIATE_TEST_SUITE_P(Process, WaylandSession, testing::ValuesIn(waylandSessions),
                         caseName<EnvironmentCase>);

TEST_P(WaylandSession, RunsOnX11)
{
    session.setVariable(GetParam().variable, GetParam().value);
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
    const QRect left(0, 0, middle - 536, 600);
    EXPECT_TRUE(waitUntil([&] { return changed(bare, left) == 0; }));
    EXPECT_TRUE(waitUntil([&] { return changed(bare, left.translated(middle + 536, 0)) == 0; }));
}

class NoDisplay : public testing::TestWithParam<EnvironmentCase>
{
};

constexpr EnvironmentCase unreachable[] = {{"Unset", "DISPLAY", nullptr},
                                           {"Empty", "DISPLAY", ""},
                                           {"NoneOfThatName", "DISPLAY", "no-such-display"},
                                           {"WaylandOnly", "WAYLAND_DISPLAY", "wayland-0"},
                                           {"WaylandPlatform", "QT_QPA_PLATFORM", "wayland"},
                                           {"XPlatform", "QT_QPA_PLATFORM", "xcb"}};
INSTANTIATE_TEST_SUITE_P(Process, NoDisplay, testing::ValuesIn(unreachable), caseName<EnvironmentCase>);

TEST_P(NoDisplay, IsOneLineAndStatusOne)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const auto &variable : {u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s, u"QT_QPA_PLATFORM"_s})
        environment.remove(variable);
    if (GetParam().value)
        environment.insert(QString::fromLatin1(GetParam().variable), QString::fromLatin1(GetParam().value));
    Panel program(QStringLiteral(BRIMLIGHT_PROGRAM), environment);
    ASSERT_TRUE(program.waitForExit());
    EXPECT_EQ(program.process().exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program.process().exitCode(), 1);
    EXPECT_EQ(program.lines().size(), 1) << program.lines().join(u'\n').toStdString();
    EXPECT_TRUE(program.lines().value(0).startsWith(u"brimlight: "_s));
}

/// Files from which no settings can be had.
class UnusableDefaults : public Process, public testing::WithParamInterface<FileCase>
{
};

constexpr FileCase unusableFiles[] = {{"Empty", ""},
                                      {"CutOff", R"({"brimlight.hoverDelay": 0.)"},
                                      {"AList", R"(["brimlight.hoverDelay", 3600])"},
                                      {"NoText", "\xff\xfe settings"},
                                      {"OfTheWrongType", R"({"brimlight.hoverDelay": "3600"})"}};
INSTANTIATE_TEST_SUITE_P(Process, UnusableDefaults, testing::ValuesIn(unusableFiles), caseName<FileCase>);

TEST_P(UnusableDefaults, AreLeftAloneAndTheProgramWorks)
{
    const QString name = u"Brimlight/defaults.json"_s;
    session.writeConfigFile(name, GetParam().content);
    startPanel();
    hand.moveTo(onStrip());
    EXPECT_TRUE(waitForOpen());
    hand.moveTo(away());
    EXPECT_TRUE(waitForClose());
    panel->end();
    QFile file(session.configFile(name));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), QByteArray(GetParam().content));
    panel.reset();
}

} // namespace
} // namespace brimlight::onscreen
