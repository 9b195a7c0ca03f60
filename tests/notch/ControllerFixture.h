#pragma once

#include "app/NotchAssembly.h"
#include "app/Stores.h"
#include "fakes/FakePlatform.h"

#include <gtest/gtest.h>

#include <optional>

namespace brimlight::test {

using namespace std::chrono_literals;

/// A controller on fakes. Screen 1440 by 900 without a housing: the strip is (620,868 200x32); the open panel
/// of a finished walk-through with one row in use is (452,542 536x358).
class ControllerTest : public testing::Test, protected FakePlatform
{
protected:
    ControllerTest()
    {
        screens.setPlain(1440, 900);
        defaults.values.insert(QStringLiteral("brimlight.onboardingCompleted"), true);
    }

    void start()
    {
        build(fakeSurface);
        controller->show();
        scheduler.runPosted();
    }

    /// Everything but the views, on this surface.
    void build(OverlaySurface &on)
    {
        notch.reset();
        stores.emplace(platform, log);
        notch.emplace(*stores, on);
        controller = &notch->controller;
    }

    NotchViewModel &model() { return stores->viewModel; }
    NotchPanel &panel() { return controller->panel(); }
    FakeSurface &surface() { return fakeSurface; }
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
        GridLayout layout = stores->grid.layout();
        layout.pageCount = count;
        stores->grid.setLayout(layout);
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

    FakeSurface fakeSurface;
    std::optional<Stores> stores;
    std::optional<NotchAssembly> notch;
    NotchController *controller = nullptr;

private:
    qsizetype m_seen = 0;
};

} // namespace brimlight::test
