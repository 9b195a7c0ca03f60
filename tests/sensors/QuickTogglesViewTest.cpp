#include "fakes/HandDriver.h"
#include "fakes/Scene.h"
#include "fakes/SwitchFakes.h"
#include "sensors/QuickTogglesStore.h"
#include "theme/Motion.h"
#include "widgets/WidgetFixture.h"

#include <QQmlEngine>
#include <QQuickView>

namespace brimlight::test {

using namespace std::chrono_literals;

namespace {

/// The view alone in a window, as large as in its tile.
class QuickTogglesView : public WidgetTest
{
protected:
    void show(WidgetSize size)
    {
        context.setSize(size);
        motion.installOn(*view.engine());
        view.engine()->addImportPath(QStringLiteral("qrc:/qt/qml"));
        view.setInitialProperties({{QStringLiteral("context"), QVariant::fromValue(&context)},
                                   {QStringLiteral("face"), QVariant::fromValue(&store)}});
        view.setResizeMode(QQuickView::SizeRootObjectToView);
        view.setSource(QUrl(QStringLiteral("qrc:/qt/qml/Brimlight/Sensors/QuickTogglesView.qml")));
        view.resize(size == WidgetSize::small ? 54 : 140, size == WidgetSize::large ? 140 : 54);
        view.show();
        context.setLive(true);
        settle();
    }
    void settle()
    {
        time.advanceBy(0ms);
        time.advanceBy(1s);
    }
    /// By its place among those that stay pressed.
    QQuickItem *toggle(int index) const { return scene.withRole(QAccessible::CheckBox).value(index); }
    bool isChecked(int index) const
    {
        return QAccessible::queryAccessibleInterface(toggle(index))->state().checked;
    }
    QStringList symbols() const
    {
        QStringList names;
        for (const QQuickItem *item : scene.items()) {
            if (item->inherits("brimlight::Symbol"))
                names.append(item->property("name").toString());
        }
        return names;
    }

    HandDriver time;
    FakeScriptHost scripts;
    FakePowerAssertions assertions;
    FakeSounds sounds;
    FakeAppearance appearance;
    QuickTogglesStore store{context, scripts, assertions, sounds, appearance};
    Motion motion{&appearance};
    QQuickView view;
    Scene scene{view};
};

const QString cup = QStringLiteral("cup.and.saucer.fill");

} // namespace

TEST_F(QuickTogglesView, TheSmallOneIsCaffeineAlone)
{
    show(WidgetSize::small);
    EXPECT_EQ(scene.namesOf(QAccessible::CheckBox), QStringList(QStringLiteral("Caffeine")));
    EXPECT_TRUE(scene.namesOf(QAccessible::Button).isEmpty());
    EXPECT_EQ(symbols(), QStringList(cup));
    EXPECT_TRUE(scene.texts().contains(QStringLiteral("Caffeine")));
    scene.click(*toggle(0));
    EXPECT_TRUE(isChecked(0));
    EXPECT_EQ(assertions.names.size(), 1);
    assertions.fail();
    EXPECT_FALSE(isChecked(0));
}

TEST_F(QuickTogglesView, LargerOnesAreARowOfAllFour)
{
    show(WidgetSize::wide);
    EXPECT_EQ(scene.namesOf(QAccessible::CheckBox),
              QStringList({QStringLiteral("Caffeine"), QStringLiteral("Dark Mode"), QStringLiteral("Mute")}));
    EXPECT_EQ(symbols(), QStringList({cup, QStringLiteral("sun.max"), QStringLiteral("speaker.wave.2"),
                                      QStringLiteral("trash")}));
    for (const WidgetSize size : {WidgetSize::wide, WidgetSize::large}) {
        context.setSize(size);
        settle();
        double right = 0;
        for (QQuickItem *item : scene.ofType("QuickToggle")) {
            const QRectF frame = Scene::frameOf(*item);
            EXPECT_GE(frame.left(), right);
            right = frame.right();
        }
        EXPECT_LE(right, view.width());
    }
}

TEST_F(QuickTogglesView, EachSwitchDoesItsOwn)
{
    show(WidgetSize::wide);
    scripts.reply(QStringLiteral("true"));
    EXPECT_TRUE(isChecked(2)) << "as it is read";
    EXPECT_EQ(symbols().value(2), QStringLiteral("speaker.slash.fill"));
    scripts.started.clear();
    scene.click(*toggle(1));
    scene.click(*toggle(2));
    QQuickItem *trash = scene.button(QStringLiteral("Empty Trash"));
    ASSERT_TRUE(trash);
    scene.click(*trash);
    EXPECT_EQ(scripts.started, QStringList({systemScripts::toggleDarkMode, systemScripts::toggleMute,
                                            systemScripts::emptyTrash}));
    EXPECT_EQ(sounds.played, QStringList(QStringLiteral("Trash")));
    appearance.dark = true;
    scripts.reply(QString());
    EXPECT_TRUE(isChecked(1));
    EXPECT_EQ(symbols().value(1), QStringLiteral("moon.fill"));
}

TEST_F(QuickTogglesView, OneThatDoesNotWorkSaysWhy)
{
    const QString reason = QStringLiteral("No audio output was found.");
    const auto description = [this](int index) {
        return QAccessible::queryAccessibleInterface(toggle(index))->text(QAccessible::Description);
    };
    scripts.obstacles = {{systemScripts::toggleMute, Obstacle::noAudioOutput}};
    show(WidgetSize::wide);
    EXPECT_EQ(description(2), QString()) << "nothing is known yet";
    scripts.answerChecks();
    EXPECT_EQ(description(2), reason) << "to a screen reader";
    EXPECT_EQ(description(0), QString());
    EXPECT_EQ(description(1), QString());
    EXPECT_FALSE(scene.texts().contains(reason));
    scene.moveTo(Scene::middle(*toggle(2)));
    settle();
    EXPECT_TRUE(scene.texts().contains(reason)) << "to whoever points";
    scene.moveTo(Scene::middle(*toggle(1)));
    settle();
    EXPECT_FALSE(scene.texts().contains(reason));
    scripts.started.clear();
    scene.click(*toggle(2));
    EXPECT_FALSE(scripts.started.contains(systemScripts::toggleMute));
    scripts.obstacles.clear();
    scripts.answerChecks();
    EXPECT_EQ(description(2), QString()) << "an output has come meanwhile";
    scene.click(*toggle(2));
    EXPECT_TRUE(scripts.started.contains(systemScripts::toggleMute));
}

TEST_F(QuickTogglesView, KeysPressTheSwitches)
{
    show(WidgetSize::wide);
    QTest::keyClick(&view, Qt::Key_Tab);
    QTest::keyClick(&view, Qt::Key_Space);
    EXPECT_TRUE(isChecked(0));
    QTest::keyClick(&view, Qt::Key_Tab);
    QTest::keyClick(&view, Qt::Key_Return);
    EXPECT_EQ(scripts.started.last(), systemScripts::toggleDarkMode);
}

} // namespace brimlight::test
