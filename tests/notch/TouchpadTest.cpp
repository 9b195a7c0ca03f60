#include "notch/PanelViewFixture.h"

#include <QPointingDevice>
#include <QWheelEvent>

namespace brimlight::test {

/// Two fingers on a touchpad over the open panel.
class Touchpad : public PanelView
{
protected:
    static constexpr ScrollAxes column{.vertical = true};

    QPointF middle() { return panel().pane().center(); }
    ScrollAxes scrollable(QPointF point)
    {
        return static_cast<FakeSurface &>(window.surface()).scrollableAt({point.x(), point.y()});
    }

    /// As the surface hands it on: one gesture in steps of 10 points, down the content for positive
    /// distances.
    void scroll(int distance)
    {
        send(0, Qt::ScrollBegin);
        for (int done = 0; done < std::abs(distance); done += 10)
            send(distance > 0 ? -10 : 10, Qt::ScrollUpdate);
        send(0, Qt::ScrollEnd);
        settle();
    }
    /// The visible thing that can be scrolled in the middle of the panel.
    QQuickItem *flickable()
    {
        const QList<QQuickItem *> items = scene.items();
        for (auto it = items.rbegin(); it != items.rend(); ++it) {
            if ((*it)->inherits("QQuickFlickable") && Scene::frameOf(**it).contains(middle()))
                return *it;
        }
        return nullptr;
    }
    double contentY() { return flickable()->property("contentY").toDouble(); }

    void showTallPage()
    {
        start();
        stores->grid.setLayout({.instances = {{.kind = QStringLiteral("gone"), .col = 0, .row = 7}}});
        open();
    }

private:
    void send(int points, Qt::ScrollPhase phase)
    {
        QWheelEvent event(middle(), middle(), {0, points}, {0, 8 * points}, Qt::NoButton, {}, phase, false,
                          Qt::MouseEventSynthesizedBySystem, &m_device);
        QCoreApplication::sendEvent(&window.view(), &event);
    }

    QPointingDevice m_device{QStringLiteral("touchpad"),
                             0,
                             QInputDevice::DeviceType::TouchPad,
                             QPointingDevice::PointerType::Generic,
                             QInputDevice::Capability::Scroll | QInputDevice::Capability::PixelScroll,
                             1,
                             3};
};

TEST_F(Touchpad, NothingScrollsOnABareGrid)
{
    start();
    open();
    EXPECT_EQ(scrollable(middle()), ScrollAxes{});
}

TEST_F(Touchpad, TheSettingsScrollPointByPoint)
{
    start();
    controller->openSettings();
    settle();
    ASSERT_EQ(scrollable(middle()), column);
    scroll(130);
    EXPECT_EQ(contentY(), 130);
    scroll(-50);
    EXPECT_EQ(contentY(), 80);
    scroll(-500);
    EXPECT_EQ(contentY(), 0);
    scroll(30);
    EXPECT_EQ(contentY(), 30) << "at once, however far the fingers went beyond the end";
}

TEST_F(Touchpad, TheHeaderAboveTheSettingsDoesNot)
{
    start();
    controller->openSettings();
    settle();
    const QRectF pane = panel().pane();
    EXPECT_EQ(scrollable({pane.center().x(), pane.top() + 12}), ScrollAxes{});
}

TEST_F(Touchpad, AFullPageScrollsUnlessOptionsAreOpen)
{
    showTallPage();
    ASSERT_EQ(scrollable(middle()), column);
    const QQuickItem *page = scene.ofType("WidgetGridView").first()->parentItem()->parentItem();
    scroll(30);
    EXPECT_EQ(page->property("contentY").toDouble(), 30);
    model().setOptionsOpen(true);
    EXPECT_EQ(scrollable(middle()), ScrollAxes{});
}

TEST_F(Touchpad, WhatHasFadedAwayDoesNotCount)
{
    start();
    open();
    controller->openGallery();
    settle();
    controller->closeGallery();
    settle();
    EXPECT_EQ(scrollable(middle()), ScrollAxes{});
}

} // namespace brimlight::test
