#include "grid/WidgetDefinition.h"

namespace brimlight {

QString rawValue(WidgetPermission permission)
{
    switch (permission) {
    case WidgetPermission::calendar:
        return QStringLiteral("calendar");
    case WidgetPermission::reminders:
        return QStringLiteral("reminders");
    case WidgetPermission::weather:
        return QStringLiteral("weather");
    case WidgetPermission::microphone:
        return QStringLiteral("microphone");
    case WidgetPermission::accessibility:
        return QStringLiteral("accessibility");
    }
    Q_UNREACHABLE();
}

} // namespace brimlight
