#include "theme/Fonts.h"

#include <gtest/gtest.h>

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>

namespace brimlight::test {

TEST(Fonts, TheFirstInstalledFamilyIsTaken)
{
    const QString none = QStringLiteral("No Such Family");
    const QString installed = QFontDatabase::families().constFirst();
    EXPECT_EQ(Fonts::firstInstalled({none, installed}, QStringLiteral("serif")), installed);
    EXPECT_EQ(Fonts::firstInstalled({none}, QStringLiteral("serif")), QStringLiteral("serif"));
}

TEST(Fonts, FamiliesOfThePackageListAreThere)
{
    const Fonts fonts;
    EXPECT_EQ(fonts.rounded(), QStringLiteral("Lato"));
    EXPECT_EQ(fonts.monospaced(), QStringLiteral("JetBrains Mono"));
    EXPECT_EQ(fonts.serif(), QStringLiteral("Charis SIL"));
}

TEST(Fonts, AStyleKeepsItsSizeInAnotherWeightAndItsWeightAtAnotherSize)
{
    const Fonts fonts;
    const QFont strong = fonts.strong(fonts.label());
    EXPECT_EQ(strong.pixelSize(), fonts.label().pixelSize());
    EXPECT_EQ(strong.weight(), QFont::DemiBold);
    EXPECT_EQ(fonts.medium(strong).weight(), QFont::Medium);
    EXPECT_EQ(fonts.bold(strong).weight(), QFont::Bold);
    const QFont large = fonts.sized(strong, 21.6);
    EXPECT_EQ(large.pixelSize(), 22);
    EXPECT_EQ(large.weight(), QFont::DemiBold);
    EXPECT_EQ(fonts.sized(strong, -3).pixelSize(), 1) << "a tile that has no room yet";
}

TEST(Fonts, ADesignNamesAFamily)
{
    const Fonts fonts;
    const auto family = [&](const char *design) {
        return fonts.designed(fonts.label(), QLatin1String(design)).family();
    };
    EXPECT_EQ(family("serif"), fonts.serif());
    EXPECT_EQ(family("monospaced"), fonts.monospaced());
    EXPECT_EQ(family("rounded"), fonts.rounded());
    EXPECT_EQ(family("whatever"), fonts.rounded());
    EXPECT_EQ(fonts.code().family(), fonts.monospaced());
}

TEST(Fonts, DigitsHaveOneWidthInEveryWeight)
{
    const Fonts fonts;
    for (const QString &family : {fonts.rounded(), fonts.monospaced(), fonts.serif()}) {
        for (const auto weight : {QFont::Light, QFont::Normal, QFont::Medium, QFont::DemiBold, QFont::Bold}) {
            for (const int size : {9, 12, 34, 56}) {
                QFont font(family);
                font.setPixelSize(size);
                font.setWeight(weight);
                const QFontMetricsF metrics(font);
                const double width = metrics.horizontalAdvance(QLatin1Char('0'));
                for (char digit = '1'; digit <= '9'; ++digit)
                    EXPECT_NEAR(metrics.horizontalAdvance(QLatin1Char(digit)), width, 0.01)
                        << qPrintable(family) << " weight " << weight << " size " << size << " digit "
                        << digit;
            }
        }
    }
}

} // namespace brimlight::test
