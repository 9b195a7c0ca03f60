#include "theme/ThemeStore.h"

#include <gtest/gtest.h>

namespace brimlight::test {

TEST(ThemeColor, ReadsSixHexadecimalDigits)
{
    const ThemeColor color = ThemeColor::fromHex(QStringLiteral(" #0A84FF\n"), 1);
    EXPECT_NEAR(color.red, 0.039, 0.0005);
    EXPECT_NEAR(color.green, 0.518, 0.0005);
    EXPECT_EQ(color.blue, 1);
    EXPECT_EQ(ThemeColor::fromHex(QStringLiteral("0A84FF"), 1), color);
}

TEST(ThemeStore, StartsWithMidnight)
{
    const ThemeStore store;
    EXPECT_EQ(store.current().name, QStringLiteral("Midnight"));
    EXPECT_EQ(store.current().surfaceColor().name(), QStringLiteral("#0b0b0f"));
    EXPECT_NEAR(store.current().surfaceColor().alphaF(), 0.96, 0.001);
}

} // namespace brimlight::test
