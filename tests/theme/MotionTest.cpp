#include "theme/Motion.h"

#include "fakes/DirectFileWriter.h"
#include "fakes/Fakes.h"
#include "theme/Fonts.h"
#include "theme/ThemeStore.h"

#include <gtest/gtest.h>

#include <QMetaProperty>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlProperty>
#include <QTemporaryDir>

namespace brimlight::test {
namespace {

/// Every named movement, by its name.
QMap<QByteArray, MotionCurve> curves(const Motion &motion)
{
    QMap<QByteArray, MotionCurve> all;
    const QMetaObject &meta = Motion::staticMetaObject;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        if (property.metaType() == QMetaType::fromType<MotionCurve>())
            all.insert(property.name(), property.read(&motion).value<MotionCurve>());
    }
    return all;
}

class MotionQml : public testing::Test
{
protected:
    MotionQml() { engine.addImportPath(QStringLiteral("qrc:/qt/qml")); }

    std::unique_ptr<QObject> make(const QByteArray &qml)
    {
        QQmlComponent component(&engine);
        component.setData("import QtQuick\nimport Brimlight.Theme\n" + qml, QUrl());
        std::unique_ptr<QObject> object(component.create());
        EXPECT_TRUE(object) << qPrintable(component.errorString());
        return object;
    }

    FakeAppearance appearance;
    Motion motion{&appearance};
    QQmlEngine engine;
};

const QByteArray animation =
    "NumberAnimation { duration: Motion.hover.duration; easing: Motion.hover.easing }";

} // namespace

TEST(Motion, SpringsTakeTheirSettlingTimeAndFollowTheClosedForm)
{
    using Seconds = std::chrono::duration<double>;
    const Motion motion(nullptr);
    const std::pair<MotionCurve, Spring> springs[] = {
        {motion.panel(), Spring(Seconds(0.34), 0.85)},     {motion.hover(), Spring(Seconds(0.24), 0.82)},
        {motion.headerHover(), Spring(Seconds(0.2), 0.7)}, {motion.cardHover(), Spring(Seconds(0.24), 0.78)},
        {motion.press(), Spring(Seconds(0.25), 0.6)},      {motion.selection(), Spring(Seconds(0.25), 0.8)},
        {motion.flip(), Spring(Seconds(0.55), 0.65)},      {motion.layout(), Spring(Seconds(0.3), 0.84)},
        {motion.entrance(), Spring(Seconds(0.35), 0.7)},   {motion.dots(), Spring(Seconds(0.3), 0.7)},
        {motion.onboarding(), Spring(Seconds(0.3), 0.8)},  {motion.rolling(), Spring(Seconds(0.35), 0.85)},
        {motion.hud(), Spring(Seconds(0.25), 0.8)}};
    for (const auto &[curve, spring] : springs) {
        const std::chrono::milliseconds total = spring.settlingTime();
        EXPECT_EQ(curve.duration, total.count());
        for (int i = 0; i <= 20; ++i)
            EXPECT_NEAR(curve.easing.valueForProgress(i / 20.0), spring.value(Seconds(total) * (i / 20.0)),
                        0.015);
    }
}

TEST(Motion, EaseOutsTakeTheirTimeAndSlowDown)
{
    const Motion motion(nullptr);
    EXPECT_EQ(motion.quickFade().duration, 120);
    EXPECT_EQ(motion.fade().duration, 180);
    EXPECT_EQ(motion.hudFade().duration, 200);
    EXPECT_EQ(motion.change().duration, 250);
    EXPECT_GT(motion.change().easing.valueForProgress(0.5), 0.6);
    EXPECT_NEAR(motion.change().easing.valueForProgress(1), 1, 1e-6);
}

TEST(Motion, WhatGoesToAndFroIsSlowAtBothEnds)
{
    const Motion motion(nullptr);
    EXPECT_EQ(motion.charging().duration, 900);
    EXPECT_LT(motion.charging().easing.valueForProgress(0.1), 0.05);
    EXPECT_NEAR(motion.charging().easing.valueForProgress(0.5), 0.5, 1e-3);
    EXPECT_GT(motion.charging().easing.valueForProgress(0.9), 0.95);
}

TEST(Motion, NothingIsReducedWithoutAnAppearance)
{
    const Motion motion(nullptr);
    EXPECT_FALSE(motion.isReduced());
    EXPECT_FALSE(motion.isOpaque());
    for (const MotionCurve &curve : curves(motion))
        EXPECT_GT(curve.duration, 0);
}

TEST(Motion, UnderReducedMotionNothingTakesTime)
{
    FakeAppearance appearance;
    appearance.reducedMotion = true;
    const Motion motion(&appearance);
    EXPECT_TRUE(motion.isReduced());
    EXPECT_FALSE(motion.isOpaque());
    const auto all = curves(motion);
    EXPECT_EQ(all.size(), 18);
    EXPECT_EQ(motion.stagger(), 0);
    for (auto it = all.begin(); it != all.end(); ++it)
        EXPECT_EQ(it->duration, 0) << it.key().constData();
}

