#pragma once

#include "grid/GridLayout.h"

#include <QList>
#include <QString>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>

namespace brimlight {

class WidgetContext;
class WidgetLogic;

/// How often the content of a widget changes. A declaration: no timer starts from it.
struct RefreshCadence
{
    /// Absent for content that never changes by itself.
    std::optional<double> intervalSeconds;

    static constexpr RefreshCadence seconds(double interval) { return {interval}; }
    static constexpr RefreshCadence never() { return {}; }

    bool operator==(const RefreshCadence &) const = default;
};

/// What a widget's data needs the user's leave for. A declaration: nothing is asked from it.
enum class WidgetPermission { calendar, reminders, weather, microphone, accessibility };

/// The stored text of a permission, its case name.
QString rawValue(WidgetPermission permission);

/// What is known of a kind of widget without drawing it.
struct WidgetMetadata
{
    /// The key under which instances are stored; never changes.
    QString kind;
    /// Shown as it stands, in every language.
    QString displayName;
    /// Name of a symbol; several kinds may share one.
    QString symbol;
    /// In the order of the menu.
    QList<WidgetSize> allowedSizes;
    /// One of `allowedSizes`.
    WidgetSize defaultSize = WidgetSize::small;
    RefreshCadence refresh;
    QList<WidgetPermission> permissions;
    /// Whether the tile's menu offers its back.
    bool hasSettings = false;

    bool operator==(const WidgetMetadata &) const = default;
};

/// One kind of widget.
struct WidgetDefinition
{
    WidgetMetadata metadata;
    /// The QML file of the content. A kind without one is drawn as a placeholder.
    QUrl view;
    /// The QML file of the tile's back; only with `hasSettings`.
    QUrl settingsView;
    /// Makes the logic of an instance, which both views get as their required property "face". Empty for a
    /// kind whose views need no more than their context.
    std::function<std::unique_ptr<WidgetLogic>(WidgetContext &)> makeLogic;
};

/// A `makeLogic` for this type of logic, whose constructor takes the context and these stores. The stores
/// must outlive every tile and need not exist yet.
template<typename Logic, typename... Stores>
auto makes(Stores &...stores)
{
    return [&stores...](WidgetContext &context) -> std::unique_ptr<WidgetLogic> {
        return std::make_unique<Logic>(context, stores...);
    };
}

/// The address of a view, by the name of its module ("Sensors") and of its file ("DiskView").
inline QUrl widgetView(const char *module, const char *file)
{
    return QUrl(
        QStringLiteral("qrc:/qt/qml/Brimlight/%1/%2.qml").arg(QLatin1String(module), QLatin1String(file)));
}

} // namespace brimlight
