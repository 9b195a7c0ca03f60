pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Core
import Brimlight.Controls
import Brimlight.Theme
import Brimlight.Grid
import Brimlight.Widgets

Column {
    id: root

    required property WidgetContext context
    required property ClockFace face
    readonly property theme colors: context.theme.shown

    spacing: 6

    Text {
        text: "Clock Settings"
        color: root.colors.textPrimary
        font: Fonts.bold(Fonts.body)
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    SegmentedPicker {
        width: parent.width
        colors: root.colors
        label: "Design:"
        labels: ["Gradient", "Solid", "Mono"]
        values: ["gradient", "solid", "monochrome"]
        value: root.face.style
        onChosen: value => root.context.setOption("style", value)
    }
    SegmentedPicker {
        width: parent.width
        colors: root.colors
        label: "Font:"
        labels: ["Rounded", "Mono", "Serif"]
        values: ["rounded", "monospaced", "serif"]
        value: root.face.font
        onChosen: value => root.context.setOption("font", value)
    }
}
