#pragma once

namespace brimlight {

class AppSettings;
class GridStore;
class ThemeStore;
class TickCoordinator;
class WidgetRegistry;

/// What every widget finds around it, borrowed. What else a kind needs, its definition knows.
struct WidgetEnvironment
{
    const WidgetRegistry &registry;
    GridStore &grid;
    ThemeStore &theme;
    AppSettings &settings;
    TickCoordinator &ticker;
};

} // namespace brimlight
