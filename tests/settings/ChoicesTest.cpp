#include "fakes/DirectFileWriter.h"
#include "fakes/Fakes.h"
#include "settings/ColorDraft.h"
#include "settings/SettingsChoices.h"
#include "settings/ThemeChoices.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTemporaryDir>

namespace brimlight::test {
namespace {

class Choices : public testing::Test
{
protected:
    Choices() { choices.setSettings(&settings); }

    MemoryDefaults defaults;
    AppSettings settings{defaults};
    SettingsChoices choices;
};

class ThemeChoicesTest : public testing::Test
{
protected:
    ThemeChoicesTest() { choices.setTheme(&theme); }

    QTemporaryDir dir;
    MemoryDefaults defaults;
    RecordingLog log;
    DirectFileWriter files;
    ThemeStore theme{{dir.filePath(QStringLiteral("theme.json")), files}, defaults, log};
    ThemeChoices choices;
};

} // namespace

TEST_F(Choices, HoverDelaysAreTheFiveOfThePanel)
{
    EXPECT_EQ(choices.hoverDelays(),
              (QStringList{QStringLiteral("Immediate (0s)"), QStringLiteral("0.2s"), QStringLiteral("0.5s"),
                           QStringLiteral("1.0s"), QStringLiteral("1.5s")}));
    EXPECT_EQ(choices.hoverDelay(), 2);
    const double seconds[] = {0, 0.2, 0.5, 1.0, 1.5};
    for (int i = 0; i < 5; ++i) {
        choices.chooseHoverDelay(i);
        EXPECT_EQ(settings.hoverDelay(), seconds[i]);
        EXPECT_EQ(defaults.read<double>(QStringLiteral("brimlight.hoverDelay")), seconds[i]);
        EXPECT_EQ(choices.hoverDelay(), i);
    }
}

TEST_F(Choices, AHoverDelayThatNoOptionHasIsNotSelectedAndStays)
{
    settings.setHoverDelay(0.7);
    EXPECT_EQ(choices.hoverDelay(), -1);
    EXPECT_EQ(settings.hoverDelay(), 0.7);
    choices.chooseHoverDelay(-1);
    choices.chooseHoverDelay(5);
    EXPECT_EQ(settings.hoverDelay(), 0.7);
}

TEST_F(Choices, RefreshRatesAreInTheOrderOfTheCases)
{
    EXPECT_EQ(choices.refreshRates(),
              (QStringList{QStringLiteral("Live · 0.5 s"), QStringLiteral("Balanced · 1 s"),
                           QStringLiteral("Efficient · 2 s"), QStringLiteral("Power Saver · 5 s")}));
    EXPECT_EQ(choices.refreshRate(), 1);
    choices.chooseRefreshRate(3);
    EXPECT_EQ(settings.refreshRate(), RefreshRate::saver);
    choices.chooseRefreshRate(4);
    EXPECT_EQ(settings.refreshRate(), RefreshRate::saver);
}

TEST_F(Choices, LanguagesCallThemselvesByTheirOwnNames)
{
    const QStringList names{QStringLiteral("English"), QStringLiteral("Deutsch"), QStringLiteral("Español"),
                            QStringLiteral("Français"), QStringLiteral("Italiano")};
    const AppLanguage languages[] = {AppLanguage::english, AppLanguage::german, AppLanguage::spanish,
                                     AppLanguage::french, AppLanguage::italian};
    for (int i = 0; i < 5; ++i) {
        choices.chooseLanguage(i);
        EXPECT_EQ(settings.language(), languages[i]);
        EXPECT_EQ(choices.language(), i);
        EXPECT_EQ(choices.languages(), names) << "whatever the language";
    }
}

TEST_F(Choices, FollowTheLanguage)
{
    QSignalSpy changed(&choices, &SettingsChoices::changed);
    settings.setLanguage(AppLanguage::german);
    EXPECT_FALSE(changed.isEmpty());
    EXPECT_EQ(choices.hoverDelays().first(), QStringLiteral("Sofort (0s)"));
    EXPECT_EQ(choices.refreshRates().last(), QStringLiteral("Energiesparend · 5 s"));
}

TEST_F(ThemeChoicesTest, APresetIsMarkedByItsId)
{
    EXPECT_EQ(choices.marked(), 0);
    theme.selectPalette(QStringLiteral("aurora"));
    ASSERT_EQ(choices.marked(), 9);
    EXPECT_EQ(theme.builtIns()[9].name, QStringLiteral("Aurora Green"));
}

TEST_F(ThemeChoicesTest, ACustomThemeMarksNoSwatchAndTheResetMarksMidnight)
{
    theme.selectPalette(QStringLiteral("ocean"));
    choices.setColor(0, QColor(QStringLiteral("#123456")));
    EXPECT_EQ(choices.marked(), -1);
    EXPECT_EQ(theme.current().name, QStringLiteral("Custom"));
    EXPECT_EQ(theme.current().surface, Theme::ocean().surface);
    theme.reset();
    ASSERT_EQ(choices.marked(), 0);
    EXPECT_EQ(theme.builtIns()[0].name, QStringLiteral("Midnight"));
}

TEST_F(ThemeChoicesTest, AGlassStrengthOf0554Shows55Percent)
{
    theme.setGlassStrength(0.554);
    EXPECT_EQ(choices.strengthText(), QStringLiteral("55%"));
    theme.setGlassStrength(0);
    EXPECT_EQ(choices.strengthText(), QStringLiteral("0%"));
    theme.setGlassStrength(3);
    EXPECT_EQ(choices.strengthText(), QStringLiteral("100%"));
}

TEST_F(ThemeChoicesTest, EachColorSetsItsOwnField)
{
    EXPECT_EQ(choices.colorLabels(),
              (QStringList{QStringLiteral("Accent Highlight"), QStringLiteral("Notch Surface"),
                           QStringLiteral("Widget Tiles Background"), QStringLiteral("Primary Text"),
                           QStringLiteral("Secondary Text"), QStringLiteral("Separators & Rims")}));
    constexpr ThemeColor Theme::*fields[] = {&Theme::accent,          &Theme::surface,
                                             &Theme::surfaceElevated, &Theme::textPrimary,
                                             &Theme::textSecondary,   &Theme::separator};
    for (int i = 0; i < 6; ++i) {
        theme.reset();
        const QColor color(10 * i, 20, 30, 100);
        choices.setColor(i, color);
        Theme expected = Theme::midnight();
        expected.*fields[i] = ThemeColor(color);
        expected.id = QStringLiteral("custom");
        expected.name = QStringLiteral("Custom");
        EXPECT_EQ(theme.current(), expected) << i;
        EXPECT_EQ(choices.colors()[i].rgba(), color.rgba());
    }
    choices.setColor(6, Qt::red);
    choices.setColor(-1, Qt::red);
    EXPECT_EQ(theme.current().separatorColor().rgba(), QColor(50, 20, 30, 100).rgba());
}

TEST_F(ThemeChoicesTest, AColorIsToldWithItsOpacity)
{
    EXPECT_EQ(choices.colorTexts().first(), QStringLiteral("#0A84FF"));
    EXPECT_EQ(choices.colorTexts()[2], QStringLiteral("#FFFFFF · 8%"));
}

TEST(ColorDraft, APartThatIsPickedLeavesTheOthers)
{
    ColorDraft draft;
    draft.setColor(QColor(QStringLiteral("#0A84FF")));
    QSignalSpy picked(&draft, &ColorDraft::picked);
    const double hue = draft.hue();
    draft.pickOpacity(0.5);
    ASSERT_EQ(picked.size(), 1);
    EXPECT_NEAR(picked.first().first().value<QColor>().alphaF(), 0.5, 1e-4);
    EXPECT_EQ(draft.hex(), QStringLiteral("#0A84FF"));
    draft.pickBrightness(2);
    EXPECT_EQ(draft.brightness(), 1) << "limited";
    EXPECT_EQ(draft.hue(), hue);
}

TEST(ColorDraft, AGreyKeepsItsHueAndBlackItsSaturation)
{
    ColorDraft draft;
    draft.setColor(QColor::fromHsvF(0.6F, 0.8F, 0.9F));
    const double hue = draft.hue();
    const double saturation = draft.saturation();
    const auto store = [&] { draft.setColor(QColor::fromRgba(draft.color().rgba())); };
    draft.pickBrightness(0);
    store();
    draft.pickBrightness(0.9);
    store();
    EXPECT_EQ(draft.hue(), hue);
    EXPECT_EQ(draft.saturation(), saturation);
    draft.pickSaturation(0);
    store();
    EXPECT_EQ(draft.hue(), hue);
    draft.setColor(Qt::white);
    EXPECT_EQ(draft.hue(), hue);
    EXPECT_EQ(draft.saturation(), 0);
}

TEST(ColorDraft, TakesHexadecimalDigitsAndNothingElse)
{
    ColorDraft draft;
    draft.setColor(QColor(1, 2, 3, 128));
    QSignalSpy picked(&draft, &ColorDraft::picked);
    for (const char *text : {"", "#", "#12345", "#1234567", "red", "#12345G", "0x123456", "#123456789"})
        draft.pickHex(QLatin1String(text));
    EXPECT_TRUE(picked.isEmpty());
    draft.pickHex(QStringLiteral(" ff8000\n"));
    ASSERT_EQ(picked.size(), 1);
    EXPECT_EQ(picked.takeFirst().first().value<QColor>().rgba(), qRgba(255, 128, 0, 128));
    draft.pickHex(QStringLiteral("#00FF0040"));
    ASSERT_EQ(picked.size(), 1);
    EXPECT_EQ(picked.takeFirst().first().value<QColor>().rgba(), qRgba(0, 255, 0, 64));
}

} // namespace brimlight::test
