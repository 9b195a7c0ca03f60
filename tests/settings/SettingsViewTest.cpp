#include "core/AppSettings.h"
#include "core/LoginItemService.h"
#include "core/UiTranslator.h"
#include "fakes/DirectFileWriter.h"
#include "fakes/Fakes.h"
#include "fakes/HandDriver.h"
#include "fakes/Scene.h"
#include "theme/Motion.h"
#include "theme/ThemeStore.h"
#include "update/UpdateService.h"

#include <gtest/gtest.h>

#include <QQmlEngine>
#include <QQuickView>
#include <QSignalSpy>
#include <QTemporaryDir>

namespace brimlight::test {
namespace {

using namespace std::chrono_literals;

/// The panel alone in a window, with real clicks and keys.
class SettingsView : public testing::Test
{
protected:
    void SetUp() override
    {
        motion.installOn(*view.engine());
        view.engine()->addImportPath(QStringLiteral("qrc:/qt/qml"));
        QObject::connect(&settings, &AppSettings::languageChanged, view.engine(), &QQmlEngine::retranslate);
        view.setInitialProperties({{QStringLiteral("theme"), QVariant::fromValue(&theme)},
                                   {QStringLiteral("settings"), QVariant::fromValue(&settings)},
                                   {QStringLiteral("loginItem"), QVariant::fromValue(&loginItem)},
                                   {QStringLiteral("updater"), QVariant::fromValue(&updater)}});
        view.setResizeMode(QQuickView::SizeRootObjectToView);
        // High enough for everything to be seen at once.
        view.resize(536, 1100);
        view.setSource(QUrl(QStringLiteral("qrc:/qt/qml/Brimlight/Settings/ThemeSettingsView.qml")));
        view.show();
        view.requestActivate();
        settle();
    }
    void settle()
    {
        time.advanceBy(0ms);
        time.advanceBy(3s);
        // Lays out what has grown.
        view.grabWindow();
    }
    QQuickItem *find(QAccessible::Role role, const QString &name) const
    {
        for (QQuickItem *item : scene.withRole(role)) {
            if (QAccessible::queryAccessibleInterface(item)->text(QAccessible::Name) == name)
                return item;
        }
        ADD_FAILURE() << "no " << qPrintable(name);
        return nullptr;
    }
    void click(QAccessible::Role role, const QString &name)
    {
        if (const QQuickItem *item = find(role, name))
            scene.click(*item);
        settle();
    }
    void key(Qt::Key key)
    {
        QTest::keyClick(&view, key);
        settle();
    }
    bool isChecked(QAccessible::Role role, const QString &name) const
    {
        QQuickItem *item = find(role, name);
        return item && QAccessible::queryAccessibleInterface(item)->state().checked;
    }
    QString description(QAccessible::Role role, const QString &name) const
    {
        QQuickItem *item = find(role, name);
        return item ? QAccessible::queryAccessibleInterface(item)->text(QAccessible::Description) : QString();
    }
    void showAppearance() { click(QAccessible::PageTab, QStringLiteral("Appearance")); }
    QStringList markedSwatches() const
    {
        QStringList names;
        for (QQuickItem *item : scene.withRole(QAccessible::RadioButton)) {
            const QAccessibleInterface *known = QAccessible::queryAccessibleInterface(item);
            if (known->state().checked)
                names.append(known->text(QAccessible::Name));
        }
        return names;
    }

