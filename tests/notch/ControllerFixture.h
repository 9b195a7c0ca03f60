#pragma once

#include "fakes/FakeAudioServer.h"
#include "fakes/FakeDisplayBrightness.h"
#include "fakes/FakeHostStatistics.h"
#include "fakes/FakePowerSources.h"
#include "fakes/Fakes.h"
#include "fakes/SensorFakes.h"
#include "fakes/SwitchFakes.h"
#include "grid/WidgetRegistry.h"
#include "notch/NotchController.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <optional>

namespace brimlight::test {

using namespace std::chrono_literals;

/// A controller on fakes. Screen 1440 by 900 without a housing: the strip is (620,868 200x32); the open panel
/// of a finished walk-through with one row in use is (452,542 536x358).
class ControllerTest : public testing::Test
{
protected:
    ControllerTest()
    {
        folders.support = support.path();
        screens.setPlain(1440, 900);
        defaults.values.insert(QStringLiteral("brimlight.onboardingCompleted"), true);
    }

    void start()
    {
        controller.emplace(platform, hosting, log, widgets);
        controller->show();
        scheduler.runPosted();
    }

    NotchViewModel &model() { return *controller->viewModel(); }
    NotchPanel &panel() { return *controller->panel(); }
    FakeSurface &surface() { return hosting.fakeSurface; }
    bool isExpanded() { return model().isExpanded(); }

    static constexpr Point onStrip{720, 890};
    static constexpr Point inOpenPanel{720, 600};
    static constexpr Point farAway{100, 100};

    void enter(Point where = onStrip)
    {
        pointer.where = where;
        surface().events.entered();
    }
    void leave(Point where = farAway)
    {
        pointer.where = where;
        surface().events.exited();
    }
    /// Moves without an entry or exit, as seen by the monitors.
    void move(Point where)
    {
        pointer.where = where;
        FakePointer::send(pointer.global);
        scheduler.runPosted();
    }
    void swipe(double dx, double dy)
    {
        using Phase = ScrollEvent::Phase;
        surface().events.scrolled({.phase = Phase::began});
        surface().events.scrolled({.phase = Phase::changed, .deltaX = dx, .deltaY = dy});
        surface().events.scrolled({.phase = Phase::ended});
        scheduler.runPosted();
    }
    /// Opens by the pointer.
    void openByHover()
    {
        enter();
        scheduler.advance(500ms);
        ASSERT_TRUE(isExpanded());
    }
    void setPages(int count)
    {
        GridLayout layout = controller->grid()->layout();
        layout.pageCount = count;
        controller->grid()->setLayout(layout);
        scheduler.runPosted();
    }
    /// The lines logged since the last call.
    QStringList lines()
    {
        const QStringList all = recorded.messages();
        const QStringList fresh = all.mid(m_seen);
        m_seen = all.size();
        return fresh;
    }

    ManualScheduler scheduler;
    MemoryDefaults defaults;
    const QTemporaryDir support;
    FakeFolders folders;
    RecordingLog recorded;
    FakeScreens screens;
    FakePointer pointer;
    FakeSignals unixSignals;
    FakeAppearance appearance;
    FakeHostStatistics statistics;
    FakePowerSources power;
    FakeMachine machine;
    FakeSmc smc;
    FakeThermal thermal;
    FakeLoginItem loginItem;
    FakeStatusItem statusItem;
    FakeAudioServer audio;
    FakeDisplayBrightness brightness;
    FakeDoNotDisturb doNotDisturb;
    FakeScriptHost scripts;
    FakePowerAssertions powerAssertions;
    FakeSounds sounds;
    Platform platform{scheduler,  defaults,   folders,    recorded,     screens, pointer,         unixSignals,
                      appearance, statistics, power,      machine,      smc,     thermal,         loginItem,
                      statusItem, audio,      brightness, doNotDisturb, scripts, powerAssertions, sounds};
    TraceLog log{recorded, {}};
    FakeHosting hosting;
    const WidgetRegistry widgets{{}};
    std::optional<NotchController> controller;

private:
    qsizetype m_seen = 0;
};

} // namespace brimlight::test
