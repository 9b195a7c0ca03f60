#include "theme/Theme.h"

#include <gtest/gtest.h>

#include <QSet>

namespace brimlight::test {
namespace {

struct Row
{
    const Theme &constant;
    const char *id;
    const char *name;
    struct Hex
    {
        const char *digits;
        double opacity;
    } colors[6];
};

const std::vector<Row> &rows()
{
    static const std::vector<Row> all{
        {Theme::midnight(),
         "midnight",
         "Midnight",
         {{"#0A84FF", 1.0},
          {"#0B0B0F", 0.96},
          {"#FFFFFF", 0.08},
          {"#FFFFFF", 0.92},
          {"#FFFFFF", 0.55},
          {"#FFFFFF", 0.1}}},
        {Theme::graphite(),
         "graphite",
         "Graphite",
         {{"#5E5CE6", 1.0},
          {"#17171A", 0.96},
          {"#FFFFFF", 0.07},
          {"#FFFFFF", 0.92},
          {"#FFFFFF", 0.55},
          {"#FFFFFF", 0.1}}},
        {Theme::ocean(),
         "ocean",
         "Ocean",
         {{"#32D0E0", 1.0},
          {"#0A1A24", 0.96},
          {"#64D2FF", 0.09},
          {"#EAFBFF", 0.95},
          {"#EAFBFF", 0.55},
          {"#64D2FF", 0.14}}},
        {Theme::sand(),
         "sand",
         "Sand",
         {{"#FF9F0A", 1.0},
          {"#1F1813", 0.96},
          {"#FFFFFF", 0.07},
          {"#FFF8F0", 0.92},
          {"#FFF8F0", 0.55},
          {"#FFFFFF", 0.1}}},
        {Theme::rose(),
         "rose",
         "Rose",
         {{"#FF375F", 1.0},
          {"#1B0E13", 0.96},
          {"#FFFFFF", 0.08},
          {"#FFF0F3", 0.93},
          {"#FFF0F3", 0.55},
          {"#FFFFFF", 0.1}}},
        {Theme::forest(),
         "forest",
         "Forest",
         {{"#30D158", 1.0},
          {"#0C1710", 0.96},
          {"#9BE6B0", 0.08},
          {"#F0FFF4", 0.93},
          {"#F0FFF4", 0.55},
          {"#FFFFFF", 0.1}}},
        {Theme::grape(),
         "grape",
         "Grape",
         {{"#BF5AF2", 1.0},
          {"#15101F", 0.96},
          {"#D9B8FF", 0.08},
          {"#F7F0FF", 0.93},
          {"#F7F0FF", 0.55},
          {"#FFFFFF", 0.1}}},
        {Theme::slate(),
         "slate",
         "Slate",
         {{"#A0A0A8", 1.0},
          {"#141416", 0.96},
          {"#FFFFFF", 0.06},
          {"#FFFFFF", 0.9},
          {"#FFFFFF", 0.5},
          {"#FFFFFF", 0.1}}},
        {Theme::sunset(),
         "sunset",
         "Sunset Glow",
         {{"#FF5E62", 1.0},
          {"#1A0F2E", 0.96},
          {"#E0C3FC", 0.08},
          {"#FFF0FA", 0.93},
          {"#D0BBD0", 0.6},
          {"#E0C3FC", 0.12}}},
        {Theme::aurora(),
         "aurora",
         "Aurora Green",
         {{"#00F2FE", 1.0},
          {"#051C1A", 0.96},
          {"#00F2FE", 0.07},
          {"#E6F9F8", 0.93},
          {"#9BE6E1", 0.6},
          {"#00F2FE", 0.12}}},
        {Theme::solar(),
         "solar",
         "Solar Amber",
         {{"#FFB300", 1.0},
          {"#1F140C", 0.96},
          {"#FFD54F", 0.08},
          {"#FFFDEE", 0.93},
          {"#D1C3B2", 0.6},
          {"#FFB300", 0.12}}},
        {Theme::cyber(),
         "cyber",
         "Cyber Neon",
         {{"#FF007F", 1.0},
          {"#09090C", 0.97},
          {"#00FFFF", 0.09},
          {"#FFFFFF", 0.95},
          {"#8C92AC", 0.6},
          {"#00FFFF", 0.15}}},
        {Theme::frosty(),
         "frosty",
         "Glacier Blue",
         {{"#00D2FF", 1.0},
          {"#0A1521", 0.96},
          {"#E6F4F8", 0.08},
          {"#F0F8FF", 0.93},
          {"#A5C3D6", 0.6},
          {"#00D2FF", 0.12}}},
        {Theme::vaporwave(),
         "vaporwave",
         "Vaporwave",
         {{"#FF71CE", 1.0},
          {"#160B2E", 0.97},
          {"#B967FF", 0.1},
          {"#FFF0FC", 0.94},
          {"#C9A0DC", 0.6},
          {"#FF71CE", 0.14}}},
        {Theme::obsidian(),
         "obsidian",
         "Obsidian",
         {{"#E8E8E8", 1.0},
          {"#050505", 0.98},
          {"#FFFFFF", 0.05},
          {"#FAFAFA", 0.92},
          {"#808080", 0.58},
          {"#FFFFFF", 0.07}}},
        {Theme::tokyoDrift(),
         "tokyo_drift",
         "Tokyo Drift",
         {{"#FE4365", 1.0},
          {"#0D0221", 0.97},
          {"#0ABDC6", 0.1},
          {"#EAFFFF", 0.95},
          {"#0ABDC6", 0.55},
          {"#FE4365", 0.16}}},
        {Theme::arcticHaze(),
         "arctic_haze",
         "Arctic Haze",
         {{"#88C8F7", 1.0},
          {"#101820", 0.96},
          {"#C5E4FF", 0.07},
          {"#E8F4FD", 0.93},
          {"#7DA8C4", 0.58},
          {"#88C8F7", 0.1}}},
        {Theme::lavaFlow(),
         "lava_flow",
         "Lava Flow",
         {{"#FF4500", 1.0},
          {"#1A0800", 0.97},
          {"#FF6B35", 0.1},
          {"#FFF0E6", 0.94},
          {"#CC7A5C", 0.58},
          {"#FF4500", 0.15}}},
        {Theme::phantom(),
         "phantom",
         "Phantom",
         {{"#7B68EE", 1.0},
          {"#0C0C14", 0.97},
          {"#9B89F5", 0.08},
          {"#F0EEFF", 0.93},
          {"#8E84B8", 0.58},
          {"#7B68EE", 0.12}}},
        {Theme::sakura(),
         "sakura",
         "Sakura",
         {{"#FFB7C5", 1.0},
          {"#1A0F14", 0.96},
          {"#FFD6E0", 0.08},
          {"#FFF5F7", 0.93},
          {"#D4A0B0", 0.6},
          {"#FFB7C5", 0.12}}},
        {Theme::emeraldCity(),
         "emerald_city",
         "Emerald City",
         {{"#50C878", 1.0},
          {"#071210", 0.97},
          {"#50C878", 0.09},
          {"#E8FFF0", 0.93},
          {"#78B898", 0.6},
          {"#50C878", 0.12}}},
        {Theme::moondust(),
         "moondust",
         "Moondust",
         {{"#C0C0D0", 1.0},
          {"#0E0E16", 0.97},
          {"#D0D0E0", 0.06},
          {"#EEEEF5", 0.9},
          {"#8888A0", 0.55},
          {"#C0C0D0", 0.1}}},
        {Theme::infrared(),
         "infrared",
         "Infrared",
         {{"#FF1744", 1.0},
          {"#120508", 0.97},
          {"#FF1744", 0.08},
          {"#FFE8EC", 0.94},
          {"#B05060", 0.6},
          {"#FF1744", 0.14}}},
        {Theme::deepSpace(),
         "deep_space",
         "Deep Space",
         {{"#6C63FF", 1.0},
          {"#020215", 0.98},
          {"#4840BB", 0.1},
          {"#E6E4FF", 0.93},
          {"#7A75B0", 0.58},
          {"#6C63FF", 0.12}}},
        {Theme::caramel(),
         "caramel",
         "Caramel",
         {{"#D4A06A", 1.0},
          {"#1A140E", 0.97},
          {"#E8C89C", 0.08},
          {"#FFF8EF", 0.93},
          {"#B8A088", 0.58},
          {"#D4A06A", 0.12}}},
    };
    return all;
}

ThemeColor color(const Row::Hex &hex)
{
    return ThemeColor::fromHex(QString::fromLatin1(hex.digits), hex.opacity);
}

} // namespace

TEST(ThemeColor, ReadsSixHexadecimalDigits)
{
    const ThemeColor color = ThemeColor::fromHex(QStringLiteral("#0A84FF"), 1);
    EXPECT_NEAR(color.red, 0.039, 0.0005);
    EXPECT_NEAR(color.green, 0.518, 0.0005);
    EXPECT_EQ(color.blue, 1);
    EXPECT_EQ(color.opacity, 1);
    EXPECT_EQ(color.red, 10 / 255.0);
}

TEST(ThemeColor, HexMayHaveSpaceAroundAndNoHash)
{
    const ThemeColor plain = ThemeColor::fromHex(QStringLiteral("#0A84FF"), 0.5);
    EXPECT_EQ(ThemeColor::fromHex(QStringLiteral(" \t#0a84ff\r\n"), 0.5), plain);
    EXPECT_EQ(ThemeColor::fromHex(QStringLiteral("0A84FF"), 0.5), plain);
    EXPECT_EQ(ThemeColor::fromHex(QStringLiteral("FF0A84FF"), 0.5), plain) << "only the low bits count";
    EXPECT_EQ(ThemeColor::fromHex(QStringLiteral("##"), 0.5), ThemeColor(0, 0, 0, 0.5));
}

TEST(ThemeColor, OfAColourTheUserChoseHasItsChannelsAndAlpha)
{
    EXPECT_EQ(ThemeColor(QColor(QStringLiteral("#0A84FF"))),
              ThemeColor::fromHex(QStringLiteral("#0A84FF"), 1));
    const ThemeColor translucent(QColor(10, 132, 255, 51));
    EXPECT_EQ(translucent, ThemeColor::fromHex(QStringLiteral("#0A84FF"), 0.2));
}

TEST(ThemeColor, ConvertsOtherColourModelsToSrgb)
{
    const ThemeColor fromHsv(QColor::fromHsvF(0.5F, 1, 1, 1));
    EXPECT_NEAR(fromHsv.red, 0, 1e-4);
    EXPECT_NEAR(fromHsv.green, 1, 1e-4);
    EXPECT_NEAR(fromHsv.blue, 1, 1e-4);
    const ThemeColor fromCmyk(QColor::fromCmykF(0, 1, 1, 0, 0.5F));
    EXPECT_NEAR(fromCmyk.red, 1, 1e-4);
    EXPECT_NEAR(fromCmyk.green, 0, 1e-4);
    EXPECT_NEAR(fromCmyk.opacity, 0.5, 1e-4);
    const ThemeColor extended(QColor::fromRgbF(1.5F, 0, -0.25F, 1));
    EXPECT_NEAR(extended.red, 1.5, 1e-3);
    EXPECT_NEAR(extended.blue, -0.25, 1e-3);
}

TEST(ThemeColor, OfNoColourIsOpaqueWhite)
{
    EXPECT_EQ(ThemeColor(QColor()), ThemeColor(1, 1, 1, 1));
}

TEST(ThemeColor, DrawsWithItsFourNumbers)
{
    const QColor color = ThemeColor(0.25, 0.5, 0.75, 0.96).toColor();
    EXPECT_NEAR(color.redF(), 0.25, 1e-4);
    EXPECT_NEAR(color.greenF(), 0.5, 1e-4);
    EXPECT_NEAR(color.blueF(), 0.75, 1e-4);
    EXPECT_NEAR(color.alphaF(), 0.96, 1e-4);
}

TEST(ThemeColor, DrawsNumbersOutOfRangeAsTheNearestEnd)
{
    EXPECT_EQ(ThemeColor(-3, 1e300, 2, 7).toColor(), QColor(0, 255, 255, 255));
    EXPECT_EQ(ThemeColor(1, 1, 1, -1).toColor().alpha(), 0);
}

TEST(ThemeColor, EqualColoursHashAlike)
{
    const QSet<ThemeColor> set{{0, 0.5, 1, 1}, {0, 0.5, 1, 1}, {0, 0.5, 1, 0.9}};
    EXPECT_EQ(set.size(), 2);
}

TEST(Theme, BuiltInsAreThePresetsInOrder)
{
    ASSERT_EQ(Theme::builtIns().size(), 25);
    ASSERT_EQ(rows().size(), 25U);
    qsizetype i = 0;
    for (const Row &row : rows()) {
        const Theme &theme = Theme::builtIns().at(i++);
        EXPECT_EQ(theme, row.constant) << row.id;
        EXPECT_EQ(theme.id, QString::fromLatin1(row.id));
        EXPECT_EQ(theme.name, QString::fromLatin1(row.name)) << row.id;
        EXPECT_EQ(theme.accent, color(row.colors[0])) << row.id;
        EXPECT_EQ(theme.accent.opacity, 1) << row.id;
        EXPECT_EQ(theme.surface, color(row.colors[1])) << row.id;
        EXPECT_EQ(theme.surfaceElevated, color(row.colors[2])) << row.id;
        EXPECT_EQ(theme.textPrimary, color(row.colors[3])) << row.id;
        EXPECT_EQ(theme.textSecondary, color(row.colors[4])) << row.id;
        EXPECT_EQ(theme.separator, color(row.colors[5])) << row.id;
    }
}

TEST(Theme, DefaultIsMidnight)
{
    EXPECT_EQ(Theme::defaultTheme().id, QStringLiteral("midnight"));
}

TEST(Theme, TextOnTheAccentCanBeRead)
{
    // 3.65, 3.5 and 4.6 to 1 in white.
    for (const Theme *theme : {&Theme::midnight(), &Theme::rose(), &Theme::deepSpace()})
        EXPECT_EQ(theme->textOnAccent(), QColor(Qt::white)) << theme->id.toStdString();
    // 2.1, 1.5 and 1.2.
    for (const Theme *theme : {&Theme::sand(), &Theme::sakura(), &Theme::obsidian()})
        EXPECT_EQ(theme->textOnAccent(), QColor(Qt::black)) << theme->id.toStdString();
}

TEST(Theme, TextOnATranslucentAccentIsForWhatIsSeen)
{
    Theme theme = Theme::obsidian();
    theme.accent.opacity = 0.2;
    EXPECT_EQ(theme.textOnAccent(), QColor(Qt::white)) << "the dark surface shines through";
    theme.surface = {1, 1, 1, 1};
    EXPECT_EQ(theme.textOnAccent(), QColor(Qt::black));
}

TEST(Theme, IdsAndNamesAreTwoThings)
{
    EXPECT_EQ(Theme::frosty().id, QStringLiteral("frosty"));
    EXPECT_EQ(Theme::frosty().name, QStringLiteral("Glacier Blue"));
    EXPECT_EQ(Theme::sunset().name, QStringLiteral("Sunset Glow"));
    EXPECT_EQ(Theme::aurora().name, QStringLiteral("Aurora Green"));
}

} // namespace brimlight::test
