#include "theme/SoftShadow.h"

#include <gtest/gtest.h>

#include <cmath>

namespace brimlight::test {
namespace {

using namespace brimlight::softshadow;

} // namespace

TEST(SoftShadow, BlurIsAGaussianWithinThreePercent)
{
    QImage alpha(200, 3, QImage::Format_Alpha8);
    alpha.fill(0);
    // An edge turns into the error function.
    for (int y = 0; y < 3; ++y)
        std::fill_n(alpha.scanLine(y) + 100, 100, uchar(255));
    QImage tall(200, 200, QImage::Format_Alpha8);
    for (int y = 0; y < 200; ++y)
        std::copy_n(alpha.constScanLine(0), 200, tall.scanLine(y));
    blur(tall, 22);
    for (int x = 60; x < 140; ++x) {
        const double expected = 0.5 * (1 + std::erf((x - 99.5) / (11 * std::sqrt(2))));
        EXPECT_NEAR(tall.constScanLine(100)[x] / 255.0, expected, 0.03) << x;
    }
}

TEST(SoftShadow, BlurKeepsTheMiddleInTheMiddle)
{
    for (const double radius : {1.0, 4.0, 9.0, 10.0, 22.0, 44.0}) {
        const int side = 2 * reach(radius) + 41;
        QImage alpha(side, side, QImage::Format_Alpha8);
        alpha.fill(0);
        for (int y = side / 2 - 8; y <= side / 2 + 8; ++y)
            std::fill_n(alpha.scanLine(y) + side / 2 - 8, 17, uchar(255));
        blur(alpha, radius);
        const int middle = side / 2;
        for (int i = 0; i < side; ++i) {
            const int across = alpha.constScanLine(middle)[i];
            EXPECT_NEAR(across, alpha.constScanLine(middle)[side - 1 - i], 1);
            EXPECT_NEAR(across, alpha.constScanLine(i)[middle], 1);
        }
    }
}

TEST(SoftShadow, FadesOutWithinItsReach)
{
    EXPECT_EQ(reach(0), 0);
    for (const double radius : {4.0, 22.0, 44.0}) {
        const QImage shadow =
            image({.cornerRadius = 30, .blurRadius = radius}, {300, 200}, QColor(0, 0, 0, 255));
        ASSERT_EQ(shadow.size(), QSize(300 + 2 * reach(radius), 200 + 2 * reach(radius)));
        EXPECT_LE(qAlpha(shadow.pixel(0, shadow.height() / 2)), 6);
        EXPECT_LE(qAlpha(shadow.pixel(shadow.width() / 2, shadow.height() - 1)), 6);
        EXPECT_EQ(qAlpha(shadow.pixel(shadow.rect().center())), 255);
    }
}

TEST(SoftShadow, DrawingOutAPatchIsBlurringTheWhole)
{
    const Caster caster{.outline = Outline::notch, .cornerRadius = 20, .blurRadius = 12};
    // 400 is drawn out from a patch; the same corners stand at the ends of the shorter one.
    const QImage wide = image(caster, {400, 300}, Qt::black);
    const int margin = reach(12);
    const QImage whole = [&] {
        QImage alpha(wide.size(), QImage::Format_Alpha8);
        alpha.fill(0);
        for (int y = margin; y < margin + 300; ++y)
            std::fill_n(alpha.scanLine(y) + margin, 400, uchar(255));
        blur(alpha, 12);
        return alpha;
    }();
    // The upper corners are square in both.
    for (int y = 0; y < 150; y += 7) {
        for (int x = 0; x < wide.width(); x += 5)
            EXPECT_NEAR(qAlpha(wide.pixel(x, y)), whole.constScanLine(y)[x], 1) << x << ' ' << y;
    }
}

TEST(SoftShadow, TakesItsColour)
{
    const QImage shadow =
        image({.cornerRadius = 10, .blurRadius = 8}, {80, 80}, QColor::fromRgbF(0, 0.5, 1, 0.5));
    const QColor middle = shadow.pixelColor(shadow.rect().center());
    EXPECT_NEAR(middle.alphaF(), 0.5, 0.01);
    EXPECT_NEAR(middle.greenF(), 0.5, 0.01);
    EXPECT_NEAR(middle.blueF(), 1, 0.01);
}

} // namespace brimlight::test
