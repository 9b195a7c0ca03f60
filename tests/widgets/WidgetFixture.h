#pragma once

#include "core/AppSettings.h"
#include "core/TickCoordinator.h"
#include "core/TraceLog.h"
#include "fakes/DirectFileWriter.h"
#include "fakes/Fakes.h"
#include "grid/GridStore.h"
#include "grid/WidgetCatalog.h"
#include "grid/WidgetContext.h"
#include "grid/WidgetEnvironment.h"
#include "grid/WidgetLogic.h"
#include "grid/WidgetRegistry.h"
#include "theme/ThemeStore.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

namespace brimlight::test {

/// A widget's surroundings on fakes; it is Saturday, 14 March 2026, 9:26:53 UTC.
class WidgetTest : public testing::Test
{
protected:
    explicit WidgetTest(std::vector<WidgetDefinition> kinds = {})
        : registry(std::move(kinds))
    {
    }

    QTemporaryDir dir;
    ManualScheduler scheduler;
    MemoryDefaults defaults;
    RecordingLog recorded;
    TraceLog log{recorded, {}};
    WidgetRegistry registry;
    DirectFileWriter files;
    GridStore grid{{dir.filePath(QStringLiteral("grid.json")), files}, registry};
    ThemeStore theme{{dir.filePath(QStringLiteral("theme.json")), files}, defaults, recorded};
    AppSettings settings{defaults};
    TickCoordinator ticker{scheduler, log};
    WidgetEnvironment environment{registry, grid, theme, settings, ticker};
    WidgetContext context{environment};
};

} // namespace brimlight::test
