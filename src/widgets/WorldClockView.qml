pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Core
import Brimlight.Theme
import Brimlight.Grid
import Brimlight.Widgets

Item {
    id: root

    required property WidgetContext context
    required property WorldClockFace face
    readonly property theme colors: context.theme.shown
    readonly property bool isTall: context.size === "tall"

    Column {
        anchors.verticalCenter: parent.verticalCenter
        width: parent.width
        spacing: root.face.spacing

        Repeater {
            model: root.face.count

            Item {
                id: place

                required property int index
                // A row that is about to go may be told of the shorter list first.
                readonly property worldClockPlace entry: root.face.places[Math.min(index, root.face.count - 1)]

                width: parent.width
                height: root.isTall ? 30 : 18
                Accessible.role: Accessible.StaticText
                Accessible.name: entry.label + " " + entry.time

                Symbol {
                    id: symbol

                    anchors.verticalCenter: label.verticalCenter
                    name: place.entry.symbol
                    size: root.isTall ? 9 : 11
                    color: place.entry.isDay ? "#FFD60A" : root.colors.textSecondary
                }
                Text {
                    id: label

                    anchors.left: symbol.right
                    anchors.leftMargin: root.isTall ? 4 : 8
                    anchors.verticalCenter: root.isTall ? undefined : parent.verticalCenter
                    width: Math.min(implicitWidth, (root.isTall ? parent.width : time.x) - x)
                    text: place.entry.label
                    color: root.colors.textSecondary
                    fontSizeMode: Text.HorizontalFit
                    minimumPixelSize: root.isTall ? 6 : 8
                    elide: Text.ElideRight
                    font: root.isTall ? Fonts.footnote : Fonts.label
                }
                RollingNumber {
                    id: time

                    x: root.isTall ? 0 : parent.width - width
                    y: root.isTall ? label.height + 1 : (parent.height - height) / 2
                    text: place.entry.time
                    reduceMotion: Motion.reduced
                    font: Fonts.strong(root.isTall ? Fonts.title : Fonts.value)
                    color: root.colors.textPrimary
                }
            }
        }
    }
}
