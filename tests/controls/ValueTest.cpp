#include "controls/ControlsFixture.h"

namespace brimlight::test {
namespace {

double value(QAccessibleInterface *known)
{
    return known->valueInterface()->currentValue().toDouble();
}

class Slider : public ControlsTest
{
protected:
    void showIt(const QByteArray &extra = {})
    {
        show("property real at: 0.5\nSlider { objectName: \"it\"; width: 116; label: \"Tint\"; colors: "
             "root.colors; "
             "position: root.at; onMoved: to => root.at = to; " +
             extra + " }");
    }
    double at() const { return view.rootObject()->property("at").toDouble(); }
};

class Stepper : public ControlsTest
{
protected:
    void showIt(const QByteArray &extra = {})
    {
        show("property real at: 8\nStepper { objectName: \"it\"; width: 100; label: \"Length\"; colors: "
             "root.colors; "
             "amount: root.at; from: 6; to: 12; step: 2; onMoved: to => root.at = to; " +
             extra + " }");
    }
    double at() const { return view.rootObject()->property("at").toDouble(); }
};

} // namespace

TEST_F(Slider, FollowsThePointerAndStopsAtItsEnds)
{
    showIt();
    scene.click(QPointF(8 + 25, 11));
    EXPECT_NEAR(at(), 0.25, 0.01);
    scene.click(QPointF(115, 11));
    EXPECT_EQ(at(), 1);
}

TEST_F(Slider, IsMovedByKeys)
{
    showIt();
    focus("it");
    key(Qt::Key_Right);
    EXPECT_NEAR(at(), 0.51, 1e-6);
    key(Qt::Key_PageDown);
    EXPECT_NEAR(at(), 0.41, 1e-6);
    key(Qt::Key_Home);
    EXPECT_EQ(at(), 0);
    key(Qt::Key_Left);
    EXPECT_EQ(at(), 0);
    key(Qt::Key_End);
    EXPECT_EQ(at(), 1);
}

TEST_F(Slider, AScreenReaderReadsAndSetsIt)
{
    showIt();
    EXPECT_EQ(known("it")->role(), QAccessible::Slider);
    EXPECT_EQ(known("it")->text(QAccessible::Name), QStringLiteral("Tint"));
    EXPECT_EQ(value(known("it")), 0.5);
    known("it")->valueInterface()->setCurrentValue(0.75);
    EXPECT_EQ(at(), 0.75);
}

TEST_F(Slider, WhatIsNotAvailableIsDimmedAndStays)
{
    showIt("available: false");
    EXPECT_LT(item("it")->opacity(), 0.5);
    scene.click(QPointF(20, 11));
    EXPECT_EQ(at(), 0.5);
}

TEST_F(Stepper, ItsEndsStepAndStopAtTheBounds)
{
    showIt();
    const QPointF minus(12, 12);
    const QPointF plus(88, 12);
    scene.click(plus);
    EXPECT_EQ(at(), 10);
    scene.click(plus);
    scene.click(plus);
    EXPECT_EQ(at(), 12);
    for (int i = 0; i < 5; ++i)
        scene.click(minus);
    EXPECT_EQ(at(), 6);
}

TEST_F(Stepper, IsOneStopThatArrowsChange)
{
    showIt();
    key(Qt::Key_Tab);
    EXPECT_TRUE(item("it")->hasActiveFocus());
    EXPECT_TRUE(marks(*item("it")));
    key(Qt::Key_Up);
    EXPECT_EQ(at(), 10);
    key(Qt::Key_Down);
    key(Qt::Key_Minus);
    EXPECT_EQ(at(), 6);
    key(Qt::Key_End);
    EXPECT_EQ(at(), 12);
    key(Qt::Key_Home);
    EXPECT_EQ(at(), 6);
    key(Qt::Key_Tab);
    EXPECT_TRUE(item("it")->hasActiveFocus()) << "plus and minus are no stops of their own";
}

TEST_F(Stepper, GoesOnFromTheOtherEndWhereItWraps)
{
    showIt("wraps: true");
    focus("it");
    key(Qt::Key_Down);
    key(Qt::Key_Down);
    EXPECT_EQ(at(), 12);
    key(Qt::Key_Up);
    EXPECT_EQ(at(), 6);
}

TEST_F(Stepper, AScreenReaderReadsAndSetsIt)
{
    showIt("text: root.at + \" signs\"");
    EXPECT_EQ(known("it")->role(), QAccessible::SpinBox);
    EXPECT_EQ(known("it")->text(QAccessible::Description), QStringLiteral("8 signs"));
    EXPECT_EQ(known("it")->valueInterface()->maximumValue().toDouble(), 12);
    known("it")->valueInterface()->setCurrentValue(10);
    EXPECT_EQ(at(), 10);
}

TEST_F(Stepper, WhatIsNotAvailableIsDimmedAndStays)
{
    showIt("available: false");
    EXPECT_LT(item("it")->opacity(), 0.5);
    scene.click(QPointF(88, 12));
    EXPECT_EQ(at(), 8);
}

using ScrollArea = ControlsTest;

TEST_F(ScrollArea, TheWheelScrollsToTheEndAndNoFurther)
{
    show("ScrollArea { objectName: \"it\"; width: 200; height: 100; colors: root.colors\n"
         "Rectangle { objectName: \"tall\"; width: 20; height: 300 } }");
    const double top = Scene::frameOf(*item("tall")).top();
    QWheelEvent wheel(QPointF(50, 50), view.mapToGlobal(QPointF(50, 50)), {}, QPoint(0, -120), Qt::NoButton,
                      {}, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&view, &wheel);
    settle();
    EXPECT_EQ(Scene::frameOf(*item("tall")).top(), top - 60);
    for (int i = 0; i < 10; ++i) {
        QWheelEvent again(QPointF(50, 50), view.mapToGlobal(QPointF(50, 50)), {}, QPoint(0, -120),
                          Qt::NoButton, {}, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&view, &again);
    }
    settle();
    EXPECT_EQ(Scene::frameOf(*item("tall")).top(), top - (300 + 24 - 100));
}

using ProgressBar = ControlsTest;

TEST_F(ProgressBar, SaysHowFarItIs)
{
    show("ProgressBar { objectName: \"it\"; width: 160; label: \"Week\"; fraction: 0.4; text: \"40%\"; "
         "colors: "
         "root.colors }");
    EXPECT_EQ(known("it")->role(), QAccessible::ProgressBar);
    EXPECT_EQ(known("it")->text(QAccessible::Name), QStringLiteral("Week 40%"));
}

TEST_F(ProgressBar, WhereLittleIsLeftOfItTheBarStandsBelowItsLabelInFullWidth)
{
    show("ProgressBar { objectName: \"it\"; width: 74; height: implicitHeight; stacked: true; label: "
         "\"Month\"; fraction: "
         "0.5; text: \"50%\"; colors: root.colors }");
    double longest = 0;
    for (const QQuickItem *part : item("it")->childItems()) {
        if (part->inherits("QQuickRectangle"))
            longest = std::max(longest, part->width());
    }
    EXPECT_EQ(longest, 74);
}

} // namespace brimlight::test
