pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Core
import Brimlight.Controls
import Brimlight.Theme
import Brimlight.Grid
import Brimlight.Sensors

Item {
    id: root

    required property WidgetContext context
    required property SystemInfoFace face
    readonly property theme colors: context.theme.shown
    readonly property string size: context.size
    readonly property bool isStacked: size === "tall" || size === "large"

    TileTitle {
        id: heading

        visible: root.size === "huge"
        colors: root.colors
        symbol: "macbook"
        text: "System Info"
    }
    Item {
        // Clear of the round corners, where there is room.
        x: root.size === "large" ? heading.x : 0
        y: heading.visible ? heading.y + heading.height + 8 : root.size === "large" ? heading.y : 0
        width: parent.width - 2 * x
        height: parent.height - y

        Repeater {
            model: root.face.labels.length

            Item {
                id: entry

                required property int index
                readonly property string label: root.face.labels[index]
                readonly property string value: root.face.values[index] ?? ""
                // The chip's name is long.
                readonly property bool wraps: root.isStacked && index === root.face.labels.length - 1

                width: parent.width
                height: parent.height / root.face.labels.length
                y: index * height
                Accessible.role: Accessible.StaticText
                Accessible.name: label + " " + value

                Rectangle {
                    visible: heading.visible
                    width: parent.width
                    height: 1
                    color: root.colors.separator
                }
                Text {
                    id: label

                    y: root.isStacked ? 0 : (parent.height - height) / 2
                    text: entry.label
                    color: root.colors.textSecondary
                    font: Fonts.medium(root.size === "huge" ? Fonts.subtitle : root.size === "large" ? Fonts.note : Fonts.footnote)
                }
                Text {
                    id: value

                    x: root.isStacked ? 0 : label.width + 8
                    y: root.isStacked ? label.height + 1 : 0
                    width: parent.width - x
                    height: parent.height - y
                    horizontalAlignment: root.isStacked ? Text.AlignLeft : Text.AlignRight
                    verticalAlignment: root.isStacked ? Text.AlignTop : Text.AlignVCenter
                    text: entry.value
                    color: root.colors.textPrimary
                    elide: Text.ElideRight
                    wrapMode: entry.wraps ? Text.WordWrap : Text.NoWrap
                    maximumLineCount: entry.wraps ? 2 : 1
                    fontSizeMode: entry.wraps ? Text.Fit : Text.HorizontalFit
                    minimumPixelSize: Fonts.tiny.pixelSize
                    font: Fonts.strong(root.size === "huge" ? Fonts.value : root.size === "large" ? Fonts.body : Fonts.note)
                }
            }
        }
    }
}