    HandDriver time;
    QTemporaryDir dir;
    MemoryDefaults defaults;
    RecordingLog log;
    FakeAppearance appearance;
    FakeLoginItem item;
    Motion motion{&appearance};
    AppSettings settings{defaults};
    UiTranslator translator{settings};
    DirectFileWriter files;
    ThemeStore theme{{dir.filePath(QStringLiteral("theme.json")), files}, defaults, log};
    LoginItemService loginItem{item, log};
    UpdateService updater{defaults};
    QQuickView view;
    Scene scene{view};
};

} // namespace

TEST_F(SettingsView, OpensOnTheTabGeneralWithItsCardsInOrder)
{
    EXPECT_EQ(scene.namesOf(QAccessible::PageTab),
              (QStringList{QStringLiteral("General"), QStringLiteral("Appearance")}));
    EXPECT_EQ(scene.namesOf(QAccessible::Heading),
              (QStringList{QStringLiteral("Startup"), QStringLiteral("Clock & Units"),
                           QStringLiteral("Language"), QStringLiteral("Panel Trigger"),
                           QStringLiteral("Performance"), QStringLiteral("Software Update")}));
    showAppearance();
    EXPECT_EQ(scene.namesOf(QAccessible::Heading),
              (QStringList{QStringLiteral("Liquid Glass"), QStringLiteral("Theme Presets"),
                           QStringLiteral("Custom Colors")}));
    EXPECT_EQ(scene.namesOf(QAccessible::Graphic), QStringList{QStringLiteral("Live theme preview")});
    EXPECT_TRUE(scene.texts().contains(QStringLiteral("09:41")));
}

TEST_F(SettingsView, TogglesWriteAtOnce)
{
    click(QAccessible::CheckBox, QStringLiteral("Use 24-hour clock format"));
    click(QAccessible::CheckBox, QStringLiteral("Show seconds in clock"));
    click(QAccessible::CheckBox, QStringLiteral("Use Celsius (°C) for temperature"));
    click(QAccessible::CheckBox, QStringLiteral("Automatically check for updates"));
    EXPECT_FALSE(settings.clock24h());
    EXPECT_FALSE(settings.showSeconds());
    EXPECT_FALSE(settings.celsius());
    EXPECT_FALSE(updater.autoCheckEnabled());
    EXPECT_FALSE(isChecked(QAccessible::CheckBox, QStringLiteral("Show seconds in clock")));
    click(QAccessible::CheckBox, QStringLiteral("Show seconds in clock"));
    EXPECT_TRUE(settings.showSeconds());
    EXPECT_TRUE(isChecked(QAccessible::CheckBox, QStringLiteral("Show seconds in clock")));
}

TEST_F(SettingsView, TheLoginSwitchShowsWhatTheSystemSays)
{
    const QString name = QStringLiteral("Launch Brimlight at login");
    click(QAccessible::CheckBox, name);
    EXPECT_TRUE(item.enabled);
    EXPECT_TRUE(isChecked(QAccessible::CheckBox, name));
    click(QAccessible::CheckBox, name);
    EXPECT_FALSE(item.enabled);
    item.error = QStringLiteral("no room");
    click(QAccessible::CheckBox, name);
    EXPECT_FALSE(isChecked(QAccessible::CheckBox, name));
    EXPECT_EQ(log.messages(), QStringList{QStringLiteral("Login item register failed: no room")});
}

TEST_F(SettingsView, AMenuChoosesAndCloses)
{
    click(QAccessible::ComboBox, QStringLiteral("Hover Delay"));
    EXPECT_EQ(scene.namesOf(QAccessible::MenuItem).size(), 5);
    EXPECT_TRUE(isChecked(QAccessible::MenuItem, QStringLiteral("0.5s")));
    click(QAccessible::MenuItem, QStringLiteral("1.5s"));
    EXPECT_EQ(settings.hoverDelay(), 1.5);
    EXPECT_TRUE(scene.withRole(QAccessible::MenuItem).isEmpty());
    EXPECT_EQ(description(QAccessible::ComboBox, QStringLiteral("Hover Delay")), QStringLiteral("1.5s"));
    click(QAccessible::ComboBox, QStringLiteral("Refresh Interval"));
    click(QAccessible::MenuItem, QStringLiteral("Live · 0.5 s"));
    EXPECT_EQ(settings.refreshRate(), RefreshRate::live);
}

TEST_F(SettingsView, AHoverDelayThatNoOptionHasShowsNoSelectionAndStays)
{
    settings.setHoverDelay(0.7);
    settle();
    EXPECT_EQ(description(QAccessible::ComboBox, QStringLiteral("Hover Delay")), QString());
    click(QAccessible::ComboBox, QStringLiteral("Hover Delay"));
    for (QQuickItem *entry : scene.withRole(QAccessible::MenuItem))
        EXPECT_FALSE(QAccessible::queryAccessibleInterface(entry)->state().checked);
    scene.click(QPointF(20, 1090));
    settle();
    EXPECT_TRUE(scene.withRole(QAccessible::MenuItem).isEmpty()) << "a click elsewhere closes";
    EXPECT_EQ(settings.hoverDelay(), 0.7);
}

TEST_F(SettingsView, AMenuIsWorkedByKeys)
{
    QQuickItem *picker = find(QAccessible::ComboBox, QStringLiteral("Hover Delay"));
    ASSERT_TRUE(picker);
    picker->forceActiveFocus(Qt::TabFocusReason);
    key(Qt::Key_Space);
    key(Qt::Key_Down);
    key(Qt::Key_Return);
    EXPECT_EQ(settings.hoverDelay(), 1.0) << "it began at the chosen one";
    EXPECT_TRUE(picker->hasActiveFocus());
    key(Qt::Key_Down);
    EXPECT_EQ(scene.namesOf(QAccessible::MenuItem).size(), 5);
    key(Qt::Key_Escape);
    EXPECT_TRUE(scene.withRole(QAccessible::MenuItem).isEmpty());
    EXPECT_TRUE(picker->hasActiveFocus());
    EXPECT_EQ(settings.hoverDelay(), 1.0);
}

TEST_F(SettingsView, ALanguageIsSeenAtOnce)
{
    click(QAccessible::ComboBox, QStringLiteral("Language"));
    click(QAccessible::MenuItem, QStringLiteral("Deutsch"));
    EXPECT_EQ(settings.language(), AppLanguage::german);
    EXPECT_EQ(scene.namesOf(QAccessible::PageTab),
              (QStringList{QStringLiteral("Allgemein"), QStringLiteral("Darstellung")}));
    EXPECT_EQ(description(QAccessible::ComboBox, QStringLiteral("Aktualisierungsintervall")),
              QStringLiteral("Ausgewogen · 1 s"));
    EXPECT_TRUE(
        scene.texts().contains(QStringLiteral("Aktuelle Version: ") + UpdateService::currentVersion()));
}

TEST_F(SettingsView, TheUpdateCardFollowsTheState)
{
    using State = UpdateService::State;
    QSignalSpy check(&updater, &UpdateService::checkForUpdates);
    QSignalSpy install(&updater, &UpdateService::downloadAndInstall);
    QSignalSpy cancel(&updater, &UpdateService::cancelDownload);
    click(QAccessible::Button, QStringLiteral("Check Now"));
    EXPECT_EQ(check.size(), 1);
    updater.setState(State::checking);
    settle();
    EXPECT_FALSE(scene.button(QStringLiteral("Check Now")));
    EXPECT_TRUE(scene.texts().contains(QStringLiteral("Checking for updates...")));
    updater.setLatestVersion(QStringLiteral("9.1"));
    updater.setReleaseNotes(QStringLiteral("Many things"));
    updater.setState(State::available);
    settle();
    EXPECT_TRUE(scene.texts().contains(QStringLiteral("New version 9.1 is available!")));
    EXPECT_TRUE(scene.texts().contains(QStringLiteral("Many things")));
    click(QAccessible::Button, QStringLiteral("Download & Install"));
    EXPECT_EQ(install.size(), 1);
    updater.setState(State::downloading);
    updater.setDownloadProgress(0.25);
    settle();
    EXPECT_TRUE(scene.texts().contains(QStringLiteral("25%")));
    EXPECT_FALSE(scene.button(QStringLiteral("Download & Install")));
    click(QAccessible::Button, QStringLiteral("Cancel"));
    EXPECT_EQ(cancel.size(), 1);
    updater.setState(State::error, QStringLiteral("Invalid response"));
    settle();
    EXPECT_TRUE(scene.texts().contains(QStringLiteral("Update Error")));
    EXPECT_TRUE(scene.texts().contains(QStringLiteral("Invalid response")));
    EXPECT_TRUE(scene.button(QStringLiteral("Check Now")));
}

TEST_F(SettingsView, AGlassStrengthOf0554Shows55Percent)
{
    theme.setGlassStrength(0.554);
    showAppearance();
    EXPECT_TRUE(scene.texts().contains(QStringLiteral("55%")));
}

TEST_F(SettingsView, TheSliderSetsTheStrengthByPointerAndKeys)
{
    showAppearance();
    QQuickItem *slider = find(QAccessible::Slider, QStringLiteral("Transparency & Tint"));
    ASSERT_TRUE(slider);
    scene.click(*slider);
    EXPECT_NEAR(theme.glassStrength(), 0.5, 0.02);
    scene.click(Scene::frameOf(*slider).topLeft() + QPointF(1, 11));
    EXPECT_EQ(theme.glassStrength(), 0);
    slider->forceActiveFocus(Qt::TabFocusReason);
    key(Qt::Key_Right);
    EXPECT_DOUBLE_EQ(theme.glassStrength(), 0.01);
    key(Qt::Key_PageUp);
    EXPECT_DOUBLE_EQ(theme.glassStrength(), 0.11);
    key(Qt::Key_End);
    EXPECT_EQ(theme.glassStrength(), 1);
    key(Qt::Key_Right);
    EXPECT_EQ(theme.glassStrength(), 1);
    EXPECT_EQ(defaults.read<double>(QStringLiteral("brimlight.glassStrength")), 1.0);
}

TEST_F(SettingsView, AScreenReaderReadsAndSetsTheSlider)
{
    showAppearance();
    QQuickItem *slider = find(QAccessible::Slider, QStringLiteral("Transparency & Tint"));
    ASSERT_TRUE(slider);
    QAccessibleValueInterface *value = QAccessible::queryAccessibleInterface(slider)->valueInterface();
    ASSERT_TRUE(value);
    EXPECT_EQ(value->currentValue().toDouble(), 0.55);
    value->setCurrentValue(0.25);
    EXPECT_EQ(theme.glassStrength(), 0.25);
    theme.setGlassStrength(0.75);
    settle();
    EXPECT_EQ(value->currentValue().toDouble(), 0.75) << "it still follows the store";
}

TEST_F(SettingsView, SwatchesStandInTheOrderOfThePresetsAndOneIsMarked)
{
    showAppearance();
    QStringList names;
    for (const Theme &preset : Theme::builtIns())
        names.append(preset.name);
    EXPECT_EQ(scene.namesOf(QAccessible::RadioButton), names);
    EXPECT_EQ(markedSwatches(), QStringList{QStringLiteral("Midnight")});
    click(QAccessible::RadioButton, QStringLiteral("Glacier Blue"));
    EXPECT_EQ(theme.current(), Theme::frosty());
    EXPECT_EQ(markedSwatches(), QStringList{QStringLiteral("Glacier Blue")});
}

TEST_F(SettingsView, SwatchesAreReachedByArrowsAndChosenBySpace)
{
    showAppearance();
    find(QAccessible::RadioButton, QStringLiteral("Midnight"))->forceActiveFocus(Qt::TabFocusReason);
    key(Qt::Key_Right);
    key(Qt::Key_Down);
    EXPECT_EQ(theme.current(), Theme::midnight()) << "passing by chooses nothing";
    key(Qt::Key_Space);
    EXPECT_EQ(theme.current().id, Theme::builtIns()[6].id);
}

TEST_F(SettingsView, ACustomThemeShowsNoMarkedSwatchAndTheResetMarksMidnight)
{
    showAppearance();
    theme.setAccent(Qt::red);
    settle();
    EXPECT_EQ(markedSwatches(), QStringList());
    click(QAccessible::Button, QStringLiteral("Reset to Default Preset"));
    EXPECT_EQ(markedSwatches(), QStringList{QStringLiteral("Midnight")});
    EXPECT_EQ(theme.current(), Theme::midnight());
}

TEST_F(SettingsView, AColorIsPickedByItsSliders)
{
    showAppearance();
    click(QAccessible::Button, QStringLiteral("Panel Surface"));
    click(QAccessible::Slider, QStringLiteral("Opacity"));
    EXPECT_EQ(theme.current().id, QStringLiteral("custom"));
    EXPECT_NEAR(theme.current().surface.opacity, 0.5, 0.02);
    EXPECT_NEAR(theme.current().surface.red, Theme::midnight().surface.red, 0.003);
    EXPECT_EQ(theme.current().accent, Theme::midnight().accent);
    click(QAccessible::Slider, QStringLiteral("Brightness"));
    EXPECT_NEAR(theme.current().surface.blue, 0.5, 0.02);
}

TEST_F(SettingsView, AColorIsTypedAndNonsenseIsPutBack)
{
    showAppearance();
    click(QAccessible::Button, QStringLiteral("Accent Highlight"));
    QQuickItem *hex = find(QAccessible::EditableText, QStringLiteral("Hex value"));
    ASSERT_TRUE(hex);
    scene.click(*hex);
    QTest::keyClick(&view, Qt::Key_A, Qt::ControlModifier);
    for (const char c : QByteArray("ff8000"))
        QTest::keyClick(&view, c);
    settle();
    EXPECT_EQ(theme.current().accentColor().name(), QStringLiteral("#ff8000"));
    EXPECT_EQ(hex->property("text"), QStringLiteral("#FF8000"));
    key(Qt::Key_Backspace);
    EXPECT_EQ(theme.current().accentColor().name(), QStringLiteral("#ff8000"));
    key(Qt::Key_Return);
    EXPECT_EQ(hex->property("text"), QStringLiteral("#FF8000"));
    theme.setAccent(Qt::green);
    EXPECT_EQ(hex->property("text"), QStringLiteral("#00FF00"));
}

TEST_F(SettingsView, OneColorIsOpenAtATimeAndEscapeClosesIt)
{
    showAppearance();
    click(QAccessible::Button, QStringLiteral("Accent Highlight"));
    click(QAccessible::Button, QStringLiteral("Primary Text"));
    EXPECT_EQ(scene.namesOf(QAccessible::EditableText).size(), 1);
    QQuickItem *hex = find(QAccessible::EditableText, QStringLiteral("Hex value"));
    hex->forceActiveFocus(Qt::TabFocusReason);
    key(Qt::Key_Escape);
    EXPECT_TRUE(scene.namesOf(QAccessible::EditableText).isEmpty());
    EXPECT_TRUE(find(QAccessible::Button, QStringLiteral("Primary Text"))->hasActiveFocus());
}

/// No text stands out of the panel or over another one, whatever the language.
class SettingsViewIn : public SettingsView, public testing::WithParamInterface<AppLanguage>
{
protected:
    void expectTextsApart() const
    {
        QList<QQuickItem *> texts = scene.items();
        texts.removeIf([](const QQuickItem *item) {
            return !item->inherits("QQuickText") || item->property("text").toString().isEmpty();
        });
        for (qsizetype i = 0; i < texts.size(); ++i) {
            const QRectF frame = Scene::frameOf(*texts[i]);
            const std::string text = texts[i]->property("text").toString().toStdString();
            EXPECT_GE(frame.left(), 16) << text;
            EXPECT_LE(frame.right(), 520) << text;
            EXPECT_FALSE(texts[i]->property("truncated").toBool()) << text;
            EXPECT_LE(texts[i]->property("contentWidth").toDouble(), frame.width() + 0.5) << text;
            for (qsizetype k = i + 1; k < texts.size(); ++k)
                EXPECT_FALSE(frame.intersects(Scene::frameOf(*texts[k])))
                    << text << " / " << texts[k]->property("text").toString().toStdString();
        }
    }
};

INSTANTIATE_TEST_SUITE_P(Languages, SettingsViewIn, testing::ValuesIn(allLanguages),
                         [](const auto &info) { return rawValue(info.param).toStdString(); });

TEST_P(SettingsViewIn, NoTextIsCutOrStandsOverAnother)
{
    settings.setLanguage(GetParam());
    updater.setLastChecked(QDateTime(QDate(2026, 12, 29), QTime(23, 59)));
    using State = UpdateService::State;
    for (const State state : {State::idle, State::checking, State::available, State::downloading,
                              State::installing, State::upToDate, State::error}) {
        SCOPED_TRACE(static_cast<int>(state));
        updater.setState(state, QStringLiteral("The connection was refused by the other side"));
        settle();
        expectTextsApart();
    }
    scene.click(*scene.withRole(QAccessible::PageTab).last());
    settle();
    expectTextsApart();
    scene.click(*find(QAccessible::Button, settings.localized(QStringLiteral("Accent Highlight"))));
    settle();
    expectTextsApart();
}

TEST_F(SettingsView, ReducedMotionMovesNothing)
{
    appearance.set(true, false);
    updater.setState(UpdateService::State::checking);
    settle();
    QQuickItem *knob = find(QAccessible::CheckBox, QStringLiteral("Show seconds in clock"));
    ASSERT_TRUE(knob);
    const auto snapshot = [this] {
        QList<QPointF> places;
        for (const QQuickItem *shown : scene.items())
            places.append(shown->mapToScene({shown->rotation(), 0}));
        return places;
    };
    scene.click(*knob);
    QCoreApplication::processEvents();
    const QList<QPointF> before = snapshot();
    time.advanceBy(200ms);
    EXPECT_EQ(snapshot(), before);
}

} // namespace brimlight::test