TEST(Motion, FollowsTheSettings)
{
    FakeAppearance appearance;
    const Motion motion(&appearance);
    int changes = 0;
    QObject::connect(&motion, &Motion::changed, [&] { ++changes; });
    const int full = motion.hover().duration;
    appearance.set(true, true);
    EXPECT_EQ(motion.hover().duration, 0);
    EXPECT_TRUE(motion.isOpaque());
    appearance.set(false, false);
    EXPECT_EQ(motion.hover().duration, full);
    EXPECT_EQ(changes, 2);
}

TEST(Motion, ObservesNoLongerThanItLives)
{
    FakeAppearance appearance;
    {
        const Motion motion(&appearance);
    }
    appearance.set(true, true);
}

TEST_F(MotionQml, AnAnimationTakesDurationAndEasing)
{
    motion.installOn(engine);
    const auto object = make(animation);
    ASSERT_TRUE(object);
    EXPECT_EQ(object->property("duration").toInt(), motion.hover().duration);
    EXPECT_EQ(object->property("easing").value<QEasingCurve>(), motion.hover().easing);
}

TEST_F(MotionQml, BindingsFollowTheSettings)
{
    motion.installOn(engine);
    const auto object = make(animation);
    const auto flags =
        make("QtObject { property bool still: Motion.reduced; property bool dense: Motion.opaque }");
    ASSERT_TRUE(object && flags);
    EXPECT_FALSE(flags->property("still").toBool());
    appearance.set(true, true);
    EXPECT_EQ(object->property("duration").toInt(), 0);
    EXPECT_TRUE(flags->property("still").toBool());
    EXPECT_TRUE(flags->property("dense").toBool());
    appearance.set(false, false);
    EXPECT_EQ(object->property("duration").toInt(), motion.hover().duration);
}

TEST_F(MotionQml, TwoEnginesHaveTheirOwn)
{
    motion.installOn(engine);
    appearance.set(true, false);
    QQmlEngine other;
    other.addImportPath(QStringLiteral("qrc:/qt/qml"));
    QQmlComponent component(&other);
    component.setData("import QtQuick\nimport Brimlight.Theme\n" + animation, QUrl());
    const std::unique_ptr<QObject> object(component.create());
    ASSERT_TRUE(object) << qPrintable(component.errorString());
    EXPECT_GT(object->property("duration").toInt(), 0) << "without an appearance nothing is reduced";
}

TEST_F(MotionQml, AReducedBehaviourJumps)
{
    motion.installOn(engine);
    appearance.set(true, false);
    const auto item = make("Item { Behavior on x { " + animation + " } }");
    ASSERT_TRUE(item);
    QQmlProperty::write(item.get(), QStringLiteral("x"), 100);
    EXPECT_EQ(item->property("x").toDouble(), 100);
}

TEST_F(MotionQml, AStyleOfTypeIsTakenWhole)
{
    const auto text = make("Text { font: Fonts.strong(Fonts.label) }");
    ASSERT_TRUE(text);
    const auto font = text->property("font").value<QFont>();
    EXPECT_EQ(font.pixelSize(), 11);
    EXPECT_EQ(font.weight(), QFont::DemiBold);
    EXPECT_EQ(font.family(), Fonts().label().family());
}

TEST_F(MotionQml, AViewReadsAndChangesTheTheme)
{
    const QTemporaryDir folder;
    MemoryDefaults defaults;
    RecordingLog log;
    DirectFileWriter files;
    ThemeStore store({folder.filePath(QStringLiteral("theme.json")), files}, defaults, log);
    QJSEngine::setObjectOwnership(&store, QJSEngine::CppOwnership);
    engine.rootContext()->setContextProperty(QStringLiteral("testStore"), &store);
    const auto item = make(R"(Item {
        id: root
        property ThemeStore store: testStore
        property color accent: store.current.accent
        property real glass: store.glassStrength
        property alias swatches: repeater.count
        component Swatch: Rectangle {
            required property theme modelData
            property string label: modelData.id + " " + modelData.name
            color: modelData.surface
        }
        Repeater {
            id: repeater
            model: root.store.builtIns
            Swatch {}
        }
        function label(index: int) : string { return repeater.itemAt(index).label; }
        function pick(id: string) { store.selectPalette(id); }
        function paint() { store.setAccent("red"); }
        function polish() { store.glassStrength = 0.2; }
    })");
    ASSERT_TRUE(item);
    EXPECT_EQ(item->property("swatches").toInt(), 25);
    QString label;
    QMetaObject::invokeMethod(item.get(), "label", Q_RETURN_ARG(QString, label), Q_ARG(int, 2));
    EXPECT_EQ(label, QStringLiteral("ocean Ocean"));
    EXPECT_EQ(item->property("accent").value<QColor>(), Theme::midnight().accentColor());
    QMetaObject::invokeMethod(item.get(), "pick", Q_ARG(QString, QStringLiteral("rose")));
    EXPECT_EQ(item->property("accent").value<QColor>(), Theme::rose().accentColor());
    QMetaObject::invokeMethod(item.get(), "paint");
    EXPECT_EQ(store.current().id, QStringLiteral("custom"));
    EXPECT_EQ(item->property("accent").value<QColor>(), QColor(Qt::red));
    QMetaObject::invokeMethod(item.get(), "polish");
    EXPECT_EQ(item->property("glass").toDouble(), 0.2);
}

} // namespace brimlight::test
