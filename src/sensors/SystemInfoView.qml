import QtQuick
import Brimlight.Core
import Brimlight.Theme
import Brimlight.Grid
import Brimlight.Sensors

Item {
    id: root

    required property WidgetContext context
    required property MachinePorts machine
    readonly property theme colors: context.theme.current
    readonly property string size: context.size
    readonly property bool isStacked: size === "tall" || size === "large"

    SystemInfoFace {
        id: info

        context: root.context
        machine: root.machine
    }

    WidgetTitle {
        id: heading

        visible: root.size === "huge"
        colors: root.colors
        symbol: "macbook"
        text: "System Info"
    }
    Item {
        y: heading.visible ? heading.height + 14 : 0
        width: parent.width
        height: parent.height - y

        Repeater {
            model: info.labels.length

            Item {
                id: entry

                required property int index
                readonly property string label: info.labels[index]
                readonly property string value: info.values[index] ?? ""

                width: parent.width
                height: parent.height / info.labels.length
                y: index * height
                Accessible.role: Accessible.StaticText
                Accessible.name: label + " " + value

                Text {
                    id: label

                    y: root.isStacked ? (parent.height - height - value.height) / 2 : (parent.height - height) / 2
                    text: entry.label
                    color: root.colors.textSecondary
                    font.family: Fonts.rounded
                    font.pixelSize: root.size === "huge" ? 13 : root.size === "large" ? 10 : 9
                    font.weight: Font.Medium
                }
                Text {
                    id: value

                    x: root.isStacked ? 0 : label.width + 8
                    y: root.isStacked ? label.y + label.height : (parent.height - height) / 2
                    width: parent.width - x
                    horizontalAlignment: root.isStacked ? Text.AlignLeft : Text.AlignRight
                    text: entry.value
                    color: root.colors.textPrimary
                    elide: Text.ElideRight
                    fontSizeMode: Text.HorizontalFit
                    minimumPixelSize: 8
                    font.family: Fonts.rounded
                    font.pixelSize: root.size === "huge" ? 14 : root.size === "large" ? 12 : 10
                    font.weight: Font.DemiBold
                }
            }
        }
    }
}
