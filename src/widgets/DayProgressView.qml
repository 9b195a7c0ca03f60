pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Core
import Brimlight.Controls
import Brimlight.Theme
import Brimlight.Grid
import Brimlight.Widgets

Item {
    id: root

    required property WidgetContext context
    required property DayProgressFace face
    readonly property theme colors: context.theme.shown
    readonly property string size: context.size
    readonly property bool isRich: size === "large" || size === "wideTall"

    TileTitle {
        id: heading

        y: root.isRich ? 3 : (root.height - height) / 2
        visible: root.isRich || root.size === "banner"
        colors: root.colors
        text: root.isRich ? "Progress" : "Day Progress"
    }
    MeterRing {
        id: ring

        readonly property real side: root.isRich ? Math.min(root.width * 0.62, root.height - y - bars.height - 10) : root.height

        width: side
        height: side
        x: root.isRich ? (root.width - side) / 2 : root.size === "banner" ? heading.x + heading.width + 12 : root.size === "small" ? (root.width - side) / 2 : 0
        y: root.isRich ? heading.y + heading.height + 7 : 0
        colors: root.colors
        value: root.face.day
        text: root.face.dayText
        caption: root.size === "banner" ? "" : "Day"
        lineWidth: 6
        Accessible.name: "Day " + root.face.dayText
    }

    Column {
        id: bars

        visible: root.size !== "small"
        anchors.left: root.isRich ? parent.left : ring.right
        anchors.leftMargin: root.isRich ? 0 : 12
        anchors.right: parent.right
        y: root.isRich ? root.height - height : (root.height - height) / 2
        spacing: root.size === "wide" ? 8 : 10

        ProgressBar {
            width: parent.width
            stacked: !root.isRich
            label: "Week"
            fraction: root.face.week
            text: root.face.weekText
            colors: root.colors
        }
        ProgressBar {
            width: parent.width
            visible: root.size !== "banner"
            stacked: !root.isRich
            label: "Month"
            fraction: root.face.month
            text: root.face.monthText
            colors: root.colors
        }
    }
}
