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
