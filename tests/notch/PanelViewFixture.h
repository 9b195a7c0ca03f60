#pragma once

#include "fakes/HandDriver.h"
#include "fakes/Scene.h"
#include "notch/ControllerFixture.h"
#include "notch/NotchWindow.h"

namespace brimlight::test {

/// Stands in a window that has no display.
class OffscreenSurface : public FakeSurface
{
public:
    explicit OffscreenSurface(QWindow &window)
        : m_window(window)
    {
    }

    void orderFront() override { m_window.show(); }
    void setExtent(const Rect &extent) override
    {
        FakeSurface::setExtent(extent);
        m_window.resize(QSizeF(extent.width, extent.height).toSize());
    }

private:
    QWindow &m_window;
};

/// The view tree of the program on a controller on fakes.
class PanelView : public ControllerTest
{
protected:
    ~PanelView() override { window.unhost(); }

    void start()
    {
        build(window.surface());
        window.host(notch->scene, *controller);
        controller->show();
        settle();
    }
    /// Everything has happened that nobody else sets off.
    void settle()
    {
        scheduler.runPosted();
        time.advanceBy(0ms);
        time.advanceBy(3s);
    }
    void open()
    {
        controller->open();
        settle();
    }

    HandDriver time;
    NotchWindow window{[](QWindow &view) { return std::make_unique<OffscreenSurface>(view); }};
    Scene scene{window.view()};
};

} // namespace brimlight::test
