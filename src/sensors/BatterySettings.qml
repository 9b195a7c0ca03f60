pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Core
import Brimlight.Controls
import Brimlight.Theme
import Brimlight.Grid
import Brimlight.Sensors

Column {
    id: root

    required property WidgetContext context
    required property BatteryFace face
    readonly property theme colors: context.theme.shown

    spacing: 6

    Text {
        text: "Battery Settings"
        color: root.colors.textPrimary
        font: Fonts.bold(Fonts.body)
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    SegmentedPicker {
        width: parent.width
        colors: root.colors
        label: "Color:"
        labels: ["Dynamic", "Theme"]
        values: ["dynamic", "theme"]
        value: root.face.colorMode
        onChosen: value => root.context.setOption("colorMode", value)
    }
}
