#pragma once

#include <QHash>
#include <QObject>
#include <QString>

namespace brimlight {

class AppSettings;
class GridStore;
class ThemeStore;
class TickCoordinator;
class WidgetRegistry;

/// What widget views find around them, borrowed: the stores that every view needs, and the others by name.
struct WidgetEnvironment
{
    const WidgetRegistry &registry;
    GridStore &grid;
    ThemeStore &theme;
    AppSettings &settings;
    TickCoordinator &ticker;
    /// Views name what they need of these as required properties, definitions list the names.
    QHash<QString, QObject *> stores;
};

} // namespace brimlight
