pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Core
import Brimlight.Theme
import Brimlight.Grid
import Brimlight.Widgets

AnalogClockFace {
    id: root

    required property WidgetContext context
    readonly property theme colors: context.theme.shown

    now: context.ticker.now
    primary: colors.textPrimary
    secondary: colors.textSecondary
    accent: colors.accent
    Accessible.role: Accessible.StaticText
    Accessible.name: context.settings.hourMinute(context.ticker.now)
}
