#include "platform/linux/x11/ContentWheel.h"

#include <QPointingDevice>
#include <QWheelEvent>
#include <QWindow>

#include <gtest/gtest.h>

namespace brimlight::test {

using Phase = ScrollEvent::Phase;

/// Notes what it is given.
class WheelWindow : public QWindow
{
public:
    void wheelEvent(QWheelEvent *event) override
    {
        phases.append(event->phase());
        points += event->pixelDelta();
        degrees += event->angleDelta() / 8;
        position = event->position();
        isTouchpad = event->pointingDevice()->type() == QInputDevice::DeviceType::TouchPad;
    }

    QList<Qt::ScrollPhase> phases;
    QPoint points;
    QPoint degrees;
    QPointF position;
    bool isTouchpad = false;
};

class Wheel : public testing::Test
{
protected:
    void send(Phase phase, double deltaX = 0, double deltaY = 0)
    {
        wheel.deliver({.phase = phase, .deltaX = deltaX, .deltaY = deltaY, .position = {30, 40}});
    }

    WheelWindow window;
    ContentWheel wheel{window};
};

TEST_F(Wheel, AGestureReachesTheContentPointByPoint)
{
    send(Phase::began, 0, -3);
    send(Phase::changed, 2, -12);
    send(Phase::ended);
    EXPECT_EQ(window.phases, (QList{Qt::ScrollBegin, Qt::ScrollUpdate, Qt::ScrollEnd}));
    EXPECT_EQ(window.points, QPoint(2, -15));
    EXPECT_EQ(window.degrees, QPoint(2, -15));
    EXPECT_EQ(window.position, QPointF(30, 40));
    EXPECT_TRUE(window.isTouchpad);
}

TEST_F(Wheel, FractionsOfAPointAddUp)
{
    send(Phase::began);
    for (int i = 0; i < 40; ++i)
        send(Phase::changed, 0, -0.25);
    EXPECT_EQ(window.points, QPoint(0, -10));
}

TEST_F(Wheel, TheFirstEventThatComesBegins)
{
    send(Phase::changed, 0, -4);
    EXPECT_EQ(window.phases, QList{Qt::ScrollBegin});
    EXPECT_EQ(window.points, QPoint(0, -4));
}

TEST_F(Wheel, AnEndWithoutABeginningIsNone)
{
    send(Phase::ended);
    EXPECT_TRUE(window.phases.isEmpty());
}

TEST_F(Wheel, WhatIsLeftOfAPointEndsWithTheGesture)
{
    send(Phase::began, 0, -0.75);
    send(Phase::ended);
    send(Phase::began, 0, -0.75);
    EXPECT_EQ(window.points, QPoint());
}

} // namespace brimlight::test
