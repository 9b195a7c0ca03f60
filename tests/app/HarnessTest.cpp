#include "app/WidgetRenderHarness.h"

#include <gtest/gtest.h>

#include <QDir>

namespace brimlight::test {

TEST(RenderHarness, WithoutTheSwitchNothingIsAsked)
{
    EXPECT_FALSE(WidgetRenderHarness::requestedFolder({}));
    EXPECT_FALSE(WidgetRenderHarness::requestedFolder({QStringLiteral("brimlight")}));
    EXPECT_FALSE(WidgetRenderHarness::requestedFolder(
        {QStringLiteral("brimlight"), QStringLiteral("--render-widgets=x")}));
}

TEST(RenderHarness, TheArgumentAfterTheSwitchIsTheFolder)
{
    EXPECT_EQ(WidgetRenderHarness::requestedFolder(
                  {QStringLiteral("brimlight"), QStringLiteral("--render-widgets"), QStringLiteral("out/w")}),
              QStringLiteral("out/w"));
}

TEST(RenderHarness, AsTheLastArgumentItRendersToTheTemporaryFolder)
{
    EXPECT_EQ(WidgetRenderHarness::requestedFolder(
                  {QStringLiteral("brimlight"), QStringLiteral("--render-widgets")}),
              QDir::tempPath() + QStringLiteral("/brimlight-widget-renders"));
}

} // namespace brimlight::test
