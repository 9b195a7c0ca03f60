#include "app/Stores.h"
#include "app/WidgetRenderer.h"
#include "fakes/FakePlatform.h"
#include "grid/GridMetrics.h"
#include "theme/SymbolTable.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace brimlight::test {
namespace {

/// The same kinds, none of which has a view.
std::vector<WidgetDefinition> withoutViews(std::vector<WidgetDefinition> definitions)
{
    for (WidgetDefinition &definition : definitions)
        definition = {.metadata = definition.metadata};
    return definitions;
}

/// The registry of the program on a machine of fakes, drawn as it is and as if no kind had a view.
class EveryWidget : public testing::Test, protected FakePlatform
{
protected:
    bool hasView(const WidgetDefinition &definition) const { return !definition.view.isEmpty(); }

    /// For each size of each kind that has a view, or of each other kind.
    template<typename Check>
    void forEach(bool withView, Check check)
    {
        for (const WidgetDefinition &definition : stores.registry.all()) {
            if (hasView(definition) != withView)
                continue;
            for (const WidgetSize size : definition.metadata.allowedSizes) {
                SCOPED_TRACE(qPrintable(definition.metadata.kind + u' ' + rawValue(size)));
                check(definition.metadata.kind, size);
            }
        }
    }

    Stores stores{platform, log};
    WidgetCatalog catalog{stores.widgets};
    WidgetRenderer renderer{catalog, stores.theme};

    const WidgetRegistry bare{withoutViews(stores.registry.all())};
    const WidgetEnvironment bareEnvironment{bare, stores.grid, stores.theme, stores.appSettings,
                                            stores.ticker};
    WidgetCatalog bareCatalog{bareEnvironment};
    WidgetRenderer placeholders{bareCatalog, stores.theme};
};

} // namespace

TEST_F(EveryWidget, WithAViewIsDrawnAtEverySizeAndNeverAsThePlaceholder)
{
    int drawn = 0;
    forEach(true, [&](const QString &kind, WidgetSize size) {
        const QImage image = renderer.render(kind, size);
        EXPECT_EQ(image.size(), (gridMetrics::rectangle(size) * WidgetRenderer::scale).toSize());
        EXPECT_NE(image, placeholders.render(kind, size));
        ++drawn;
    });
    EXPECT_GT(drawn, 0);
}

TEST_F(EveryWidget, WithoutAViewIsThePlaceholder)
{
    forEach(false, [&](const QString &kind, WidgetSize size) {
        const QImage image = renderer.render(kind, size);
        EXPECT_FALSE(image.isNull());
        EXPECT_EQ(image, placeholders.render(kind, size));
    });
}

TEST_F(EveryWidget, WithAViewHasASymbol)
{
    for (const WidgetDefinition &definition : stores.registry.all()) {
        const std::string symbol = definition.metadata.symbol.toStdString();
        const bool isKnown = std::ranges::any_of(
            symbolTable(), [&](const SymbolEntry &entry) { return entry.name == symbol; });
        EXPECT_TRUE(isKnown || !hasView(definition)) << qPrintable(definition.metadata.kind);
    }
}

TEST_F(EveryWidget, WithAViewAndSettingsHasABack)
{
    for (const WidgetDefinition &definition : stores.registry.all()) {
        if (hasView(definition))
            EXPECT_EQ(definition.settingsView.isEmpty(), !definition.metadata.hasSettings)
                << qPrintable(definition.metadata.kind);
    }
}

} // namespace brimlight::test
