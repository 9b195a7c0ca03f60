#include "grid/WidgetCatalog.h"

#include "app/Stores.h"
#include "fakes/FakePlatform.h"
#include "grid/WidgetRegistry.h"

#include <gtest/gtest.h>

namespace brimlight::test {
namespace {

GalleryEntry entry(const char *kind)
{
    const FakePlatform machine;
    const Stores stores(machine.platform, machine.log);
    return galleryEntry(stores.registry.definition(QLatin1String(kind))->metadata);
}

} // namespace

TEST(Gallery, AKindWithoutAWideSizePreviewsItsDefault)
{
    const GalleryEntry calculator = entry("calculator");
    EXPECT_EQ(calculator.previewSize, QStringLiteral("large"));
    EXPECT_EQ(calculator.chip, QStringLiteral("2×2"));
    EXPECT_EQ(calculator.naturalSize, QSizeF(160, 160));
}

TEST(Gallery, AKindThatOffersWidePreviewsWide)
{
    const GalleryEntry weather = entry("weather");
    EXPECT_EQ(weather.previewSize, QStringLiteral("wide"));
    EXPECT_EQ(weather.chip, QStringLiteral("2×1"));
}

TEST(Gallery, TheSizesStandInTheKindsOwnOrder)
{
    EXPECT_EQ(entry("clock").sizes, QStringLiteral("1×1 · 2×1 · 3×1 · 3×2"));
    EXPECT_EQ(entry("worldclock").sizes, QStringLiteral("2×1 · 2×2 · 1×2 · 3×3"));
}

TEST(TileMenu, LabelsAreFixedTexts)
{
    EXPECT_EQ(sizeLabel(WidgetSize::small), QStringLiteral("Small (1×1)"));
    EXPECT_EQ(sizeLabel(WidgetSize::tall), QStringLiteral("Tall (1×2)"));
    EXPECT_EQ(sizeLabel(WidgetSize::wide), QStringLiteral("Wide (2×1)"));
    EXPECT_EQ(sizeLabel(WidgetSize::large), QStringLiteral("Large (2×2)"));
    EXPECT_EQ(sizeLabel(WidgetSize::banner), QStringLiteral("Banner (3×1)"));
    EXPECT_EQ(sizeLabel(WidgetSize::wideTall), QStringLiteral("Big (3×2)"));
    EXPECT_EQ(sizeLabel(WidgetSize::huge), QStringLiteral("Huge (3×3)"));
}

} // namespace brimlight::test
